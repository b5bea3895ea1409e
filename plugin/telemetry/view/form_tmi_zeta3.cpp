#include "telemetry/view/form_tmi_zeta3.h"
#include "base/translated.h"

#include "link/requests.h"
#include "telemetry/view/form_tmi_f3_tab_accel.h"
#include "telemetry/view/form_tmi_f3_tab_fuel.h"
#include "telemetry/view/form_tmi_f3_tab_main.h"
#include "telemetry/view/form_tmi_f3_tab_sensors.h"
#include "windows/input_guard.h"
#include "windows/vlk_menuaction.h"
#include "windows/vlk_tabwidget.h"

#include <QMenu>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QVBoxLayout>

#include <utility>

using namespace vlk;

namespace {

constexpr int kInputCount = 4;
constexpr int kOutputCount = 3;
constexpr quint64 kFourthOutput = 1U << 3;

// What trackers of this model do not have.
using Main = VLK_Form_Tmi_F3_Tab_Main;
constexpr Main::Part kAbsent[] = {Main::Evacuation,    Main::WiFi,     Main::Iridium,
                                  Main::OpenSensor,    Main::Motochas, Main::MotochasLoad,
                                  Main::ComplexEvents, Main::NaviExt,  Main::Geo};

// Tells its tab how much room there is; that for the scroll bar is always kept, so that its coming and going
// does not rearrange the tab.
class TabArea : public QScrollArea
{
public:
    explicit TabArea(VLK_Form_Tmi_F3_Tab* tab) : tab_(tab)
    {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setWidget(tab);
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        tab_->arrange(width() - verticalScrollBar()->sizeHint().width());
        QScrollArea::resizeEvent(event);
    }

private:
    VLK_Form_Tmi_F3_Tab* tab_;
};

} // namespace

VLK_Form_TMI_Zeta3::VLK_Form_TMI_Zeta3(vlk::EventPanel* panel, QWidget* parent)
    : QWidget(parent), record_(panel), tabWidget_(new VLK_TabWidget(this)), menu_(new QMenu(this)),
      main_(new VLK_Form_Tmi_F3_Tab_Main), sensors_(new VLK_Form_Tmi_F3_Tab_Sensors)
{
    tabWidget_->setObjectName(QStringLiteral("tabWidget"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabWidget_);

    addTab(main_);
    addTab(sensors_);
    addTab(new VLK_Form_Tmi_F3_Tab_Accel);
    addTab(new VLK_Form_Tmi_F3_Tab_Fuel);
    hideAbsentParts();
    retranslate();

    connect(menu_, &QMenu::triggered, this, &VLK_Form_TMI_Zeta3::slot_triggered_Menu);
    connect(main_, &Main::signal_Set_Run, this, &VLK_Form_TMI_Zeta3::slot_Set_Run);
    connect(sensors_, &VLK_Form_Tmi_F3_Tab_Sensors::signal_SetOut_On, this,
            &VLK_Form_TMI_Zeta3::slot_SetOut_On);
    connect(sensors_, &VLK_Form_Tmi_F3_Tab_Sensors::signal_SetOut_Off, this,
            &VLK_Form_TMI_Zeta3::slot_SetOut_Off);
}

void VLK_Form_TMI_Zeta3::addTab(VLK_Form_Tmi_F3_Tab* tab)
{
    auto* area = new TabArea(tab);
    const int index = tabWidget_->addTab(area, {});
    menu_->addAction(new VLK_MenuAction({}, index, menu_));
    tabs_.push_back({tab, area});
    guardInputs(tab);
}

void VLK_Form_TMI_Zeta3::hideAbsentParts()
{
    for (const Main::Part part : kAbsent)
        main_->setPartVisible(part, false);
    sensors_->setInputCount(kInputCount);
    sensors_->setOutputCount(kOutputCount);
}

void VLK_Form_TMI_Zeta3::setTitles(const TelemetryTitles& titles)
{
    sensors_->setTitles(titles);
}

void VLK_Form_TMI_Zeta3::setCapabilityMask(quint64 mask)
{
    sensors_->setOutputCount((mask & kFourthOutput) != 0 ? kOutputCount + 1 : kOutputCount);
}

void VLK_Form_TMI_Zeta3::setCommandsBlocked(const char* reasonKey)
{
    for (QWidget* commands : {main_->commands(), sensors_->commands()}) {
        commands->setEnabled(!reasonKey);
        commands->setToolTip(translated(reasonKey));
    }
}

void VLK_Form_TMI_Zeta3::setLive(bool live)
{
    main_->commands()->setVisible(live);
    sensors_->commands()->setVisible(live);
}

void VLK_Form_TMI_Zeta3::fillTabs(const TmiPage_Zeta3& page)
{
    for (const Tab& tab : tabs_)
        tab.form->fill(page);
}

void VLK_Form_TMI_Zeta3::fill(const TmiPage_Zeta3& page)
{
    fillTabs(page);
    if (!std::exchange(isOrdered_, true))
        orderTabs();
}

void VLK_Form_TMI_Zeta3::orderTabs()
{
    int place = 0;
    for (const bool hasValues : {true, false}) {
        for (const Tab& tab : tabs_) {
            if (tab.form->hasValues() == hasValues)
                tabWidget_->tabBar()->moveTab(tabWidget_->indexOf(tab.area), place++);
        }
    }
}

void VLK_Form_TMI_Zeta3::setUtcOffset(int seconds)
{
    if (record_.setUtcOffset(seconds))
        fillTabs(*record_.page());
}

void VLK_Form_TMI_Zeta3::retranslate()
{
    for (int i = 0; i < tabWidget_->count(); ++i) {
        const Tab& tab = tabs_[i];
        tab.form->retranslate();
        tabWidget_->setTabText(tabWidget_->indexOf(tab.area), tab.form->title());
        menu_->actions().at(i)->setText(tab.form->title());
    }
    if (record_.page())
        fillTabs(*record_.page());
}

void VLK_Form_TMI_Zeta3::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    menu_->popup(event->globalPos());
}

void VLK_Form_TMI_Zeta3::slot_SetOut_On(int output)
{
    requests::outputOn(output);
}

void VLK_Form_TMI_Zeta3::slot_SetOut_Off(int output)
{
    requests::outputOff(output);
}

void VLK_Form_TMI_Zeta3::slot_Set_Run(float kilometres)
{
    requests::setMileage(kilometres);
}

void VLK_Form_TMI_Zeta3::slot_triggered_Menu(QAction* action)
{
    if (const auto* entry = qobject_cast<VLK_MenuAction*>(action))
        tabWidget_->setCurrentWidget(tabs_[entry->tabIndex()].area);
}
