#include "telemetry/view/widget_tmi_view.h"

#include "ui_VLK_Designer_Widget_Tmi_View.h"

#include "base/clock.h"
#include "fuel/form_tmi_fuel_sensors.h"
#include "link/device.h"
#include "link/requests.h"
#include "telemetry/text/key_text.h"
#include "telemetry/view/event_panel.h"
#include "telemetry/view/tmi_view_texts.h"
#include "typing/join_fields.h"
#include "typing/notice_bar.h"
#include "typing/typed_entry.h"
#include "windows/fit_to_screen.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QShortcut>

using namespace vlk;

namespace {

constexpr int kSecondsPerHour = 3600;
constexpr int kLiveOwnerView = 1;
constexpr int kFirstProductionMode = 1;
enum ExtraRecord { LastTouchKey = 1, LastRfid = 3 };

std::unique_ptr<Ui::VLK_Designer_Widget_Tmi_View> setUpUi(QDialog* window)
{
    auto ui = std::make_unique<Ui::VLK_Designer_Widget_Tmi_View>();
    ui->setupUi(window);
    return ui;
}

} // namespace

VLK_Widget_Tmi_View::VLK_Widget_Tmi_View(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      ui_(setUpUi(this)), eventPanel_(new vlk::EventPanel(this)),
      partNotice_(new vlk::NoticeBar(this, QStringLiteral("label_SavedInPart"))),
      pages_(ui_->stackedWidget, eventPanel_), automatic_(this),
      clearing_({ui_->checkBox_Server1, ui_->checkBox_Server2, ui_->checkBox_Server3}), save_(this, *ui_)
{
    ui_->verticalLayout->insertWidget(0, partNotice_);
    ui_->verticalLayout_Event->addWidget(eventPanel_);
    ui_->groupBox_Btn_Guard->hide();
    ui_->frame_Btn_Func->hide();
    for (QDateTimeEdit* edit : {ui_->dateTimeEdit_Show, ui_->dateTimeEdit_First, ui_->dateTimeEdit_Last}) {
        // Already shifted by the zone; the machine's own must not shift it again.
        edit->setTimeSpec(Qt::UTC);
    }
    save_.clearProgress();
    connectControls();
    keepOnScreen(this);
    connect(eventPanel_, &vlk::EventPanel::signal_OperatingMode, this, &VLK_Widget_Tmi_View::setGuardButtons);
    connect(&save_, &vlk::SaveSequence::runningChanged, this, &VLK_Widget_Tmi_View::showSaving);
    connect(&save_, &vlk::SaveSequence::savedInPart, this, &VLK_Widget_Tmi_View::showPart);
    connect(&automatic_, &vlk::AutomaticRequests::timeout, this,
            &VLK_Widget_Tmi_View::slot_timeout_m_Timer_Auto_TMI);
    retranslate();
}

VLK_Widget_Tmi_View::~VLK_Widget_Tmi_View() = default;

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
    connect(ui_->checkBox_Get_Auto_TMI, &QCheckBox::stateChanged, this, &View::slot_stateChanged_GetAutoTmi);
    connect(ui_->horizontalSlider_Auto_Tmi, &QSlider::valueChanged, this,
            &View::slot_valueChanged_horizontalSlider_Auto_Tmi);
    connect(this, &QDialog::finished, this, &View::slot_finished_Window);
}

void VLK_Widget_Tmi_View::open(const QString& configurationPath)
{
    stopRequests();
    readTrackerSetup(configurationPath, setup_);
    if (vlkDevice != nullptr)
        qstrncpy(vlkDevice->balanceUssd(), setup_.balanceUssd.toLocal8Bit().constData(), balanceUssdSize);
    pages_.setTracker(setup_.titles, vlkDevice != nullptr ? vlkDevice->capabilityMask() : 0);

    save_.clearProgress();
    highestNumber_ = 0;
    ui_->pushButton_Get_Prev->setEnabled(false);
    ui_->pushButton_Get_Next->setEnabled(false);

    ui_->spinBox_TimeOffset->setValue(now().offsetFromUtc() / kSecondsPerHour);
    timeOffset_ = ui_->spinBox_TimeOffset->value() * kSecondsPerHour;
    pages_.setUtcOffset(timeOffset_);
    const QDateTime present = now().toUTC().addSecs(timeOffset_);
    ui_->dateTimeEdit_Show->setDateTime(present);
    ui_->dateTimeEdit_Last->setDateTime(present);
    ui_->dateTimeEdit_First->setDateTime(present.addSecs(-kSecondsPerHour));

    pages_.showNothing();
    ui_->lineEdit_TM->clear();
    ui_->lineEdit_RFID->clear();
    ui_->spinBox_RFID->setValue(ui_->spinBox_RFID->minimum());
    ui_->groupBox_Btn_Guard->hide();
    setTitle();
    show();
    raise();
    if (fuelSensors_ != nullptr)
        fuelSensors_->linkFound();

    if (vlkDevice != nullptr && vlkDevice->isProduction()) {
        ui_->horizontalSlider_Auto_Tmi->setValue(1);
        ui_->checkBox_Get_Auto_TMI->setChecked(true);
    } else {
        requests::currentRecord();
    }
}

void VLK_Widget_Tmi_View::setTitle()
{
    if (vlkDevice == nullptr)
        return;
    const QString mask = QString::number(vlkDevice->capabilityMask(), 16).toUpper();
    setWindowTitle(
        QStringLiteral("%1 / %2 / %3 / %4 / %5")
            .arg(tr("tmiw_001"), vlkDevice->model(), mask, vlkDevice->trackerId2(), vlkDevice->trackerId1()));
    ui_->label_Capability->setText(QStringLiteral("%1: %2").arg(tr("tmiw_177"), mask));
}

void VLK_Widget_Tmi_View::setManualBlocked(const char* reasonKey)
{
    blockedBy_ = reasonKey;
    for (QWidget* control : manualControls(*ui_))
        control->setEnabled(reasonKey == nullptr);
    pages_.setCommandsEnabled(reasonKey == nullptr);
    setToolTips(*ui_, reasonKey);
}

void VLK_Widget_Tmi_View::showSaving(bool running)
{
    setManualBlocked(running ? "tmiw_176" : nullptr);
    if (running)
        partNotice_->end(0);
}

void VLK_Widget_Tmi_View::showPart(const vlk::PartOfPeriod& part)
{
    partNotice_->tell([part] {
        const QLocale locale;
        return tr("tmiw_186")
            .arg(locale.toString(quint64(part.records)), locale.toString(quint64(part.all)), part.until,
                 QDir::toNativeSeparators(part.path));
    });
}

void VLK_Widget_Tmi_View::stopRequests()
{
    ui_->checkBox_Get_Auto_TMI->setChecked(false);
    automatic_.stop();
    clearing_.stop();
    save_.stop();
    // A button that is held down would go on pressing itself.
    for (QPushButton* walking : {ui_->pushButton_Get_Prev, ui_->pushButton_Get_Next})
        walking->setDown(false);
}

void VLK_Widget_Tmi_View::closeEvent(QCloseEvent* event)
{
    stopRequests();
    QDialog::closeEvent(event);
}

void VLK_Widget_Tmi_View::takeRecord(const QByteArray& record)
{
    if (save_.saving()) {
        save_.take(record);
        return;
    }
    const std::optional<quint32> number = pages_.showRecord(record);
    if (!number)
        return;
    highestNumber_ = std::max(highestNumber_, *number);
    ui_->pushButton_Get_Next->setEnabled(*number < highestNumber_);
    ui_->pushButton_Get_Prev->setEnabled(*number != 0);
}

void VLK_Widget_Tmi_View::takeClearedRecord(const QByteArray& record)
{
    // Not one of the records that a running save has asked for.
    if (!save_.isRunning())
        takeRecord(record);
    clearing_.answered();
}

void VLK_Widget_Tmi_View::takeKeyAnswer(const QByteArray& answer)
{
    pages_.showKeyAnswer(answer);
}

void VLK_Widget_Tmi_View::takeLiveKey(quint64 key)
{
    if (vlkDevice == nullptr || vlkDevice->mode() != kFirstProductionMode)
        ui_->lineEdit_TM->setText(keyHexText(key));
    else if (isVisible()) // the answer may come after the window was closed
        ui_->checkBox_Get_Auto_TMI->setChecked(true);
}

void VLK_Widget_Tmi_View::takeRfid(quint64 number, qint8 signal)
{
    ui_->lineEdit_RFID->setText(QString::number(number));
    ui_->spinBox_RFID->setValue(signal);
}

void VLK_Widget_Tmi_View::takeAnalog(const uchar* record)
{
    if (fuelSensors_ != nullptr)
        fuelSensors_->onLiveRecord(record);
}

void VLK_Widget_Tmi_View::takeTachographAnswer(const QByteArray& answer)
{
    if (tachograph_ != nullptr)
        tachograph_->takeAnswer(answer);
}

void VLK_Widget_Tmi_View::takeTachographFetched(bool done)
{
    if (tachograph_ != nullptr)
        tachograph_->takeFetched(done);
}

// Observation can be turned into guard, and guard into observation.
void VLK_Widget_Tmi_View::setGuardButtons(int operatingMode)
{
    ui_->pushButton_Set_Guard->setEnabled(operatingMode == 0);
    ui_->pushButton_Set_NoGuard->setEnabled(operatingMode == 1);
}

void VLK_Widget_Tmi_View::walkTo(quint32 number, const QAbstractButton* button)
{
    if (button->isDown() && number == lastWalk_)
        return;
    lastWalk_ = number;
    save_.stop();
    requests::recordByNumber(number);
}

void VLK_Widget_Tmi_View::slot_pressed_GetCurrent()
{
    save_.stop();
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
    save_.stop();
    requests::extraPacket(LastTouchKey);
}

void VLK_Widget_Tmi_View::slot_pressed_GetCurrent_RFID()
{
    save_.stop();
    requests::extraPacket(LastRfid);
}

void VLK_Widget_Tmi_View::slot_valueChanged_TimeOffset(int hours)
{
    const int offset = hours * kSecondsPerHour;
    for (QDateTimeEdit* edit : {ui_->dateTimeEdit_Show, ui_->dateTimeEdit_First, ui_->dateTimeEdit_Last})
        edit->setDateTime(edit->dateTime().addSecs(offset - timeOffset_));
    timeOffset_ = offset;
    save_.setTimeOffset(offset);
    pages_.setUtcOffset(offset);
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
    if (tachograph_ != nullptr)
        tachograph_->close();
    if (fuelSensors_ != nullptr)
        fuelSensors_->linkLost();
}

void VLK_Widget_Tmi_View::slot_pressed_Func()
{
    ui_->frame_Btn_Func->setVisible(ui_->frame_Btn_Func->isHidden());
    ui_->pushButton_Func->setChecked(!ui_->frame_Btn_Func->isHidden());
}

void VLK_Widget_Tmi_View::slot_pressed_Show()
{
    save_.stop();
    TypedEntry::finishIn(this);
    requests::recordByTime(ui_->dateTimeEdit_Show->dateTime().addSecs(-timeOffset_));
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
    save_.cancel();
}

// What the file tells of the tracker is taken now, since a detached one tells nothing any more.
void VLK_Widget_Tmi_View::startSave(vlk::SaveSequence::Mode mode)
{
    TypedEntry::finishIn(this);
    TelemetryOrigin origin;
    if (vlkDevice != nullptr)
        origin = {vlkDevice->model(), vlkDevice->vendor(), vlkDevice->trackerId1(), 0, {}};
    origin.timeOffset = timeOffset_;
    origin.titles = setup_.titles;
    const QDateTime first = ui_->dateTimeEdit_First->dateTime();
    const QDateTime last = ui_->dateTimeEdit_Last->dateTime();
    save_.start(mode, first.addSecs(-timeOffset_), last.addSecs(-timeOffset_), origin,
                periodFileName(setup_.objectName, first, last));
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
    clearing_.start();
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
    if (tachograph_ == nullptr) {
        tachograph_ = new VLK_Form_TMI_Taho(this);
        connect(tachograph_, &VLK_Form_TMI_Taho::signal_GetTahoQuest, this,
                &VLK_Widget_Tmi_View::slot_GetTahoQuest);
        connect(tachograph_, &VLK_Form_TMI_Taho::signal_GetTahoFile, this,
                &VLK_Widget_Tmi_View::slot_GetTahoFile);
        connect(tachograph_, &VLK_Form_TMI_Taho::signal_GetTahoFile_Read, this,
                &VLK_Widget_Tmi_View::slot_GetTahoFile_Read);
    }
    tachograph_->open();
}

void VLK_Widget_Tmi_View::slot_pressed_FuelSensor()
{
    if (fuelSensors_ == nullptr)
        fuelSensors_ = new VLK_Form_TMI_Fuel_Sensors(this);
    if (fuelSensors_->isVisible() && fuelSensors_->hasRows()) {
        fuelSensors_->raise();
        fuelSensors_->activateWindow();
    } else {
        fuelSensors_->openWindow(setup_.objectName);
    }
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
    if (vlkDevice == nullptr)
        return;
    // The name comes from the tracker: only its last part may say where the file goes.
    const QString proposed =
        QDir::cleanPath(vlkDevice->tmiFolder() + QLatin1Char('/') + QFileInfo(name).fileName());
    const QString path = QFileDialog::getSaveFileName(tachograph_, tr("wrd_028"), proposed,
                                                      QStringLiteral("%1 (*.ddd)").arg(tr("wrd_064")));
    requests::tachographRead(path);
}

void VLK_Widget_Tmi_View::retranslate()
{
    setLocale(QLocale());
    setControlTexts(*ui_);
    setToolTips(*ui_, blockedBy_);
    slot_valueChanged_horizontalSlider_Auto_Tmi(ui_->horizontalSlider_Auto_Tmi->value());
    setTitle();

    partNotice_->retranslate();
    save_.retranslate();
    pages_.retranslate();
    if (tachograph_ != nullptr)
        tachograph_->retranslate();
    if (fuelSensors_ != nullptr)
        fuelSensors_->retranslate();
}

void VLK_Widget_Tmi_View::closeWindows()
{
    close();
    if (fuelSensors_ != nullptr)
        fuelSensors_->close();
}
