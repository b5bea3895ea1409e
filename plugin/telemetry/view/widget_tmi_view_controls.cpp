// What the buttons and fields of the window do.

#include "telemetry/view/widget_tmi_view.h"

#include "ui_VLK_Designer_Widget_Tmi_View.h"

#include "link/device.h"
#include "link/requests.h"
#include "telemetry/view/event_panel.h"
#include "typing/join_fields.h"
#include "typing/typed_entry.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QShortcut>

using namespace vlk;

namespace {

constexpr int kLiveOwnerView = 1;
enum ExtraRecord { LastTouchKey = 1, LastRfid = 3 };

} // namespace

void VLK_Widget_Tmi_View::connectControls()
{
    using View = VLK_Widget_Tmi_View;
    const std::pair<QPushButton*, void (View::*)()> buttons[] = {
        {ui_->pushButton_Get_Current, &View::slot_pressed_GetCurrent},
        {ui_->pushButton_Get_Prev, &View::slot_pressed_GetPrev},
        {ui_->pushButton_Get_Next, &View::slot_pressed_GetNext},
        {ui_->pushButton_Get_Current_Touch, &View::slot_pressed_GetCurrent_Touch},
        {ui_->pushButton_Get_Current_RFID, &View::slot_pressed_GetCurrent_RFID},
        {ui_->pushButton_Help, &View::slot_pressed_Help},
        {ui_->pushButton_Close, &View::slot_pressed_Close},
        {ui_->pushButton_Func, &View::slot_pressed_Func},
        {ui_->pushButton_Show, &View::slot_pressed_Show},
        {ui_->pushButton_SaveToFile, &View::slot_pressed_SaveToFile},
        {ui_->pushButton_SaveToExcel, &View::slot_pressed_SaveToExcel},
        {ui_->pushButton_SaveFileToServer, &View::slot_pressed_SaveFileToServer},
        {ui_->pushButton_Save_Cancel, &View::slot_pressed_SaveCancel},
        {ui_->pushButton_Clear, &View::slot_pressed_Clear},
        {ui_->pushButton_RFID, &View::slot_pressed_RFID},
        {ui_->pushButton_TM, &View::slot_pressed_TM},
        {ui_->pushButton_Taho, &View::slot_pressed_Taho},
        {ui_->pushButton_FuelSensor, &View::slot_pressed_FuelSensor},
        {ui_->pushButton_Set_Guard, &View::slot_pressed_SetGuard},
        {ui_->pushButton_Set_NoGuard, &View::slot_pressed_SetNoGuard},
    };
    for (const auto& [button, slot] : buttons)
        connect(button, &QPushButton::clicked, this, slot);
    const std::pair<Qt::Key, void (View::*)()> keys[] = {{Qt::Key_PageUp, &View::slot_pressed_GetPrev},
                                                         {Qt::Key_PageDown, &View::slot_pressed_GetNext}};
    for (const auto& [key, slot] : keys) {
        auto* shortcut = new QShortcut(key, this);
        // Each step waits for its record.
        shortcut->setAutoRepeat(false);
        const QPushButton* button =
            key == Qt::Key_PageUp ? ui_->pushButton_Get_Prev : ui_->pushButton_Get_Next;
        connect(shortcut, &QShortcut::activated, this, [this, button, slot = slot] {
            if (button->isEnabled())
                (this->*slot)();
        });
    }
    // Enter in a field must not press whatever button is near.
    for (QPushButton* button : findChildren<QPushButton*>())
        button->setAutoDefault(false);
    joinFields(this);
    connect(ui_->spinBox_TimeOffset, qOverload<int>(&QSpinBox::valueChanged), this,
            &View::slot_valueChanged_TimeOffset);
    for (const QDateTimeEdit* field : {ui_->dateTimeEdit_First, ui_->dateTimeEdit_Last})
        connect(field, &QDateTimeEdit::dateTimeChanged, this, [this] { tellNotTaken({}); });
    for (const QCheckBox* server : {ui_->checkBox_Server1, ui_->checkBox_Server2, ui_->checkBox_Server3})
        connect(server, &QCheckBox::toggled, this, [this] { tellNoServer(false); });
    connect(ui_->checkBox_Get_Auto_TMI, &QCheckBox::stateChanged, this, &View::slot_stateChanged_GetAutoTmi);
    connect(ui_->horizontalSlider_Auto_Tmi, &QSlider::valueChanged, this,
            &View::slot_valueChanged_horizontalSlider_Auto_Tmi);
    connect(this, &QDialog::finished, this, &View::slot_finished_Window);
}

void VLK_Widget_Tmi_View::walkTo(quint32 number, const QAbstractButton* button)
{
    if (button->isDown() && number == lastWalk_)
        return;
    lastWalk_ = number;
    lookAtRecords();
    requests::recordByNumber(number);
}

void VLK_Widget_Tmi_View::lookAtRecords()
{
    save_.stop();
    functions_.showRecord();
    age_.await(true);
}

void VLK_Widget_Tmi_View::slot_pressed_GetCurrent()
{
    lookAtRecords();
    requests::currentRecord();
}

void VLK_Widget_Tmi_View::slot_pressed_GetPrev()
{
    if (eventPanel_->number() != 0)
        walkTo(eventPanel_->number() - 1, ui_->pushButton_Get_Prev);
}

void VLK_Widget_Tmi_View::slot_pressed_GetNext()
{
    walkTo(eventPanel_->number() + 1, ui_->pushButton_Get_Next);
}

void VLK_Widget_Tmi_View::slot_pressed_GetCurrent_Touch()
{
    lookAtRecords();
    requests::extraPacket(LastTouchKey);
}

void VLK_Widget_Tmi_View::slot_pressed_GetCurrent_RFID()
{
    lookAtRecords();
    requests::extraPacket(LastRfid);
}

void VLK_Widget_Tmi_View::slot_valueChanged_TimeOffset(int hours)
{
    times_.setZone(hours);
    save_.setTimeOffset(times_.offset());
    pages_.setUtcOffset(times_.offset());
}

void VLK_Widget_Tmi_View::slot_pressed_Help()
{
    requests::showHelp(QStringLiteral("r-7106tmi.html"));
}

void VLK_Widget_Tmi_View::slot_pressed_Close()
{
    stopRequests();
    close();
}

void VLK_Widget_Tmi_View::slot_finished_Window(int /*result*/)
{
    stopRequests();
    equipment_.linkLost();
}

void VLK_Widget_Tmi_View::slot_pressed_Func()
{
    functions_.toggle();
}

void VLK_Widget_Tmi_View::slot_pressed_Show()
{
    lookAtRecords();
    TypedEntry::finishIn(this);
    requests::recordByTime(times_.utc(*ui_->dateTimeEdit_Show));
}

void VLK_Widget_Tmi_View::slot_pressed_SaveToFile()
{
    startSave(vlk::SaveSequence::Xml);
}

void VLK_Widget_Tmi_View::slot_pressed_SaveToExcel()
{
    startSave(vlk::SaveSequence::Csv);
}

void VLK_Widget_Tmi_View::slot_pressed_SaveFileToServer()
{
    startSave(vlk::SaveSequence::Binary);
}

void VLK_Widget_Tmi_View::slot_pressed_SaveCancel()
{
    cancelSave();
}

// False once where the fields show other times than were typed: five minutes of reading want the right ones.
bool VLK_Widget_Tmi_View::tookPeriod()
{
    QStringList news;
    for (QDateTimeEdit* field : {ui_->dateTimeEdit_Last, ui_->dateTimeEdit_First}) {
        const QString told = TypedEntry::of(field)->takeNews();
        if (told.isEmpty())
            continue;
        news.prepend(told);
        field->setFocus();
        field->selectAll();
    }
    tellNotTaken(news.join(QLatin1Char(' ')));
    return news.isEmpty();
}

// What the file tells of the tracker is taken now, since a detached one tells nothing any more.
void VLK_Widget_Tmi_View::startSave(vlk::SaveSequence::Mode mode)
{
    TypedEntry::finishIn(this);
    if (!tookPeriod())
        return;
    TelemetryOrigin origin;
    if (vlkDevice)
        origin = {vlkDevice->model(), vlkDevice->vendor(), vlkDevice->trackerId1(), 0, {}};
    origin.timeOffset = times_.offset();
    origin.titles = setup_.titles;
    // Where the vehicle has no name the tracker's number tells whose period it is.
    const QString vehicle = setup_.isNamed() || !vlkDevice ? setup_.objectName : vlkDevice->trackerId2();
    save_.start(
        mode, times_.utc(*ui_->dateTimeEdit_First), times_.utc(*ui_->dateTimeEdit_Last), origin,
        periodFileName(vehicle, ui_->dateTimeEdit_First->dateTime(), ui_->dateTimeEdit_Last->dateTime()));
}

void VLK_Widget_Tmi_View::slot_stateChanged_GetAutoTmi(int state)
{
    const bool on = state != Qt::Unchecked;
    if (on)
        save_.stop();
    setManualBlocked(on ? "tmiw_175" : nullptr);
    if (on)
        automatic_.start(ui_->horizontalSlider_Auto_Tmi->value());
    else
        automatic_.stop();
}

void VLK_Widget_Tmi_View::slot_timeout_m_Timer_Auto_TMI()
{
    if (ui_->checkBox_Get_Auto_TMI->isChecked())
        automatic_.next(ui_->horizontalSlider_Auto_Tmi->value());
}

void VLK_Widget_Tmi_View::slot_valueChanged_horizontalSlider_Auto_Tmi(int seconds)
{
    ui_->label_Auto_Tmi_Text->setText(QStringLiteral("%1 %2").arg(seconds).arg(tr("abbr_003")));
}

void VLK_Widget_Tmi_View::slot_pressed_Clear()
{
    tellNoServer(!clearing_.start());
}

void VLK_Widget_Tmi_View::slot_pressed_RFID()
{
    requests::rfid();
}

void VLK_Widget_Tmi_View::slot_pressed_TM()
{
    requests::liveKey(kLiveOwnerView);
}

void VLK_Widget_Tmi_View::slot_pressed_Taho()
{
    if (!equipment_.openTachograph())
        return;
    const VLK_Form_TMI_Taho* tachograph = equipment_.tachograph();
    connect(tachograph, &VLK_Form_TMI_Taho::signal_GetTahoQuest, this,
            &VLK_Widget_Tmi_View::slot_GetTahoQuest);
    connect(tachograph, &VLK_Form_TMI_Taho::signal_GetTahoFile, this, &VLK_Widget_Tmi_View::slot_GetTahoFile);
    connect(tachograph, &VLK_Form_TMI_Taho::signal_GetTahoFile_Read, this,
            &VLK_Widget_Tmi_View::slot_GetTahoFile_Read);
}

void VLK_Widget_Tmi_View::slot_pressed_FuelSensor()
{
    equipment_.openFuelSensors(setup_.objectName);
}

void VLK_Widget_Tmi_View::slot_pressed_SetGuard()
{
    requests::guardOn();
}

void VLK_Widget_Tmi_View::slot_pressed_SetNoGuard()
{
    requests::guardOff();
}

void VLK_Widget_Tmi_View::slot_GetTahoQuest(int question)
{
    requests::tachographQuestion(question);
}

void VLK_Widget_Tmi_View::slot_GetTahoFile(szQueryTaho* request)
{
    requests::tachographFile(*request);
}

void VLK_Widget_Tmi_View::slot_GetTahoFile_Read(const QString& name)
{
    if (!vlkDevice)
        return;
    // The name comes from the tracker: only its last part may say where the file goes.
    const QString proposed =
        QDir::cleanPath(vlkDevice->tmiFolder() + QLatin1Char('/') + QFileInfo(name).fileName());
    const QString path = QFileDialog::getSaveFileName(equipment_.tachograph(), tr("wrd_028"), proposed,
                                                      QStringLiteral("%1 (*.ddd)").arg(tr("wrd_064")));
    requests::tachographRead(path);
}
