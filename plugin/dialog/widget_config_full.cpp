#include "dialog/widget_config_full.h"

#include "ui_VLK_Designer_Widget_Config_Full.h"

#include "base/clock.h"
#include "dialog/file_names.h"
#include "dialog/widget_config.h"
#include "link/device.h"
#include "link/requests.h"
#include "pages/form_config_transfer.h"
#include "windows/input_guard.h"
#include "windows/vlk_menuaction.h"
#include "xml/xml_document.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScrollArea>

#include <algorithm>

VLK_Widget_Config_Full::VLK_Widget_Config_Full(QWidget* parent)
    : VLK_Wnd_Config_Full(parent), ui_(std::make_unique<Ui::VLK_Designer_Widget_Config_Full>()),
      monitor_(
          {[this] { return liveTab(); }, [this] { return isActiveWindow(); },
           [this] {
               pages_.with<VLK_Form_Config_Accel>([](auto& page) { page.stopAuto(); });
               pages_.with<VLK_Form_Config_Lines_In>([](auto& page) { page.stopAuto(); });
           },
           [this] { pages_.with<VLK_Form_Config_Accel>([](auto& page) { page.clearPresentValues(); }); }}),
      tabMenu_(new QMenu(this))
{
    vlkConfigFull = this;
    ui_->setupUi(this);
    ui_->pushButton_First->hide();
    ui_->pushButton_Last->hide();
    ui_->pushButton_Goto->setMenu(tabMenu_);
    connectButtons();
    buildTabs();
    slot_currentChanged_TabWidget(ui_->tabWidget->currentIndex());
    retranslate();
    setDefaults();
}

VLK_Widget_Config_Full::~VLK_Widget_Config_Full()
{
    if (vlkConfigFull == this)
        vlkConfigFull = nullptr;
}

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
    connect(tabMenu_, &QMenu::triggered, this, &VLK_Widget_Config_Full::slot_triggered_Menu);
    connect(monitor_.timer(), &QTimer::timeout, this, &VLK_Widget_Config_Full::slot_timeOut_TimerAnalog);
}

void VLK_Widget_Config_Full::buildTabs()
{
    pages_.create([this]<class Page>(Page& page) {
        auto* area = new QScrollArea;
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        area->setWidget(&page);
        vlk::guardInputs(&page);
        page.setTabIndex(ui_->tabWidget->addTab(area, page.title()));
        tabMenu_->addAction(new VLK_MenuAction(page.title(), page.tabIndex(), tabMenu_));
        if constexpr (requires { &Page::signal_Excess_Size; })
            connect(&page, &Page::signal_Excess_Size, this, &VLK_Widget_Config_Full::slot_Excess_Size);
    });
}

void VLK_Widget_Config_Full::loadFile(const QString& path, char* ussdBuffer)
{
    vlk::XmlDocument document(path, QStringLiteral("DEVICE"));
    loadFromXml(document.root(), ussdBuffer);
}

void VLK_Widget_Config_Full::loadFromXml(CXmlSection* root, char* ussdBuffer)
{
    const CXmlSectionPtr system = root->child(QStringLiteral("SYSTEM"));
    const CXmlSectionPtr balance = system ? system->child(QStringLiteral("BALANCE")) : nullptr;
    if (balance)
        qstrncpy(ussdBuffer, balance->getString(QStringLiteral("USSD")).toLocal8Bit().constData(),
                 vlk::balanceUssdSize);
    pages_.forEach([root](auto& page) { page.loadFromXml(root); });
    // User parameters come last: they ask other pages for the names of what they hold.
    pages_.forEach([root](auto& page) {
        if constexpr (requires { page.loadUserParams(root); })
            page.loadUserParams(root);
    });
}

bool VLK_Widget_Config_Full::saveFile(const QString& path)
{
    vlk::XmlDocument document(QString(), QStringLiteral("DEVICE"));
    saveToXml(document.root());
    return document.saveAs(path);
}

void VLK_Widget_Config_Full::saveToXml(CXmlSection* root)
{
    if (vlkDevice) {
        root->setString(QStringLiteral("model"), vlkDevice->model());
        root->setString(QStringLiteral("version"), vlkDevice->fileVersion());
        root->setString(QStringLiteral("creator"), QStringLiteral("config"));
        root->setString(QStringLiteral("vendor"), vlkDevice->vendor());
    }
    pages_.forEach([root](auto& page) { page.saveToXml(root); });
    pages_.forEach([root](auto& page) {
        if constexpr (requires { page.saveUserParams(root); })
            page.saveUserParams(root);
    });
}

void VLK_Widget_Config_Full::setDefaults()
{
    slot_Excess_Size(false);
    pages_.forEach([](auto& page) { page.setDefaults(); });
}

void VLK_Widget_Config_Full::retranslate()
{
    pages_.forEach([this](auto& page) {
        page.retranslate();
        ui_->tabWidget->setTabText(page.tabIndex(), page.title());
        tabMenu_->actions().at(page.tabIndex())->setText(page.title());
    });
    ui_->pushButton_SaveToFile->setText(tr("wrd_047"));
    ui_->pushButton_LoadToDevice->setText(tr("wrd_048"));
    ui_->pushButton_ConfigLight->setText(tr("cfgwnd_001"));
    ui_->pushButton_First->setText(tr("wrd_049"));
    ui_->pushButton_PrevScreen->setText(QStringLiteral("< %1").arg(tr("wrd_051")));
    ui_->pushButton_Goto->setText(tr("wrd_053"));
    ui_->pushButton_NextScreen->setText(QStringLiteral("%1 >").arg(tr("wrd_052")));
    ui_->pushButton_Last->setText(tr("wrd_050"));
    ui_->pushButton_Close->setText(tr("wrd_054"));
    ui_->pushButton_Help->setText(tr("wrd_027"));
}

void VLK_Widget_Config_Full::deviceConnected()
{
    connected_ = true;
    monitor_.setConnected(true);
    ui_->pushButton_LoadToDevice->setEnabled(true);
    pages_.forEach([](auto& page) {
        if constexpr (requires { page.deviceConnected(); })
            page.deviceConnected();
    });
}

void VLK_Widget_Config_Full::deviceDisconnected()
{
    connected_ = false;
    monitor_.setConnected(false);
    ui_->pushButton_LoadToDevice->setEnabled(false);
    pages_.forEach([](auto& page) {
        if constexpr (requires { page.deviceDisconnected(); })
            page.deviceDisconnected();
    });
}

QString VLK_Widget_Config_Full::userParamCode(const QString& text)
{
    // "RS485, Modbus 3": the RS page knows its parameters by what follows the comma and its blank.
    QString code;
    const int comma = text.indexOf(QLatin1Char(','));
    pages_.with<VLK_Form_Config_RS>(
        [&](auto& page) { code = page.userParamCode(text.mid(comma < 0 ? 0 : comma + 2).trimmed()); });
    if (code.isEmpty())
        pages_.with<VLK_Form_Config_Bluetooth>([&](auto& page) { code = page.displayToKey(text.trimmed()); });
    return code;
}

QString VLK_Widget_Config_Full::userParamText(const QString& code)
{
    QString text;
    if (code.isEmpty())
        return text;
    pages_.with<VLK_Form_Config_RS>([&](auto& page) { text = page.userParamText(code); });
    if (text.isEmpty())
        pages_.with<VLK_Form_Config_Bluetooth>([&](auto& page) { text = page.keyToDisplay(code); });
    return text;
}

void VLK_Widget_Config_Full::goTo(int index)
{
    if (index >= 0)
        ui_->tabWidget->setCurrentIndex(index);
}

void VLK_Widget_Config_Full::gotoInputLines()
{
    goTo(pages_.tabOf<VLK_Form_Config_Lines_In>());
}

void VLK_Widget_Config_Full::gotoRs()
{
    goTo(pages_.tabOf<VLK_Form_Config_RS>());
}

void VLK_Widget_Config_Full::gotoBluetooth()
{
    goTo(pages_.tabOf<VLK_Form_Config_Bluetooth>());
}

void VLK_Widget_Config_Full::gotoAccel()
{
    goTo(pages_.tabOf<VLK_Form_Config_Accel>());
}

void VLK_Widget_Config_Full::gotoAccelPlain()
{
    gotoAccel();
}

void VLK_Widget_Config_Full::startBtSearch()
{
    vlk::requests::startBtSearch();
}

void VLK_Widget_Config_Full::cancelBtSearch()
{
    vlk::requests::cancelBtSearch();
}

void VLK_Widget_Config_Full::getCanLogProgram()
{
    vlk::requests::canLogProgram();
}

void VLK_Widget_Config_Full::setCanLogProgram(int value)
{
    vlk::requests::setCanLogProgram(value);
}

void VLK_Widget_Config_Full::sendSystemWaitEnd()
{
    vlk::requests::waitStepEnd();
}

template <class Page>
bool VLK_Widget_Config_Full::isCurrent() const
{
    const int tab = pages_.tabOf<Page>();
    return tab >= 0 && tab == ui_->tabWidget->currentIndex();
}

ConfigMonitor::Tab VLK_Widget_Config_Full::liveTab() const
{
    if (isCurrent<VLK_Form_Config_Accel>())
        return ConfigMonitor::Tab::Accel;
    if (isCurrent<VLK_Form_Config_Lines_In>())
        return ConfigMonitor::Tab::InputLines;
    if (isCurrent<VLK_Form_Config_System>())
        return ConfigMonitor::Tab::System;
    return ConfigMonitor::Tab::Other;
}

void VLK_Widget_Config_Full::takeLineValues(const QByteArray& text)
{
    if (isCurrent<VLK_Form_Config_Lines_In>())
        pages_.with<VLK_Form_Config_Lines_In>([&](auto& page) { page.showLineValues(text); });
    monitor_.linesAnswered();
}

void VLK_Widget_Config_Full::takeSupply(const uchar* record)
{
    monitor_.supplyAnswered();
    if (!record || !isCurrent<VLK_Form_Config_System>())
        return;
    const auto* supply = reinterpret_cast<const vlk::SupplyRecord*>(record);
    pages_.with<VLK_Form_Config_System>(
        [&](auto& page) { page.setCurrentSupply(supply->values[vlk::supplyElement]); });
}

void VLK_Widget_Config_Full::takeAnalog(const uchar* record)
{
    if (record && isCurrent<VLK_Form_Config_Lines_In>())
        pages_.with<VLK_Form_Config_Lines_In>([&](auto& page) { page.showAnalogRecord(record); });
    monitor_.linesAnswered();
}

void VLK_Widget_Config_Full::takeAccel(const uchar* record)
{
    if (record) {
        const auto* values = reinterpret_cast<const vlk::AccelValues*>(record);
        pages_.with<VLK_Form_Config_Accel>([&](auto& page) { page.showPresentValues(*values); });
    }
    monitor_.accelAnswered();
}

void VLK_Widget_Config_Full::takeAccelResult(const uchar* record)
{
    if (record)
        monitor_.accelCommandAnswered(record[vlk::accelStatusByte]);
}

void VLK_Widget_Config_Full::takeBtSearchStopped(const uchar& event)
{
    pages_.with<VLK_Form_Config_Bluetooth>([&](auto& page) { page.onSearchStopped(event); });
}

void VLK_Widget_Config_Full::takeBtSearchEvent(const uchar& event)
{
    pages_.with<VLK_Form_Config_Bluetooth>([&](auto& page) { page.onSearchEvent(event); });
}

void VLK_Widget_Config_Full::takeBtDevice(const vlk::BtDevice& device)
{
    pages_.with<VLK_Form_Config_Bluetooth>([&](auto& page) { page.onDeviceFound(device); });
}

void VLK_Widget_Config_Full::takeCanLogProgram(const std::int32_t& program)
{
    pages_.with<VLK_Form_Config_RS>([&](auto& page) { page.setCanLogProgram(program); });
}

void VLK_Widget_Config_Full::slot_timeOut_TimerAnalog()
{
    monitor_.timeout();
}

void VLK_Widget_Config_Full::slot_finished(int /*result*/)
{
    slot_pressed_Btn_Close();
}

void VLK_Widget_Config_Full::slot_currentChanged_TabWidget(int index)
{
    const int count = ui_->tabWidget->count();
    const bool several = count > 1;
    ui_->pushButton_Goto->setEnabled(several);
    ui_->pushButton_First->setEnabled(several && index > 0);
    ui_->pushButton_PrevScreen->setEnabled(several && index > 0);
    ui_->pushButton_NextScreen->setEnabled(several && index < count - 1);
    ui_->pushButton_Last->setEnabled(several && index < count - 1);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_SaveToFile()
{
    QString name = QStringLiteral("NONAME");
    pages_.with<VLK_Form_Config_Transfer>([&](const auto& page) { name = page.objectName(); });
    const QString path = vlk::askConfigurationPath(this, name);
    if (path.isEmpty())
        return;
    ui_->pushButton_SaveToFile->setEnabled(false);
    saveFile(path);
    ui_->pushButton_SaveToFile->setEnabled(true);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_LoadToDevice()
{
    if (!vlkDevice)
        return;
    const QString path = vlk::configurationPathToWrite(QStringLiteral("R7106"));
    ui_->pushButton_LoadToDevice->setEnabled(false);
    const bool saved = saveFile(path);
    ui_->pushButton_LoadToDevice->setEnabled(connected_);
    if (saved)
        vlk::requests::writeConfiguration(path);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_Help()
{
    const int index = ui_->tabWidget->currentIndex();
    vlk::requests::showHelp(index >= 0 && index <= ui_->tabWidget->count()
                                ? QStringLiteral("r-7106p%1.html").arg(index + 1)
                                : QStringLiteral("r-7106conf.html"));
}

void VLK_Widget_Config_Full::slot_pressed_Btn_Close()
{
    if (vlkConfigDialog)
        vlkConfigDialog->close();
}

void VLK_Widget_Config_Full::slot_pressed_Btn_ConfigLight()
{
    QMessageBox box(QMessageBox::Warning, tr("wrd_005"),
                    QStringLiteral("%1<br><br>").arg(tr("cfgwnd_005")) + tr("cfgwnd_006"),
                    QMessageBox::NoButton, this);
    const auto* yes = box.addButton(tr("wrd_001"), QMessageBox::YesRole);
    auto* no = box.addButton(tr("wrd_002"), QMessageBox::NoRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    if (box.clickedButton() == yes && vlkConfigDialog)
        vlkConfigDialog->switchToQuick();
}

void VLK_Widget_Config_Full::slot_pressed_Btn_First()
{
    goTo(0);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_Last()
{
    goTo(ui_->tabWidget->count() - 1);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_PrevScreen()
{
    goTo(ui_->tabWidget->currentIndex() - 1);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_NextScreen()
{
    goTo(ui_->tabWidget->currentIndex() + 1);
}

void VLK_Widget_Config_Full::slot_pressed_Btn_Goto() {}

void VLK_Widget_Config_Full::slot_triggered_Menu(QAction* action)
{
    if (const auto* entry = qobject_cast<VLK_MenuAction*>(action))
        goTo(entry->tabIndex());
}

void VLK_Widget_Config_Full::slot_Excess_Size(bool excess)
{
    ui_->frame_Excess->setEnabled(!excess);
    tabMenu_->setEnabled(!excess);
    const int kept = pages_.tabOf<VLK_Form_Config_Zeta3>();
    for (int tab = 0; tab < ui_->tabWidget->count(); ++tab)
        ui_->tabWidget->setTabEnabled(tab, !excess || tab == kept);
}

void VLK_Widget_Config_Full::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton)
        tabMenu_->popup(event->globalPos());
    VLK_Wnd_Config_Full::mousePressEvent(event);
}

void VLK_Widget_Config_Full::closeEvent(QCloseEvent* event)
{
    slot_pressed_Btn_Close();
    event->accept();
}
