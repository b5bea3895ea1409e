#include "window/device_panel.h"

#include "check/plugin_names.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/present_value.h"
#include "window/host_session.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

#include <QEvent>
#include <algorithm>

namespace workbench {

namespace {

constexpr const char* kModeKeys[] = {"wb_mode_0", "wb_mode_1", "wb_mode_2"};

} // namespace

DevicePanel::DevicePanel(HostSession& session, QWidget* parent)
    : QGroupBox(parent), session_(session), symbol_(new QLabel(this)), state_(new QLabel(this)),
      trouble_(new QLabel(this)), mode_(new QComboBox(this))
{
    texts_.bind(static_cast<QGroupBox*>(this), "wb_device");
    state_->setObjectName(QStringLiteral("label_DeviceState"));
    auto* stateLine = new QHBoxLayout;
    stateLine->setSpacing(vlk::grid::kColumn);
    stateLine->addWidget(symbol_);
    stateLine->addWidget(state_, 1);

    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(stateLine);
    trouble_->setObjectName(QStringLiteral("label_LinkTrouble"));
    trouble_->setWordWrap(true);
    trouble_->hide();
    form->addRow(trouble_);
    model_ = addRow(form, "label_DeviceModel", "wb_device_model");
    text1_ = addRow(form, "label_DeviceText1", "wb_device_text1");
    text2_ = addRow(form, "label_DeviceText2", "wb_device_text2");
    capabilities_ = addRow(form, "label_DeviceCapabilities", "wb_device_capabilities");
    plugin_ = addRow(form, "label_Plugin", "wb_device_plugin");
    edited_ = addRow(form, "label_Edited", "wb_edited");
    edited_->setWordWrap(true);

    mode_->setObjectName(QStringLiteral("comboBox_Mode"));
    mode_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mode_->setMinimumContentsLength(12);
    for (const char* key : kModeKeys)
        mode_->addItem(text(key));
    auto* modeLabel = texts_.bind(new QLabel(this), "wb_mode");
    modeLabel->setBuddy(mode_);
    form->addRow(modeLabel, mode_);
    connect(mode_, QOverload<int>::of(&QComboBox::activated), this, &DevicePanel::modeChosen);

    connect(&session_.tracker(), &tracker::SimulatedTracker::attachedChanged, this, &DevicePanel::refresh);
    refresh();
}

QLabel* DevicePanel::addRow(QFormLayout* form, const char* name, const char* key)
{
    auto* value = new QLabel(this);
    value->setObjectName(QLatin1String(name));
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    vlk::showAsPresent(value);
    form->addRow(texts_.bind(new QLabel(this), key), value);
    return value;
}

const char* DevicePanel::modeKey(int mode)
{
    return kModeKeys[std::clamp(mode, 0, static_cast<int>(std::size(kModeKeys)) - 1)];
}

void DevicePanel::setMode(int mode)
{
    mode_->setCurrentIndex(mode);
}

void DevicePanel::setEdited(const QString& text)
{
    edited_->setText(text);
}

void DevicePanel::setTrouble(const QString& text)
{
    trouble_->setText(text);
    trouble_->setVisible(!text.isEmpty());
    refresh();
}

void DevicePanel::refresh()
{
    const tracker::SimulatedTracker& tracker = session_.tracker();
    const bool attached = tracker.attached();
    const Mark mark = !attached ? Mark::Invalid : trouble_->text().isEmpty() ? Mark::Right : Mark::Advice;
    symbol_->setPixmap(vlk::markPixmap(mark, palette(), vlk::kMarkSize, devicePixelRatioF()));
    state_->setText(text(attached ? "wb_device_attached" : "wb_device_detached"));
    const QString none = QStringLiteral("–");
    model_->setText(attached ? tracker.model() : none);
    text1_->setText(attached ? tracker.text1() : none);
    text2_->setText(attached ? tracker.text2() : none);
    capabilities_->setText(
        attached ? QStringLiteral("0x%1").arg(tracker.capabilityMask(), 16, 16, QLatin1Char('0')) : none);
    const PluginLink& link = session_.link();
    plugin_->setText(link.isLoaded() ? QStringLiteral("%1, %2").arg(link.displayName(), link.version())
                                     : text("wb_device_no_plugin"));
}

// The mark follows the colours of the window.
void DevicePanel::changeEvent(QEvent* event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refresh();
}

void DevicePanel::retranslate()
{
    texts_.apply();
    int mode = 0;
    for (const char* key : kModeKeys)
        mode_->setItemText(mode++, text(key));
    refresh();
}

} // namespace workbench
