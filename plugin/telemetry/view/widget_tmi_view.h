#pragma once

// The window through which a user looks at the telemetry of a connected tracker: asks for records, shows the
// head of each in an event panel and its values in a content form, walks from record to record, polls on a
// timer, saves a period to a file, clears the tracker's unsent data, reads keys and tags, and opens the
// tachograph dialog and the calibration window. Answers come at any time, asked for or not, also while the
// window is hidden.

#include "link/messages.h"
#include "telemetry/tachograph/form_tmi_taho.h"
#include "telemetry/view/automatic_requests.h"
#include "telemetry/view/clearing_sequence.h"
#include "telemetry/view/equipment_windows.h"
#include "telemetry/view/functions_place.h"
#include "telemetry/view/record_stack.h"
#include "telemetry/view/save_sequence.h"
#include "telemetry/view/tracker_setup.h"
#include "telemetry/view/zoned_times.h"
#include "windows/present_age.h"

#include <QDialog>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

namespace vlk {
class EventPanel;
class NoticeBar;
} // namespace vlk
class QAbstractButton;

namespace Ui {
class VLK_Designer_Widget_Tmi_View;
}

class VLK_Widget_Tmi_View : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Widget_Tmi_View(QWidget* parent = nullptr);
    ~VLK_Widget_Tmi_View() override;

    using QDialog::open;
    // Starts anew with the tracker of this configuration file, and asks for the first record.
    void open(const QString& configurationPath);
    void deviceConnected() { setTitle(); }
    // Ends whatever runs, also in a window that is closed already.
    void deviceDisconnected();
    // What comes from now on belongs to no period that was saved.
    void endGrowth() { growing_.reset(); }
    // Closes it and the calibration window, which asks where rows of it are in no file, as the user would.
    void closeWindows();
    void retranslate();

    // For a host that waits with the user for a record that does not come.
    vlk::EndedSave endSave() { return save_.endNow(); }
    vlk::RunningWork runningWork() const;

    // Answers of the host. Records come from their type byte on.
    void takeRecord(const QByteArray& record);
    void takePresent(const QByteArray& state);
    void takeClearedRecord(const QByteArray& record);
    void takeKeyAnswer(const QByteArray& answer);
    void takeLiveKey(quint64 key);
    void takeRfid(quint64 number, qint8 signal);
    // The byte record of the live values, or null.
    void takeAnalog(const uchar* record);
    void takeTachographAnswer(const QByteArray& answer);
    void takeTachographFetched(bool done);

Q_SIGNALS:
    // The period that was just saved is to be looked at. It grows if its end was the tracker's present and
    // the tracker is there still.
    void recordsWanted(const std::shared_ptr<vlk::TelemetryContents>& records, const QString& name,
                       bool grows);
    // One that was not saved, from its type byte on.
    void recordShown(const QByteArray& record, quint32 number);
    // The tracker's present state, with the number of its latest record.
    void presentShown(const QByteArray& state, quint32 number);

protected:
    void closeEvent(QCloseEvent* event) override;
    // Escape is the Cancel of a save that runs, before it closes the window. It asks where records have come,
    // as the cross of the window does: minutes of reading want more than one key that is pressed by habit.
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    void slot_pressed_GetCurrent();
    void slot_pressed_GetPrev();
    void slot_pressed_GetNext();
    void slot_pressed_GetCurrent_Touch();
    void slot_pressed_GetCurrent_RFID();
    void slot_valueChanged_TimeOffset(int hours);
    void slot_pressed_Help();
    void slot_pressed_Close();
    void slot_finished_Window(int result);
    void slot_pressed_Func();
    void slot_pressed_Show();
    void slot_pressed_SaveToFile();
    void slot_pressed_SaveToExcel();
    void slot_pressed_SaveFileToServer();
    void slot_pressed_SaveCancel();
    void slot_stateChanged_GetAutoTmi(int state);
    void slot_timeout_m_Timer_Auto_TMI();
    void slot_valueChanged_horizontalSlider_Auto_Tmi(int seconds);
    void slot_pressed_Clear();
    void slot_pressed_RFID();
    void slot_pressed_TM();
    void slot_pressed_Taho();
    void slot_pressed_FuelSensor();
    void slot_pressed_SetGuard();
    void slot_pressed_SetNoGuard();
    void slot_GetTahoQuest(int question);
    void slot_GetTahoFile(szQueryTaho* request);
    void slot_GetTahoFile_Read(const QString& name);

private:
    void setTitle();
    // Gives the number of a record that is on show now.
    std::optional<quint32> showRecord(const QByteArray& record);
    void connectControls();
    // What the user may not press while records are requested automatically, and while a period is saved. The
    // tool tips say why: the text of `reasonKey`, null when the controls are free.
    void setManualBlocked(const char* reasonKey);
    void showSaving(bool running);
    void showSaved(const std::shared_ptr<vlk::TelemetryContents>& period, const QString& path);
    void showPart(const vlk::PartOfPeriod& part);
    void tellNoServer(bool isNone);
    void cancelSave();
    bool agreesToEndSave();
    void stopRequests();
    void startSave(vlk::SaveSequence::Mode mode);
    bool tookPeriod();
    void tellNotTaken(const QString& news);
    // For a record that was asked for by hand.
    void lookAtRecords();
    // Asks for a record by number; a walking button that is held down waits for each answer.
    void walkTo(quint32 number, const QAbstractButton* button);
    void setGuardButtons(int operatingMode);

    std::unique_ptr<Ui::VLK_Designer_Widget_Tmi_View> ui_;
    vlk::EventPanel* eventPanel_;
    vlk::NoticeBar* notices_;
    vlk::RecordStack pages_;
    vlk::PresentAge age_; // of the record on show, while others are requested
    vlk::AutomaticRequests automatic_;
    vlk::ClearingSequence clearing_;
    vlk::SaveSequence save_;
    vlk::EquipmentWindows equipment_;
    vlk::ZonedTimes times_;
    vlk::FunctionsPlace functions_;
    vlk::TrackerSetup setup_;
    bool isDetached_ = false; // the tracker is going
    quint32 highestNumber_ = 0;
    quint32 lastWalk_ = 0;
    const char* blockedBy_ = nullptr;
    std::function<void()> showPeriod_;                // the one that was saved last
    std::shared_ptr<vlk::TelemetryContents> growing_; // that period, where its end was the present; or null
    QPointer<QWidget> focusBeforeSave_;               // null where the save closed no control that had it
};
