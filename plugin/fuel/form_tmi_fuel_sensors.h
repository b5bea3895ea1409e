#pragma once

// The calibration window: a table for each fuel sensor of the tracker, each sensor's live value while the
// user fills the tank, files, and the report. What is not saved is kept on the disk, at most a second behind:
// after the end of a program that was killed it is offered at the next opening, and so is what was not saved
// when the window closed. While the window is open it asks for the live values: a question, its
// answer, two seconds of pause. A value that is older than two such periods goes. Live values come as the
// byte record of the message AnalogRecord.

#include "fuel/kept_forms.h"
#include "fuel/table/fuel_sensors.h"

#include <QDialog>
#include <QTimer>

#include <array>
#include <functional>
#include <memory>

struct CXmlSection;
class QTabWidget;
class VLK_Form_Fuel_Sensor;
class VLK_TabWidget;

namespace vlk {
class NoticeBar;
} // namespace vlk

namespace Ui {
class VLK_Designer_Form_TMI_Fuel_Sensors;
}

class VLK_Form_TMI_Fuel_Sensors : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Form_TMI_Fuel_Sensors(QWidget* parent);
    ~VLK_Form_TMI_Fuel_Sensors() override;

    // Empties all tables, shows the window and asks for the live values. `title` is the vehicle's name.
    void openWindow(const QString& title);
    void onLiveRecord(const uchar* record);
    // There is a tracker to ask again, or none any more: live values are forgotten, and the window goes
    // unless a table has rows.
    void linkFound();
    void linkLost();
    // An open window with rows comes to the front as it is; opening would empty its tables.
    bool hasRows() const;
    static QString helpPage() { return QStringLiteral("r-7106Fuel.html"); }
    void retranslate();

    void reject() override;

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void slot_currentChanged_FuelType(int index);
    void slot_pressed_Btn_Load();
    void slot_pressed_Btn_Save_Xml();
    void slot_pressed_Btn_Save_Excel();
    void slot_pressed_Btn_Print();
    void slot_pressed_Btn_Pdf();
    void slot_pressed_Btn_Help();
    void slot_pressed_Btn_Exit();
    void slot_finished(int result);
    void slot_timeout();
    void slot_NeedSaved(bool on);

private:
    void buildTabs();
    template <class Act>
    void forEachForm(Act act) const
    {
        for (int i = 0; i < vlk::kFuelSensorCount; ++i) {
            if (forms_[i])
                act(*forms_[i], i);
        }
    }
    // Those with the tab of the sensor's form.
    QTabWidget* tabsOf(int sensor) const;
    VLK_Form_Fuel_Sensor* currentForm() const;
    // Shows the tab of a sensor by the name that its file has, or of its group where there is no such sensor.
    void select(const QString& type);
    bool hasUnsaved() const { return unsavedCount_ > 0; }
    // What the bar says of the table on show, and the tabs of all.
    void tellOfTable();
    // That no live values come.
    void tellNoLink(bool isLost);
    // Opens the button for rows that were added, and for an edited table while the bar has something else to
    // tell than that.
    void openSave();
    // On the tab of each table that is not in a file, and on that of its group.
    void markTabs();
    // The user has closed the one of this number.
    void forgetNotice(int number);
    void clearLiveValues();
    void offerKeptTables();
    void bringBack(const vlk::KeptTable& table);
    // Keeps an edited table, and asks where rows would be lost.
    bool mayReplace(const VLK_Form_Fuel_Sensor& form);
    // Puts a file into a form, and settles what is kept of it. False when the file holds no table.
    template <class Read>
    bool load(const VLK_Form_Fuel_Sensor& form, Read read);
    void loadXml(const QString& path);
    void loadCsv(const QString& path);
    // `before` was on show, `type` is the sensor that the file names, `otherColumn` the heading of values
    // that are none of this sensor.
    void showLoaded(const VLK_Form_Fuel_Sensor* before, const QString& type, const QString& otherColumn = {});
    // Which points of a saved table were taken while the reading still changed: no file holds it.
    void tellNotInFile(const QString& path, const vlk::FuelRows& rows);
    // That a file has come to another tab than the one that was on show, and what a saved one does not hold.
    void endNews();
    // A table without new rows that is as it stands in no file, be it for the fractions of its volumes alone.
    bool isToBeKept(const VLK_Form_Fuel_Sensor& form, int sensor) const;
    // A table that isToBeKept(), or one with rows that are in no XML file.
    bool isUnsaved(const VLK_Form_Fuel_Sensor& form, int sensor) const;
    void noteChange(int sensor);
    // False when the disk refused.
    bool keep(const VLK_Form_Fuel_Sensor& form);
    // False when the disk refused one of which the user was not asked.
    bool keepUnsaved();
    void keepDrafts();
    int currentSensor() const;
    QString proposedName(const QString& sensor) const;

    std::unique_ptr<Ui::VLK_Designer_Form_TMI_Fuel_Sensors> ui_;
    // By the rows of vlk::kFuelGroups and vlk::kFuelSensors; null for what this model lacks.
    std::array<VLK_TabWidget*, vlk::kFuelGroupCount> groups_{};
    std::array<VLK_Form_Fuel_Sensor*, vlk::kFuelSensorCount> forms_{};
    vlk::KeptForms kept_;
    // What is told of a file of another sensor that a form shows; null where it is its own.
    std::array<std::function<QString()>, vlk::kFuelSensorCount> otherFile_;
    // How many volumes of a table have lost their fraction in its XML file, and stand in no other; and
    // whether the user has closed what is told of it.
    std::array<int, vlk::kFuelSensorCount> cutIn_{};
    std::array<bool, vlk::kFuelSensorCount> isCutClosed_{};
    vlk::NoticeBar* bar_;
    // Since the drafts were kept last.
    std::array<bool, vlk::kFuelSensorCount> changed_{};
    bool canKeep_ = true; // the disk has taken the drafts so far
    QTimer drafts_;
    int offers_ = 0;  // of kept tables, in the bar
    QString tracker_; // its number, also when it is gone
    QTimer timer_;
    QTimer old_; // runs until the live values are too old
    int unsavedCount_ = 0;
};
