#include "dialog/widget_config_full.h"

#include "ui_VLK_Designer_Widget_Config_Full.h"

#include "dialog/config_pages.h"
#include "dialog/configuration_walk.h"
#include "dialog/file_names.h"
#include "dialog/held_button.h"
#include "dialog/tab_navigation.h"
#include "fuel/question.h"
#include "link/device.h"
#include "link/requests.h"
#include "windows/disabled_reason.h"
#include "windows/input_guard.h"
#include "windows/page_look.h"
#include "windows/page_style.h"
#include "windows/vlk_menuaction.h"
#include "windows/whole_tabs.h"
#include "xml/xml_document.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>

#include <utility>

VLK_Widget_Config_Full::VLK_Widget_Config_Full(QWidget* parent)
    : PageServices(parent), ui_(std::make_unique<Ui::VLK_Designer_Widget_Config_Full>())
{
    ui_->setupUi(this);
    navigation_ = new vlk::TabNavigation(ui_->tabWidget, {ui_->pushButton_First, ui_->pushButton_PrevScreen,
                                                          ui_->pushButton_Goto, ui_->pushButton_NextScreen,
                                                          ui_->pushButton_Last});
    new vlk::WholeTabs(ui_->tabWidget);
    vlk::tellWhyDisabled(ui_->pushButton_LoadToDevice, "cfgt6_450");
    connectButtons();
    buildTabs();
    slot_currentChanged_TabWidget(navigation_->current());
    nameButtons();
    setDefaults();
}

VLK_Widget_Config_Full::~VLK_Widget_Config_Full() = default;

void VLK_Widget_Config_Full::connectButtons()
{
    using Slot = void (VLK_Widget_Config_Full::*)();
    const std::pair<QPushButton*, Slot> buttons[] = {
        {ui_->pushButton_SaveToFile, &VLK_Widget_Config_Full::slot_pressed_Btn_SaveToFile},
        {ui_->pushButton_LoadToDevice, &VLK_Widget_Config_Full::slot_pressed_Btn_LoadToDevice},
        {ui_->pushButton_Help, &VLK_Widget_Config_Full::slot_pressed_Btn_Help},
        {ui_->pushButton_Close, &VLK_Widget_Config_Full::slot_pressed_Btn_Close},
        {ui_->pushButton_ConfigLight, &VLK_Widget_Config_Full::slot_pressed_Btn_ConfigLight},
        {ui_->pushButton_First, &VLK_Widget_Config_Full::slot_pressed_Btn_First},
        {ui_->pushButton_Last, &VLK_Widget_Config_Full::slot_pressed_Btn_Last},
        {ui_->pushButton_PrevScreen, &VLK_Widget_Config_Full::slot_pressed_Btn_PrevScreen},
        {ui_->pushButton_NextScreen, &VLK_Widget_Config_Full::slot_pressed_Btn_NextScreen},
        {ui_->pushButton_Goto, &VLK_Widget_Config_Full::slot_pressed_Btn_Goto},
    };
    for (const auto& [button, slot] : buttons) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
    }
    connect(ui_->tabWidget, &QTabWidget::currentChanged, this,
            &VLK_Widget_Config_Full::slot_currentChanged_TabWidget);
    connect(navigation_->menu(), &QMenu::triggered, this, &VLK_Widget_Config_Full::slot_triggered_Menu);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            &VLK_Widget_Config_Full::slot_pressed_Btn_Help);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, ui_->pushButton_SaveToFile,
            &QPushButton::click);
    for (const auto& [keys, button] :
         {std::pair("Ctrl+PgUp", ui_->pushButton_PrevScreen), {"Ctrl+PgDown", ui_->pushButton_NextScreen}})
        connect(new QShortcut(QKeySequence(QLatin1String(keys)), this), &QShortcut::activated, button,
                &QPushButton::click);
    connect(answers_.monitor().timer(), &QTimer::timeout, this,
            &VLK_Widget_Config_Full::slot_timeOut_TimerAnalog);
}

void VLK_Widget_Config_Full::buildTabs()
{
    pages_->create([this](auto& page) {
        vlk::guardInputs(&page);
        vlk::dressPage(&page);
        page.setTabIndex(navigation_->add(&page, page.title()));
    });
    pages_->forEach([this]<vlk::LimitsTheRecord Page>(Page& page) {
        connect(&page, &Page::signal_Excess_Size, this, &VLK_Widget_Config_Full::slot_Excess_Size);
    });
}

bool VLK_Widget_Config_Full::saveFile(const QString& path)
{
    vlk::XmlDocument document(QString(), QStringLiteral("DEVICE"));
    saveToXml(document.root());
    pages_->forEach([](auto& page) { page.settings().logNews(); });
    return document.saveAs(path);
}

void VLK_Widget_Config_Full::loadFromXml(CXmlSection* root, char* ussdBuffer)
{
    vlk::loadPages(*pages_, root, ussdBuffer);
}

void VLK_Widget_Config_Full::saveToXml(CXmlSection* root)
{
    vlk::savePages(*pages_, root);
}

void VLK_Widget_Config_Full::addReview(QWidget* bar, QWidget* panel)
{
    ui_->verticalLayout_Tabs->insertWidget(0, bar);
    ui_->verticalLayout_Tabs->addWidget(panel);
}

void VLK_Widget_Config_Full::addNotice(QWidget* bar)
{
    ui_->verticalLayout_Tabs->insertWidget(0, bar);
}

void VLK_Widget_Config_Full::setDefaults()
{
    slot_Excess_Size(false);
    answers_.monitor().end();
    pages_->forEach([](auto& page) { page.setDefaults(); });
}

void VLK_Widget_Config_Full::retranslate()
{
    pages_->forEach([this](auto& page) {
        page.retranslate();
        navigation_->setTitle(page.tabIndex(), page.title());
    });
    nameButtons();
}

void VLK_Widget_Config_Full::nameButtons()
{
    navigation_->retranslate();
    ui_->pushButton_SaveToFile->setText(tr("wrd_047"));
    ui_->pushButton_LoadToDevice->setText(tr("wrd_048"));
    ui_->pushButton_ConfigLight->setText(tr("cfgwnd_001"));
    ui_->pushButton_Close->setText(tr("wrd_054"));
    ui_->pushButton_Help->setText(tr("wrd_027"));
}

void VLK_Widget_Config_Full::deviceConnected()
{
    connected_ = true;
    answers_.monitor().setConnected(true);
    ui_->pushButton_LoadToDevice->setEnabled(true);
    pages_->forEach([](vlk::KnowsTheTracker auto& page) { page.deviceConnected(); });
}

void VLK_Widget_Config_Full::deviceDisconnected()
{
    connected_ = false;
    answers_.monitor().setConnected(false);
    ui_->pushButton_LoadToDevice->setEnabled(false);
    pages_->forEach([](vlk::KnowsTheTracker auto& page) { page.deviceDisconnected(); });
}

void VLK_Widget_Config_Full::focusFirstField()
{
    navigation_->focusFirstField();
}

void VLK_Widget_Config_Full::slot_timeOut_TimerAnalog()
{
    answers_.monitor().timeout();
}

void VLK_Widget_Config_Full::slot_finished(int /*result*/)
{
    slot_pressed_Btn_Close();
}

void VLK_Widget_Config_Full::slot_currentChanged_TabWidget(int index)
{
    navigation_->update(index);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_SaveToFile()
{
    QString name;
    pages_->forEach([&](const VLK_Form_Config_Transfer& page) { name = page.objectName(); });
    const QString path = vlk::askConfigurationPath(this, name);
    if (path.isEmpty())
        return;
    vlk::HeldButton button(ui_->pushButton_SaveToFile);
    const bool isSaved = saveFile(path);
    button.release();
    if (isSaved)
        Q_EMIT saved(path);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_LoadToDevice()
{
    if (!vlkDevice)
        return;
    const QString path = vlk::configurationPathToWrite(QStringLiteral("R7106"));
    vlk::HeldButton button(ui_->pushButton_LoadToDevice);
    const bool isSaved = saveFile(path);
    button.release(connected_);
    if (isSaved)
        Q_EMIT writeRequested(path);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_Help()
{
    const int index = navigation_->current();
    vlk::requests::showHelp(index >= 0 ? QStringLiteral("r-7106p%1.html").arg(index + 1)
                                       : QStringLiteral("r-7106conf.html"));
}

void VLK_Widget_Config_Full::slot_pressed_Btn_Close()
{
    Q_EMIT closeRequested();
}

void VLK_Widget_Config_Full::slot_pressed_Btn_ConfigLight()
{
    const QString question = QStringLiteral("%1<br><br>").arg(tr("cfgwnd_005")) + tr("cfgwnd_006");
    if (vlk::agrees(this, question, "wrd_002"))
        Q_EMIT quickRequested();
}

void VLK_Widget_Config_Full::slot_pressed_Btn_First()
{
    navigation_->goToFirst();
}

void VLK_Widget_Config_Full::slot_pressed_Btn_Last()
{
    navigation_->goToLast();
}

void VLK_Widget_Config_Full::slot_pressed_Btn_PrevScreen()
{
    navigation_->goToPrevious();
}

void VLK_Widget_Config_Full::slot_pressed_Btn_NextScreen()
{
    navigation_->goToNext();
}

void VLK_Widget_Config_Full::slot_pressed_Btn_Goto() {}

void VLK_Widget_Config_Full::slot_triggered_Menu(QAction* action)
{
    if (const auto* entry = qobject_cast<VLK_MenuAction*>(action))
        navigation_->goTo(entry->tabIndex());
}

void VLK_Widget_Config_Full::slot_Excess_Size(bool excess)
{
    ui_->frame_Excess->setEnabled(!excess);
    if (excess)
        navigation_->lockAllBut(pages_->tabOf([](vlk::LimitsTheRecord auto&) {}));
    else
        navigation_->unlock();
}

void VLK_Widget_Config_Full::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton)
        navigation_->menu()->popup(event->globalPos());
    PageServices::mousePressEvent(event);
}

void VLK_Widget_Config_Full::closeEvent(QCloseEvent* event)
{
    slot_pressed_Btn_Close();
    event->accept();
}
