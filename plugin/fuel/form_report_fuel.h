#pragma once

// Shows the calibration report of one sensor and prints it, on paper or into a PDF file.

#include "fuel/table/fuel_rows.h"

#include <QDialog>

#include <memory>

namespace Ui {
class VLK_Designer_FormReportFuel;
}

class VLK_FormReportFuel : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_FormReportFuel(QWidget* parent);
    ~VLK_FormReportFuel() override;

    // Makes the report of these points anew, and shows the window.
    void showReport(const QString& shortName, const QString& tankName, const vlk::FuelPoints& points);
    void retranslate();

private Q_SLOTS:
    void slot_pressed_Btn_Print();

private:
    std::unique_ptr<Ui::VLK_Designer_FormReportFuel> ui_;
};
