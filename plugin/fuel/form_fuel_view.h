#pragma once

// The table dialog of one RS fuel level sensor, which edits the table that its owner keeps. The owner calls
// setSensor and setData, shows the dialog, and fetches the table with getData at signal_SetNewFuelData. In
// the map a volume in litres stands for the sensor's value.

#include <QDialog>
#include <QMap>

#include <memory>

class VLK_Form_Fuel_Sensor;

namespace Ui {
class VLK_Designer_Form_Fuel_View;
}

class VLK_Form_Fuel_View : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Form_Fuel_View(QWidget* parent = nullptr);
    ~VLK_Form_Fuel_View() override;

    // Each empties the table and names it anew.
    void setSensor(int kind, const QString& name);
    void reset();
    QString sensorName() const { return name_; }
    // Adds the entries to the table.
    void setData(const QString& title, const QMap<double, int>& table);
    void getData(QMap<double, int>& table) const;
    void retranslate();

    void reject() override;

Q_SIGNALS:
    void signal_GetFuelData(bool on);
    void signal_SetNewFuelData();

private Q_SLOTS:
    void slot_pressed_Btn_Open();
    void slot_pressed_Btn_Save();
    void slot_pressed_Btn_Print();
    void slot_pressed_Btn_Accept();
    void slot_pressed_Btn_Help();
    void slot_NeedSaved(bool on);
    void slot_finished(int result);

private:
    std::unique_ptr<Ui::VLK_Designer_Form_Fuel_View> ui_;
    VLK_Form_Fuel_Sensor* form_;
    QMap<double, int> given_; // by the owner
    int kind_;
    QString name_;
};
