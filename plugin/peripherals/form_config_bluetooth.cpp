#include "peripherals/form_config_bluetooth.h"

#include "ui_VLK_Designer_Form_Config_Bluetooth.h"

#include "link/device.h"
#include "peripherals/form_config_bluetooth_device.h"
#include "settings/bluetooth_settings.h"
#include "typing/field_mark.h"
#include "windows/disabled_reason.h"
#include "windows/wnd_config_full.h"

#include <QHeaderView>
#include <QMenu>

namespace {

constexpr quint64 kBluetoothCapability = 0x800;

// What the host tells of a search.
constexpr uchar kRuns = '0';
constexpr uchar kEnded = '1';
constexpr uchar kFailed = '2';
constexpr uchar kStopped = '3';

// What the page is bound to, in the order of its list.
enum Kind { None, Sensors, Headset };
constexpr const char* kKinds[] = {"wrd_002", "cfgt17_003", "cfgt17_002"};

template <int size>
QString textOf(const char (&chars)[size])
{
    return QString::fromLocal8Bit(chars, static_cast<int>(qstrnlen(chars, size)));
}

} // namespace

VLK_Form_Config_Bluetooth::VLK_Form_Config_Bluetooth(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_Bluetooth>()),
      settings_(vlk::kBluetoothSettings, "cfgt17_001"),
      sensors_(new VLK_Form_Config_Bluetooth_Device(settings_))
{
    ui_->setupUi(this);
    ui_->gridLayout_Device->addWidget(sensors_);
    ui_->groupBox_Bt_Device->hide();
    vlk::tellWhyDisabled(ui_->frame_Bt_Btn, "cfgt6_450");
    QHeaderView* head = ui_->treeWidget_Bt_List->header();
    head->setStretchLastSection(false);
    head->setSectionResizeMode(0, QHeaderView::Stretch);
    head->resizeSection(1, head->fontMetrics().horizontalAdvance(QStringLiteral("DD:DD:DD:DD:DD:DD:DD")));
    settings_.bind({this});
    using This = VLK_Form_Config_Bluetooth;
    connect(ui_->pushButton_Bt_Find, &QPushButton::clicked, this, &This::slot_pressed_Btn_Bt_Find);
    connect(ui_->pushButton_Bt_Add, &QPushButton::clicked, this, &This::slot_pressed_Btn_Bt_Add);
    connect(ui_->pushButton_Bt_Cancel, &QPushButton::clicked, this, &This::slot_pressed_Btn_Bt_Cancel);
    connect(ui_->comboBox_Bt_Device, &QComboBox::currentTextChanged, this,
            &This::slot_currentIndexChanged_BtDevice);
    connect(ui_->treeWidget_Bt_List, &QTreeWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { offerSensors(ui_->treeWidget_Bt_List->viewport()->mapToGlobal(at)); });
    connect(&settings_, &vlk::PageSettings::changed, this, &This::markBound);
    connect(&settings_, &vlk::PageSettings::shown, this, &This::markBound);
    retranslate();
    setDefaults();
}

VLK_Form_Config_Bluetooth::~VLK_Form_Config_Bluetooth() = default;

void VLK_Form_Config_Bluetooth::retranslate()
{
    ui_->retranslateUi(this);
    const QString device = tr("cfgt17_006");
    const QString mac = tr("cfgt17_007");
    const QString titled = QStringLiteral("%1:");
    ui_->groupBox_Bt_List->setTitle(titled.arg(tr("cfgt17_005")));
    ui_->treeWidget_Bt_List->setHeaderLabels({device, mac});
    ui_->treeWidget_Bt_List->setAccessibleName(tr("cfgt17_005"));
    ui_->label_Bt_Device->setText(titled.arg(device));
    ui_->label_Bt_MacAdr->setText(titled.arg(mac));
    ui_->label_Bt_Psw->setText(titled.arg(tr("cfgt17_009")));
    const int kind = ui_->comboBox_Bt_Device->currentIndex();
    {
        const QSignalBlocker blocker(ui_->comboBox_Bt_Device);
        ui_->comboBox_Bt_Device->clear();
        for (const char* text : kKinds)
            ui_->comboBox_Bt_Device->addItem(tr(text));
        ui_->comboBox_Bt_Device->setCurrentIndex(kind < 0 ? Sensors : kind);
    }
    settings_.retranslate();
    sensors_->retranslate();
    markBound();
}

void VLK_Form_Config_Bluetooth::setDefaults()
{
    settings_.setDefaults();
    sensors_->clearTests();
    clearList();
    ui_->comboBox_Bt_Device->setCurrentIndex(Sensors);
    slot_currentIndexChanged_BtDevice(tr(kKinds[Sensors]));
    endSearch(false);
    ui_->label_Message->clear();
    applyConnection();
}

void VLK_Form_Config_Bluetooth::loadFromXml(CXmlSection* root)
{
    settings_.load(root);
    applyConnection();
}

void VLK_Form_Config_Bluetooth::setConnected(bool connected)
{
    connected_ = connected;
    applyConnection();
}

// A tracker that cannot do it does not use Bluetooth, whatever a file or a reset says.
void VLK_Form_Config_Bluetooth::applyConnection()
{
    setUsable(ui_->frame_Bt_Btn, connected_);
    const bool able = !connected_ || !vlkDevice || (vlkDevice->capabilityMask() & kBluetoothCapability) != 0;
    ui_->checkBox_Bt_Use->setEnabled(able);
    if (!able)
        settings_.edit(QStringLiteral("GLOBAL/use"), QStringLiteral("0"));
}

QString VLK_Form_Config_Bluetooth::keyToDisplay(const QString& key) const
{
    return sensors_->keyToDisplay(key);
}

QString VLK_Form_Config_Bluetooth::displayToKey(const QString& text) const
{
    return sensors_->displayToKey(text);
}

void VLK_Form_Config_Bluetooth::clearList()
{
    ui_->treeWidget_Bt_List->clear();
    found_.clear();
}

// The tool tip names the sensor.
void VLK_Form_Config_Bluetooth::markIfBound(QTreeWidgetItem* item)
{
    QString bound;
    for (int sensor = VLK_Form_Config_Bluetooth_Device::kSensors; sensor > 0; --sensor) {
        const QString address = sensors_->address(sensor);
        if (!address.isEmpty() && address.compare(item->text(1), Qt::CaseInsensitive) == 0)
            bound = sensors_->title(sensor);
    }
    if (bound == item->toolTip(0))
        return;
    item->setToolTip(0, bound);
    item->setData(0, Qt::AccessibleDescriptionRole, bound);
    showMark(item);
}

void VLK_Form_Config_Bluetooth::showMark(QTreeWidgetItem* item)
{
    item->setIcon(
        0, item->toolTip(0).isEmpty()
               ? QIcon()
               : QIcon(vlk::markPixmap(vlk::Mark::Right, palette(), vlk::kMarkSize, devicePixelRatioF())));
}

// The mark has colours of its own.
void VLK_Form_Config_Bluetooth::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    for (int row = 0; row < ui_->treeWidget_Bt_List->topLevelItemCount(); ++row)
        showMark(ui_->treeWidget_Bt_List->topLevelItem(row));
}

void VLK_Form_Config_Bluetooth::markBound()
{
    for (int row = 0; row < ui_->treeWidget_Bt_List->topLevelItemCount(); ++row)
        markIfBound(ui_->treeWidget_Bt_List->topLevelItem(row));
}

// With the keyboard on it, what is disabled would hand it to the first sensor, where the next key changes a
// setting.
void VLK_Form_Config_Bluetooth::setUsable(QWidget* part, bool usable)
{
    const QWidget* focus = focusWidget();
    if (!usable && focus && (focus == part || part->isAncestorOf(focus)))
        ui_->treeWidget_Bt_List->setFocus();
    part->setEnabled(usable);
}

void VLK_Form_Config_Bluetooth::endSearch(bool canAdd)
{
    ui_->progressBar_Find->hide();
    ui_->pushButton_Bt_Find->setEnabled(true);
    setUsable(ui_->pushButton_Bt_Add, canAdd);
    setUsable(ui_->pushButton_Bt_Cancel, false);
}

// The host may answer before the request returns, so it goes out last; the same in Cancel.
void VLK_Form_Config_Bluetooth::slot_pressed_Btn_Bt_Find()
{
    clearList();
    ui_->label_Message->clear();
    setUsable(ui_->pushButton_Bt_Find, false);
    setUsable(ui_->pushButton_Bt_Add, false);
    ui_->pushButton_Bt_Cancel->setEnabled(true);
    if (vlkConfigFull)
        vlkConfigFull->startBtSearch();
}

void VLK_Form_Config_Bluetooth::onSearchEvent(uchar event)
{
    const int count = ui_->treeWidget_Bt_List->topLevelItemCount();
    switch (event) {
    case kRuns:
        ui_->label_Message->setText(QStringLiteral("%1...").arg(tr("cfgt17_011")));
        ui_->progressBar_Find->setValue(-1);
        ui_->progressBar_Find->show();
        break;
    case kEnded:
        endSearch(count > 0);
        if (count == 0) {
            ui_->label_Message->setText(
                QStringLiteral("%1. <br>%2.").arg(tr("cfgt17_012"), tr("cfgt17_013")));
            break;
        }
        ui_->label_Message->setText(
            QStringLiteral("%1. <br>%2: %3").arg(tr("cfgt17_012"), tr("cfgt17_014")).arg(count));
        ui_->treeWidget_Bt_List->setCurrentItem(ui_->treeWidget_Bt_List->topLevelItem(0));
        break;
    case kFailed:
    case kStopped:
        endSearch(false);
        ui_->label_Message->setText(
            QStringLiteral("%1.").arg(event == kFailed ? tr("cfgt17_015") : tr("cfgt17_010")));
        break;
    default:
        break;
    }
}

void VLK_Form_Config_Bluetooth::onSearchStopped(uchar event)
{
    if (event != kStopped)
        return;
    endSearch(ui_->treeWidget_Bt_List->topLevelItemCount() > 0);
    ui_->label_Message->setText(QStringLiteral("%1.").arg(tr("cfgt17_010")));
}

void VLK_Form_Config_Bluetooth::onDeviceFound(const vlk::BtDevice& device)
{
    const QString name = textOf(device.name);
    const QString mac = textOf(device.mac);
    if (found_.contains({name, mac}))
        return;
    found_.insert({name, mac});
    auto* item = new QTreeWidgetItem({name, mac});
    markIfBound(item);
    ui_->treeWidget_Bt_List->addTopLevelItem(item);
    ui_->label_Message->setText(QStringLiteral("%1: %2").arg(tr("cfgt17_016"), name.toHtmlEscaped()));
}

void VLK_Form_Config_Bluetooth::slot_pressed_Btn_Bt_Cancel()
{
    ui_->label_Message->setText(QStringLiteral("%1...").arg(tr("cfgt17_017")));
    setUsable(ui_->pushButton_Bt_Cancel, false);
    if (vlkConfigFull)
        vlkConfigFull->cancelBtSearch();
}

void VLK_Form_Config_Bluetooth::slot_pressed_Btn_Bt_Add()
{
    const QTreeWidgetItem* item = ui_->treeWidget_Bt_List->currentItem();
    if (!item)
        return;
    ui_->lineEdit_Bt_MacAdr->setText(item->text(1));
    if (isVisible())
        offerSensors(ui_->pushButton_Bt_Add->mapToGlobal(ui_->pushButton_Bt_Add->rect().bottomLeft()));
}

// The current device goes to the sensor that the user chooses.
void VLK_Form_Config_Bluetooth::offerSensors(const QPoint& where)
{
    const QTreeWidgetItem* item = ui_->treeWidget_Bt_List->currentItem();
    if (!item)
        return;
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("menu_Bt_Sensors"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int sensor = 1; sensor <= VLK_Form_Config_Bluetooth_Device::kSensors; ++sensor) {
        QString text = sensors_->title(sensor);
        const QString address = sensors_->address(sensor);
        if (!address.isEmpty()) {
            QString bound = settings_.value(QStringLiteral("SENS%1/name").arg(sensor));
            if (bound.isEmpty())
                bound = address;
            text += QStringLiteral(": ") + bound.replace(QLatin1Char('&'), QLatin1String("&&"));
        }
        menu->addAction(text, this, [this, sensor, name = item->text(0), mac = item->text(1)] {
            sensors_->bind(sensor, mac, name);
        });
    }
    menu->popup(where);
}

void VLK_Form_Config_Bluetooth::slot_currentIndexChanged_BtDevice(const QString& text)
{
    const bool isHeadset = text == tr(kKinds[Headset]);
    sensors_->setVisible(text == tr(kKinds[Sensors]));
    // An input mask leaves its colons in an empty edit.
    const QString mac = ui_->lineEdit_Bt_MacAdr->text();
    if (isHeadset) {
        ui_->lineEdit_Bt_MacAdr->setText(rememberedMac_);
        ui_->lineEdit_Bt_Psw->setText(rememberedPassword_);
    } else {
        if (!QString(mac).remove(QLatin1Char(':')).isEmpty()) {
            rememberedMac_ = mac;
            rememberedPassword_ = ui_->lineEdit_Bt_Psw->text();
        }
        // What clear() takes away can be brought back by an undo, and is kept for that as long as the window.
        ui_->lineEdit_Bt_MacAdr->setText(QString());
        ui_->lineEdit_Bt_Psw->setText(QString());
    }
    ui_->frame_Bt_Device_Param->setEnabled(isHeadset);
}
