#include "fuel/form_tmi_fuel_sensors.h"

#include "ui_VLK_Designer_Form_TMI_Fuel_Sensors.h"

#include "fuel/button_row.h"
#include "fuel/form_fuel_sensor.h"
#include "fuel/question.h"
#include "link/device.h"
#include "link/requests.h"
#include "typing/area_keys.h"
#include "typing/line_icon.h"
#include "typing/notice_bar.h"
#include "windows/fit_to_screen.h"
#include "windows/vlk_tabwidget.h"

#include <QShortcut>
#include <QStringList>
#include <QtEndian>

#include <chrono>

using namespace vlk;

namespace {

constexpr auto kPause = std::chrono::milliseconds(2000);
constexpr auto kDraftsAfter = std::chrono::milliseconds(500);

QString formatted(const char* format, const char* key, const QString& sensor = {})
{
    QString text = QLatin1String(format);
    text.replace(QLatin1String("%2"), sensor);
    return text.replace(QLatin1String("%1"), fuelWord(key));
}

int groupOf(int sensor)
{
    return fuelGroupOf(kFuelSensors[sensor].name[0]);
}

} // namespace

VLK_Form_TMI_Fuel_Sensors::VLK_Form_TMI_Fuel_Sensors(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      ui_(std::make_unique<Ui::VLK_Designer_Form_TMI_Fuel_Sensors>()), bar_(new NoticeBar(this))
{
    ui_->setupUi(this);
    ui_->verticalLayout_Window->insertWidget(0, bar_);
    bar_->keepPlace();
    connect(bar_, &NoticeBar::closed, this, &VLK_Form_TMI_Fuel_Sensors::forgetNotice);
    connect(bar_, &NoticeBar::coverChanged, this, &VLK_Form_TMI_Fuel_Sensors::openSave);
    ui_->pushButton_Help->hide();
    buildTabs();

    using Window = VLK_Form_TMI_Fuel_Sensors;
    const std::pair<QPushButton*, void (Window::*)()> buttons[] = {
        {ui_->pushButton_Load, &Window::slot_pressed_Btn_Load},
        {ui_->pushButton_Save_Xml, &Window::slot_pressed_Btn_Save_Xml},
        {ui_->pushButton_Save_Excel, &Window::slot_pressed_Btn_Save_Excel},
        {ui_->pushButton_Print, &Window::slot_pressed_Btn_Print},
        {ui_->pushButton_Pdf, &Window::slot_pressed_Btn_Pdf},
        {ui_->pushButton_Help, &Window::slot_pressed_Btn_Help},
        {ui_->pushButton_Exit, &Window::slot_pressed_Btn_Exit},
    };
    for (const auto& [button, slot] : buttons) {
        // Enter in a field must not press whatever button is near.
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
    }
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            &Window::slot_pressed_Btn_Help);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, [this] {
        const auto* form = currentForm();
        if (form && (form->hasRows() || form->isEdited()))
            slot_pressed_Btn_Save_Xml();
    });
    connect(this, &QDialog::finished, this, &Window::slot_finished);
    timer_.setSingleShot(true);
    timer_.setInterval(kPause);
    connect(&timer_, &QTimer::timeout, this, &Window::slot_timeout);
    old_.setSingleShot(true);
    old_.setInterval(2 * kPause);
    connect(&old_, &QTimer::timeout, this, &Window::clearLiveValues);
    new AreaKeys(this, [this]() -> std::vector<QWidgetList> {
        return {{ui_->tabWidget, ui_->lineEdit_Title},
                {ui_->pushButton_Load, ui_->pushButton_Save_Xml, ui_->pushButton_Save_Excel,
                 ui_->pushButton_Print, ui_->pushButton_Pdf, ui_->pushButton_Exit}};
    });
    drafts_.setSingleShot(true);
    drafts_.setInterval(kDraftsAfter);
    connect(&drafts_, &QTimer::timeout, this, &Window::keepDrafts);
    resize(900, 540);
    keepOnScreen(this);
    retranslate();
}

VLK_Form_TMI_Fuel_Sensors::~VLK_Form_TMI_Fuel_Sensors() = default;

void VLK_Form_TMI_Fuel_Sensors::buildTabs()
{
    const QIcon icon = lineIcon(LineIcon::Plus);
    for (int i = 0; i < kFuelSensorCount; ++i) {
        if (!kFuelSensors[i].fitted)
            continue;
        const QString name = QLatin1String(kFuelSensors[i].name);
        auto* form = new VLK_Form_Fuel_Sensor(kFuelSensors[i].kind, name, icon, this);
        form->setObjectName(name);
        forms_[i] = form;
        connect(form, &VLK_Form_Fuel_Sensor::signal_NeedSaved, this,
                &VLK_Form_TMI_Fuel_Sensors::slot_NeedSaved);
        connect(form, &VLK_Form_Fuel_Sensor::signal_Edited, this, &VLK_Form_TMI_Fuel_Sensors::tellOfTable);
        connect(form, &VLK_Form_Fuel_Sensor::signal_Changed, this, [this, i] { noteChange(i); });
        const int number = groupOf(i);
        QTabWidget* tabs = ui_->tabWidget;
        if (kFuelGroups[number].title) {
            VLK_TabWidget*& group = groups_[number];
            if (!group) {
                group = new VLK_TabWidget(this);
                group->setTabIndex(ui_->tabWidget->addTab(group, QString()));
                connect(group, &QTabWidget::currentChanged, this,
                        &VLK_Form_TMI_Fuel_Sensors::slot_currentChanged_FuelType);
            }
            tabs = group;
        }
        form->setTabIndex(tabs->addTab(form, QString()));
    }
    connect(ui_->tabWidget, &QTabWidget::currentChanged, this,
            &VLK_Form_TMI_Fuel_Sensors::slot_currentChanged_FuelType);
}

void VLK_Form_TMI_Fuel_Sensors::retranslate()
{
    setWindowTitle(tr("tmiw_119"));
    ui_->label_Title->setText(tr("tmiw_120"));
    ui_->pushButton_Load->setText(tr("wrd_023"));
    ui_->pushButton_Save_Xml->setText(QStringLiteral("%1 XML").arg(tr("wrd_042")));
    ui_->pushButton_Save_Excel->setText(QStringLiteral("%1 Excel").arg(tr("wrd_042")));
    ui_->pushButton_Print->setText(tr("wrd_030"));
    ui_->pushButton_Pdf->setToolTip(tr("cfgt6_413"));
    ui_->pushButton_Pdf->setAccessibleName(tr("cfgt6_413"));
    ui_->pushButton_Exit->setText(tr("wrd_054"));
    ui_->pushButton_Help->setText(tr("wrd_027"));
    keepCaptions(ui_->horizontalLayout_Buttons);
    bar_->retranslate();
    tellOfTable();
    if (isVisible())
        offerKeptTables();
    for (int i = 0; i < kFuelGroupCount; ++i) {
        if (groups_[i])
            ui_->tabWidget->setTabText(groups_[i]->tabIndex(),
                                       formatted(kFuelGroups[i].format, kFuelGroups[i].title));
    }
    forEachForm([this](VLK_Form_Fuel_Sensor& form, int sensor) {
        form.retranslate();
        const FuelGroup& group = kFuelGroups[groupOf(sensor)];
        tabsOf(sensor)->setTabText(form.tabIndex(), formatted(group.tabFormat, group.tabTitle, form.name()));
    });
}

void VLK_Form_TMI_Fuel_Sensors::openWindow(const QString& title)
{
    ui_->lineEdit_Title->setText(title);
    tracker_ = vlkDevice ? vlkDevice->trackerId2() : QString();
    forEachForm([](VLK_Form_Fuel_Sensor& form, int) { form.clearAll(); });
    otherFile_ = {};
    cutIn_ = {};
    clearLiveValues();
    show();
    raise();
    activateWindow();
    if (auto* form = currentForm())
        form->setFocus();
    requests::analog();
    unsavedCount_ = 0;
    canKeep_ = true;
    offerKeptTables();
    slot_currentChanged_FuelType(ui_->tabWidget->currentIndex());
}

void VLK_Form_TMI_Fuel_Sensors::onLiveRecord(const uchar* record)
{
    if (!record || isHidden())
        return;
    forEachForm([record](VLK_Form_Fuel_Sensor& form, int sensor) {
        form.setLiveValue(qFromLittleEndian<quint16>(record + kFuelSensors[sensor].liveAt));
    });
    timer_.start();
    old_.start();
}

void VLK_Form_TMI_Fuel_Sensors::clearLiveValues()
{
    forEachForm([](VLK_Form_Fuel_Sensor& form, int) { form.clearLiveValue(); });
}

void VLK_Form_TMI_Fuel_Sensors::slot_timeout()
{
    timer_.stop();
    if (!isHidden())
        requests::analog();
}

void VLK_Form_TMI_Fuel_Sensors::linkFound()
{
    tellNoLink(false);
    if (!isHidden())
        requests::analog();
}

void VLK_Form_TMI_Fuel_Sensors::linkLost()
{
    if (isHidden())
        return;
    if (!hasRows())
        close();
    timer_.stop();
    clearLiveValues();
    tellNoLink(isVisible());
}

bool VLK_Form_TMI_Fuel_Sensors::hasRows() const
{
    bool found = false;
    forEachForm([&found](const VLK_Form_Fuel_Sensor& form, int) { found = found || form.hasRows(); });
    return found;
}

QTabWidget* VLK_Form_TMI_Fuel_Sensors::tabsOf(int sensor) const
{
    QTabWidget* group = groups_[groupOf(sensor)];
    return group ? group : ui_->tabWidget;
}

VLK_Form_Fuel_Sensor* VLK_Form_TMI_Fuel_Sensors::currentForm() const
{
    const int sensor = currentSensor();
    return sensor < 0 ? nullptr : forms_[sensor];
}

int VLK_Form_TMI_Fuel_Sensors::currentSensor() const
{
    const int shown = ui_->tabWidget->currentIndex();
    int found = -1;
    forEachForm([&](VLK_Form_Fuel_Sensor& form, int sensor) {
        const VLK_TabWidget* group = groups_[groupOf(sensor)];
        const bool current = group ? group->tabIndex() == shown && group->currentIndex() == form.tabIndex()
                                   : form.tabIndex() == shown;
        if (current)
            found = sensor;
    });
    return found;
}

void VLK_Form_TMI_Fuel_Sensors::select(const QString& type)
{
    if (type.isEmpty())
        return;
    const int number = fuelGroupOf(type[0].toLatin1());
    if (number < 0)
        return;
    if (groups_[number])
        ui_->tabWidget->setCurrentIndex(groups_[number]->tabIndex());
    forEachForm([&](VLK_Form_Fuel_Sensor& form, int sensor) {
        if (groupOf(sensor) == number && form.name() == type)
            tabsOf(sensor)->setCurrentIndex(form.tabIndex());
    });
}

void VLK_Form_TMI_Fuel_Sensors::slot_currentChanged_FuelType(int /*index*/)
{
    endNews();
    tellOfTable();
}

void VLK_Form_TMI_Fuel_Sensors::slot_NeedSaved(bool on)
{
    unsavedCount_ += on ? 1 : -1;
    tellOfTable();
    if (on)
        ui_->pushButton_Save_Xml->setEnabled(true);
}

void VLK_Form_TMI_Fuel_Sensors::markTabs()
{
    const QIcon mark = tabMark(Mark::Changed, palette());
    const QIcon none = tabMark({}, palette());
    const auto show = [&](QTabWidget* tabs, int index, bool isMarked) {
        tabs->setIconSize({kMarkSize, kMarkSize});
        tabs->setTabIcon(index, isMarked ? mark : none);
        tabs->setTabToolTip(index, isMarked ? tr("tmiw_262") : QString());
    };
    std::array<bool, kFuelGroupCount> isInGroup{};
    forEachForm([&](const VLK_Form_Fuel_Sensor& form, int sensor) {
        isInGroup[groupOf(sensor)] |= isUnsaved(form, sensor);
        show(tabsOf(sensor), form.tabIndex(), isUnsaved(form, sensor));
    });
    for (int i = 0; i < kFuelGroupCount; ++i) {
        if (groups_[i])
            show(ui_->tabWidget, groups_[i]->tabIndex(), isInGroup[i]);
    }
}

// The marks follow the colours of the window.
void VLK_Form_TMI_Fuel_Sensors::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        markTabs();
}

void VLK_Form_TMI_Fuel_Sensors::slot_pressed_Btn_Help()
{
    requests::showHelp(helpPage());
}

void VLK_Form_TMI_Fuel_Sensors::slot_pressed_Btn_Exit()
{
    close();
}

// Every way of closing comes by here.
void VLK_Form_TMI_Fuel_Sensors::reject()
{
    const QString question = QStringLiteral("%1!<br>%2 %3<br>%4")
                                 .arg(tr("wrd_005"), tr("tmiw_130"), tr("tmiw_131"), tr("tmiw_132"));
    const auto mayLose = [&](bool areKept) {
        QStringList hint;
        if (areKept)
            hint << tr("cfgt6_480");
        // What is typed alone is not kept.
        forEachForm([&hint](const VLK_Form_Fuel_Sensor& form, int) { hint << form.notAdded(); });
        hint.removeAll(QString());
        return agrees(this, question, "wrd_031", hint.join(QLatin1Char('\n')));
    };
    if ((!hasUnsaved() || mayLose(canKeep_)) && (keepUnsaved() || mayLose(false)))
        QDialog::reject();
}

void VLK_Form_TMI_Fuel_Sensors::slot_finished(int /*result*/)
{
    drafts_.stop();
    changed_ = {};
    forEachForm([this](const VLK_Form_Fuel_Sensor& form, int sensor) {
        isUnsaved(form, sensor) ? kept_.release(form) : kept_.end(form);
    });
    timer_.stop();
}
