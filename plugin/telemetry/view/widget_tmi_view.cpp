#include "telemetry/view/widget_tmi_view.h"

#include "ui_VLK_Designer_Widget_Tmi_View.h"

#include "link/device.h"
#include "link/requests.h"
#include "telemetry/shown/absent_value.h"
#include "telemetry/text/key_text.h"
#include "telemetry/view/event_panel.h"
#include "telemetry/view/tmi_view_texts.h"
#include "typing/area_keys.h"
#include "typing/notice_bar.h"
#include "typing/present_value.h"
#include "typing/title_style.h"
#include "windows/fit_to_screen.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>

using namespace vlk;

namespace {

constexpr int kFirstProductionMode = 1;
enum NoticeNumber { SavedInPartNotice, NoServerNotice, SavedNotice, NotTakenNotice, CancelledNotice };

// Both ends of a name, which tell the vehicle and the end of the period: the bar has two lines.
QString nameForBar(const QString& name)
{
    constexpr int kBegin = 18;
    constexpr int kEnd = 16;
    return name.size() <= kBegin + 1 + kEnd ? name
                                            : name.left(kBegin) + QStringLiteral("…") + name.right(kEnd);
}

std::unique_ptr<Ui::VLK_Designer_Widget_Tmi_View> setUpViewUi(QDialog* window)
{
    auto ui = std::make_unique<Ui::VLK_Designer_Widget_Tmi_View>();
    ui->setupUi(window);
    return ui;
}

} // namespace

VLK_Widget_Tmi_View::VLK_Widget_Tmi_View(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      ui_(setUpViewUi(this)), eventPanel_(new vlk::EventPanel(this)),
      notices_(new vlk::NoticeBar(this, QStringLiteral("label_SavedInPart"))),
      pages_(ui_->stackedWidget, eventPanel_), automatic_(age_, this),
      clearing_({ui_->checkBox_Server1, ui_->checkBox_Server2, ui_->checkBox_Server3}), save_(this, *ui_),
      equipment_(this), times_(*ui_), functions_(*ui_, this)
{
    // Above the record: the column beside it needs all the height that a small screen has.
    ui_->verticalLayout_Record->insertWidget(0, notices_);
    notices_->keepPlace();
    notices_->setNewestFirst();
    ui_->verticalLayout_Event->addWidget(eventPanel_);
    ui_->groupBox_Btn_Guard->hide();
    save_.clearProgress();
    dressGroups(ui_->widget_Content);
    for (QWidget* value : {static_cast<QWidget*>(ui_->lineEdit_TM), static_cast<QWidget*>(ui_->lineEdit_RFID),
                           static_cast<QWidget*>(ui_->spinBox_RFID)})
        showAsPresent(value);
    // Before the first answer.
    ui_->lineEdit_TM->setPlaceholderText(kAbsentMark);
    ui_->lineEdit_RFID->setPlaceholderText(kAbsentMark);
    ui_->spinBox_RFID->setSpecialValueText(QStringLiteral(" ")); // beside the dash of the number
    age_.tellIn(eventPanel_->since());
    connect(&age_, &vlk::PresentAge::changed, this, [this] {
        for (const QWidget* values :
             {static_cast<QWidget*>(eventPanel_), static_cast<QWidget*>(ui_->stackedWidget)})
            showAllAsOld(values, age_.isOld());
    });
    connectControls();
    keepOnScreen(this);
    connect(eventPanel_, &vlk::EventPanel::signal_OperatingMode, this, &VLK_Widget_Tmi_View::setGuardButtons);
    connect(&save_, &vlk::SaveSequence::runningChanged, this, &VLK_Widget_Tmi_View::showSaving);
    connect(&save_, &vlk::SaveSequence::writing, this, [this] { notices_->end(CancelledNotice); });
    connect(&save_, &vlk::SaveSequence::saved, this, &VLK_Widget_Tmi_View::showSaved);
    connect(&save_, &vlk::SaveSequence::savedInPart, this, &VLK_Widget_Tmi_View::showPart);
    connect(&save_, &vlk::SaveSequence::targetChosen, &times_, &vlk::ZonedTimes::remember);
    connect(&save_, &vlk::SaveSequence::givenUp, &times_, &vlk::ZonedTimes::giveUp);
    connect(&automatic_, &vlk::AutomaticRequests::timeout, this,
            &VLK_Widget_Tmi_View::slot_timeout_m_Timer_Auto_TMI);
    new vlk::AreaKeys(this, [this]() -> std::vector<QWidgetList> {
        return {{ui_->stackedWidget},
                {ui_->frame_Btn_Func},
                {ui_->groupBox_Btn_Get, ui_->groupBox_Btn_Auto, ui_->groupBox_Btn_Guard,
                 ui_->spinBox_TimeOffset, ui_->pushButton_Func, ui_->pushButton_Help, ui_->frame_Progress,
                 ui_->pushButton_Close}};
    });
    retranslate();
}

VLK_Widget_Tmi_View::~VLK_Widget_Tmi_View() = default;

void VLK_Widget_Tmi_View::open(const QString& configurationPath)
{
    stopRequests();
    readTrackerSetup(configurationPath, setup_);
    if (vlkDevice)
        qstrncpy(vlkDevice->balanceUssd(), setup_.balanceUssd.toLocal8Bit().constData(), kBalanceUssdSize);
    pages_.setTracker(setup_.titles, vlkDevice ? vlkDevice->capabilityMask() : 0);

    save_.clearProgress();
    tellNoServer(false);
    highestNumber_ = 0;
    ui_->pushButton_Get_Prev->setEnabled(false);
    ui_->pushButton_Get_Next->setEnabled(false);

    times_.begin();
    pages_.setUtcOffset(times_.offset());

    pages_.showNothing();
    age_.clear();
    ui_->lineEdit_TM->clear();
    ui_->lineEdit_RFID->clear();
    ui_->spinBox_RFID->setValue(ui_->spinBox_RFID->minimum());
    ui_->groupBox_Btn_Guard->hide();
    setTitle();
    show();
    raise();
    equipment_.linkFound();

    if (vlkDevice && vlkDevice->isProduction()) {
        ui_->horizontalSlider_Auto_Tmi->setValue(1);
        ui_->checkBox_Get_Auto_TMI->setChecked(true);
    } else {
        requests::currentRecord();
    }
}

void VLK_Widget_Tmi_View::setTitle()
{
    if (!vlkDevice)
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
        control->setEnabled(!reasonKey);
    pages_.setCommandsBlocked(reasonKey);
    setToolTips(*ui_, reasonKey);
}

void VLK_Widget_Tmi_View::showSaving(bool running)
{
    QWidget* focused = focusWidget();
    // They would end it.
    ui_->checkBox_Get_Auto_TMI->setEnabled(!running);
    setManualBlocked(running ? "tmiw_176" : nullptr);
    ui_->pushButton_Close->setToolTip(running ? tr("tmiw_313") : QString());
    notices_->end(CancelledNotice);
    if (running) {
        age_.await(false);
        notices_->end(SavedInPartNotice);
        notices_->end(SavedNotice);
        // A key that is pressed once more must not get to the control that comes next.
        focusBeforeSave_ = focused && !focused->isEnabled() ? focused : nullptr;
        if (focusBeforeSave_)
            setFocus();
    } else if (focusBeforeSave_ && (focused == this || focused == ui_->pushButton_Save_Cancel)) {
        focusBeforeSave_->setFocus();
    }
}

void VLK_Widget_Tmi_View::showSaved(const std::shared_ptr<TelemetryContents>& period, const QString& path)
{
    const int last = period->records.size() - 1;
    const bool isPresent = last >= 0 && period->records.at(last)->number() >= highestNumber_;
    growing_ = isPresent ? period : nullptr;
    showPeriod_ = [this, period, name = QFileInfo(path).fileName()] {
        // The zone may have been chosen anew since.
        period->records.setUtcOffset(times_.offset());
        Q_EMIT recordsWanted(period, name, period == growing_);
    };
    // The only way to the table that grows: a click that was meant for the host's notice above must not
    // close it.
    notices_->tell(SavedNotice, [count = period->records.size(), show = showPeriod_] {
        return Notice{
            Mark::Right, tr("rec_081").arg(QLocale().toString(count)), {{tr("rec_080"), show}}, false};
    });
}

void VLK_Widget_Tmi_View::showPart(const vlk::PartOfPeriod& part)
{
    const auto text = [part, isDetached = isDetached_] {
        const QLocale locale;
        QString held = tr("tmiw_186")
                           .arg(locale.toString(static_cast<quint64>(part.records)),
                                locale.toString(static_cast<quint64>(part.all)), part.until,
                                nameForBar(QFileInfo(part.path).fileName()));
        if (!part.earlier.isEmpty())
            held += QLatin1Char(' ') + tr("tmiw_294").arg(QFileInfo(part.earlier).fileName());
        return isDetached ? tr("tmiw_266") + QLatin1Char(' ') + held : held;
    };
    // Some are missing in front of its last record already.
    growing_.reset();
    notices_->end(SavedNotice);
    notices_->tell(SavedInPartNotice, [text, show = showPeriod_] {
        return Notice{Mark::Advice, text(), {{tr("rec_080"), show}}};
    });
}

void VLK_Widget_Tmi_View::tellNoServer(bool isNone)
{
    if (isNone)
        notices_->tell(NoServerNotice, [] { return Notice{Mark::Advice, tr("tmiw_267"), {}}; });
    else
        notices_->end(NoServerNotice);
}

void VLK_Widget_Tmi_View::tellNotTaken(const QString& news)
{
    if (news.isEmpty())
        notices_->end(NotTakenNotice);
    else
        notices_->tell(NotTakenNotice, [news] { return Notice{Mark::Invalid, news, {}}; });
}

void VLK_Widget_Tmi_View::deviceDisconnected()
{
    const QScopedValueRollback going(isDetached_, true);
    close();
    // The next tracker may be another one. What was saved in part is told until it is closed.
    notices_->end(SavedNotice);
}

void VLK_Widget_Tmi_View::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || !save_.isRunning())
        QDialog::keyPressEvent(event);
    else if (save_.fetched().records == 0 || save_.isCancelled())
        cancelSave();
    else if (!event->isAutoRepeat() && agreesToEndSave())
        save_.endNow();
}

// The save goes on meanwhile; a question that has come too late goes by itself.
bool VLK_Widget_Tmi_View::agreesToEndSave()
{
    const auto [records, all] = save_.fetched();
    const QLocale locale;
    QMessageBox box(
        QMessageBox::Question, tr("tmiw_001"),
        tr("tmiw_310")
            .arg(locale.toString(static_cast<quint64>(records)), locale.toString(static_cast<quint64>(all))),
        QMessageBox::NoButton, this);
    box.setObjectName(QStringLiteral("messageBox_EndSave"));
    const auto* const end = box.addButton(tr("tmiw_311"), QMessageBox::AcceptRole);
    auto* const goOn = box.addButton(tr("tmiw_312"), QMessageBox::RejectRole);
    box.setDefaultButton(goOn);
    box.setEscapeButton(goOn);
    connect(&save_, &vlk::SaveSequence::runningChanged, &box, &QDialog::reject);
    box.exec();
    return box.clickedButton() == end && save_.isRunning();
}

// The next record may be long in coming.
void VLK_Widget_Tmi_View::cancelSave()
{
    save_.cancel();
    if (save_.isCancelled())
        notices_->tell(CancelledNotice, [this] {
            return Notice{Mark::Advice, tr("tmiw_302"), {{tr("tmiw_303"), [this] { save_.endNow(); }}}};
        });
}

void VLK_Widget_Tmi_View::stopRequests()
{
    ui_->checkBox_Get_Auto_TMI->setChecked(false);
    automatic_.stop();
    clearing_.forget();
    save_.stop();
    // A button that is held down would go on pressing itself.
    for (QPushButton* walking : {ui_->pushButton_Get_Prev, ui_->pushButton_Get_Next})
        walking->setDown(false);
}

void VLK_Widget_Tmi_View::closeEvent(QCloseEvent* event)
{
    // By the user's hand; whatever closes it otherwise has no question to put.
    if (event->spontaneous() && save_.fetched().records > 0 && !save_.isCancelled() && !agreesToEndSave()) {
        event->ignore();
        return;
    }
    times_.rememberChosen();
    stopRequests();
    QDialog::closeEvent(event);
}

vlk::RunningWork VLK_Widget_Tmi_View::runningWork() const
{
    return {.saving = save_.isRunning() ? 1U : 0U,
            .automatic = ui_->checkBox_Get_Auto_TMI->isChecked() ? 1U : 0U,
            .clearing = clearing_.awaited(),
            .cancelled = save_.isCancelled() ? 1U : 0U};
}

std::optional<quint32> VLK_Widget_Tmi_View::showRecord(const QByteArray& record)
{
    if (save_.saving()) {
        save_.take(record);
        return {};
    }
    const std::optional<quint32> number = pages_.showRecord(record);
    if (!number)
        return {};
    age_.answered();
    highestNumber_ = std::max(highestNumber_, *number);
    for (const auto& [button, leads] : {std::pair(ui_->pushButton_Get_Next, *number < highestNumber_),
                                        {ui_->pushButton_Get_Prev, *number != 0}}) {
        // A key that is pressed once more must not walk back, nor get into the date.
        if (!leads && focusWidget() == button)
            setFocus();
        button->setEnabled(leads);
    }
    return number;
}

void VLK_Widget_Tmi_View::takeRecord(const QByteArray& record)
{
    if (const auto number = showRecord(record))
        Q_EMIT recordShown(record, *number);
}

void VLK_Widget_Tmi_View::takePresent(const QByteArray& state)
{
    if (const auto number = showRecord(state))
        Q_EMIT presentShown(state, *number);
}

void VLK_Widget_Tmi_View::takeClearedRecord(const QByteArray& record)
{
    // Not one of the records that a running save has asked for.
    if (!save_.isRunning())
        takePresent(record);
    clearing_.answered();
}

void VLK_Widget_Tmi_View::takeKeyAnswer(const QByteArray& answer)
{
    pages_.showKeyAnswer(answer);
    age_.answered();
}

void VLK_Widget_Tmi_View::takeLiveKey(quint64 key)
{
    if (!vlkDevice || vlkDevice->mode() != kFirstProductionMode)
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
    equipment_.takeAnalog(record);
}

void VLK_Widget_Tmi_View::takeTachographAnswer(const QByteArray& answer)
{
    equipment_.takeTachographAnswer(answer);
}

void VLK_Widget_Tmi_View::takeTachographFetched(bool done)
{
    equipment_.takeTachographFetched(done);
}

// Observation can be turned into guard, and guard into observation.
void VLK_Widget_Tmi_View::setGuardButtons(int operatingMode)
{
    ui_->pushButton_Set_Guard->setEnabled(operatingMode == 0);
    ui_->pushButton_Set_NoGuard->setEnabled(operatingMode == 1);
}

void VLK_Widget_Tmi_View::retranslate()
{
    setLocale(QLocale());
    tellNotTaken({});
    setControlTexts(*ui_);
    setToolTips(*ui_, blockedBy_);
    ui_->pushButton_Close->setToolTip(save_.isRunning() ? tr("tmiw_313") : QString());
    pages_.setCommandsBlocked(blockedBy_);
    slot_valueChanged_horizontalSlider_Auto_Tmi(ui_->horizontalSlider_Auto_Tmi->value());
    setTitle();

    notices_->retranslate();
    save_.retranslate();
    pages_.retranslate();
    age_.retranslate();
    times_.retranslate();
    equipment_.retranslate();
}

void VLK_Widget_Tmi_View::closeWindows()
{
    close();
    equipment_.closeFuelSensors();
}
