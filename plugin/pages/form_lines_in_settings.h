#pragma once

// The settings of one input line below its name and use: a stack with one page a use, as high as that page
// needs. Embedded once a line in the Input lines page, whose settings fill its widgets. What is its own: the
// page on show, the zones of the threshold slider, and the line's present voltage, in volts.

#include <QWidget>

#include <array>
#include <memory>

class QDoubleSpinBox;

namespace Ui {
class VLK_Designer_Form_Lines_In_Settings;
}

class VLK_Form_Lines_In_Settings : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Lines_In_Settings(QWidget* parent = nullptr);
    ~VLK_Form_Lines_In_Settings() override;

    void retranslate();

    // Shows the page of a use ("NB+"); an unknown one leaves the page as it is.
    void setUse(const QString& code);
    // Whether the discrete input has voltage thresholds, as at first.
    void setLevelsVisible(bool visible);
    // Shows a voltage in all boxes for it, or in that of the discrete input alone.
    void setPresentValue(double volts);
    void setPresentAinValue(double volts);
    // Shows that there is no voltage to show, as before the tracker's first answer.
    void clearPresentValue();
    // It holds no longer.
    void setPresentValueOld(bool old);

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_value1Changed_AIN_Left(double) {}
    void slot_valueChanged_DSpinBox_AIN_Left(double) {}
    void slot_value2Changed_AIN_Right(double) {}
    void slot_valueChanged_DSpinBox_AIN_Right(double) {}
    void slot_stateChanged_PLS_MinPeriod(int) {}
    void slot_valueChanged_SpinBox_PLS_Work(int) {}
    void slot_pressed_Btn_PLS_ThldBand();
    void slot_valueChanged_Slider_PLS_ThldBand(int) {}
    void slot_valueChanged_DSpinBox_PLS_ThldBand(double) {}
    void slot_stateChanged_FRQ_Filter(int) {}
    void slot_pressed_Btn_FRQ_ThldBand();
    void slot_valueChanged_Slider_FRQ_ThldBand(int) {}
    void slot_valueChanged_DSpinBox_FRQ_ThldBand(double) {}
    void slot_stateChanged_UI_Filter(int) {}
    void slot_pressed_Btn_TAHO_ThldBand();
    void slot_valueChanged_Slider_TAHO_ThldBand(int) {}
    void slot_valueChanged_DSpinBox_TAHO_ThldBand(double) {}

protected:
    bool event(QEvent* event) override;

private:
    std::array<QDoubleSpinBox*, 4> presentValues() const;
    void fitHeight();
    void showZones();

    std::unique_ptr<Ui::VLK_Designer_Form_Lines_In_Settings> ui_;
    QString use_;
    bool levelsVisible_ = true;
};
