#include "pages/form_config_accel_virtual.h"

#include "ui_VLK_Designer_Form_Config_Accel_Virtual.h"

#include "link/messages.h"
#include "review/value_text.h"
#include "settings/accel_settings.h"
#include "typing/present_value.h"
#include "windows/disabled_reason.h"
#include "windows/named_widget.h"
#include "windows/page_style.h"
#include "windows/wnd_config_full.h"

#include <QLineEdit>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace {

// What a sensor's sliders have of their own. That of the level counts in units of the last decimal, that of
// the present value in tenths.
struct Scale
{
    int levelPage;
    int presentEnd;
};
constexpr Scale kScales[] = {{50, 1000}, {50, 1000}, {5, 1000}, {150, 100}};
constexpr std::size_t kTilt = 3; // SH4, the one sensor of an angle
constexpr int kTicks = 10;
constexpr double kFullScale = 1800; // root of the measure that is 100 percent

double percentOf(std::uint32_t measure)
{
    return std::sqrt(measure) * 100 / kFullScale;
}

QSlider* makeSlider(const char* name, int number)
{
    auto* slider = vlk::numberedWidget<QSlider>(name, number);
    slider->setOrientation(Qt::Horizontal);
    slider->setTickPosition(QSlider::TicksBelow);
    return slider;
}

// What stands in front of the unit.
QString numberIn(const QString& text)
{
    return text.section(QLatin1Char(' '), 0, 0);
}

} // namespace

VLK_Form_Config_Accel_Virtual::VLK_Form_Config_Accel_Virtual(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_Accel_Virtual>()),
      settings_(vlk::kAccelSettings, "cfgt9_001")
{
    ui_->setupUi(this);
    age_.tellIn(ui_->label_Quest_Since);
    for (std::size_t i = 0; i < sensors_.size(); ++i)
        sensors_[i] = makeSensor(i);
    vlk::tellWhyDisabled(ui_->groupBox_Quest, "cfgt6_450");
    settings_.bind({this});
    setTabOrder();
    using This = VLK_Form_Config_Accel_Virtual;
    connect(&settings_, &vlk::PageSettings::changed, this, &This::compareAll);
    connect(&settings_, &vlk::PageSettings::shown, this, &This::compareAll);
    connect(&age_, &vlk::PresentAge::changed, this, &This::compareAll);
    connect(&query_, &QTimer::timeout, this, &This::slot_timeOut_Query);
    connect(ui_->checkBox_Auto, &QCheckBox::stateChanged, this, &This::slot_stateChanged_checkBox_Auto);
    connect(ui_->pushButton_Quest, &QPushButton::clicked, this, &This::slot_pressed_pushButton_Quest);
    connect(ui_->pushButton_Reset, &QPushButton::clicked, this, &This::slot_pressed_pushButton_Reset);
    retranslate();
    setDefaults();
}

VLK_Form_Config_Accel_Virtual::~VLK_Form_Config_Accel_Virtual() = default;

VLK_Form_Config_Accel_Virtual::Sensor VLK_Form_Config_Accel_Virtual::makeSensor(std::size_t index)
{
    const int number = static_cast<int>(index) + 1;
    const Sensor sensor{makeSlider("horizontalSlider_Level_SH%1", number),
                        vlk::numberedWidget<QDoubleSpinBox>("doubleSpinBox_Level_SH%1", number),
                        makeSlider("horizontalSlider_CurLevel_SH%1", number),
                        vlk::numberedWidget<QLineEdit>("lineEdit_CurLevel_SH%1", number)};
    sensor.levelSlider->setPageStep(kScales[index].levelPage);
    sensor.present->setRange(0, kScales[index].presentEnd);
    sensor.presentText->setReadOnly(true);
    vlk::standOut(sensor.presentText);
    vlk::setPageStyle(sensor.present);
    sensor.present->setFocusPolicy(Qt::NoFocus);
    connect(sensor.presentText, &QLineEdit::textChanged, this, [this, index] { compare(sensors_[index]); });

    auto* label = new QLabel;
    label->setBuddy(sensor.level);
    auto* frame = vlk::numberedWidget<QFrame>("frame_CurLevel_SH%1", number);
    frame->setEnabled(false);
    auto* inside = new QHBoxLayout(frame);
    inside->setContentsMargins({});
    inside->addWidget(sensor.present);
    const QWidgetList row{label, sensor.levelSlider, sensor.level, frame, sensor.presentText};
    for (int column = 0; column < row.size(); ++column)
        ui_->gridLayout_Levels->addWidget(row[column], number, column);
    return sensor;
}

// The Tab key goes as one reads: row by row, then through the requests.
void VLK_Form_Config_Accel_Virtual::setTabOrder()
{
    QWidget* before = nullptr;
    const auto next = [&](QWidget* widget) {
        if (before)
            QWidget::setTabOrder(before, widget);
        before = widget;
    };
    for (const Sensor& sensor : sensors_) {
        next(sensor.levelSlider);
        next(sensor.level);
    }
    for (QWidget* request : QWidgetList{ui_->checkBox_Auto, ui_->spinBox_Auto_TimeOut, ui_->pushButton_Quest,
                                        ui_->pushButton_Reset})
        next(request);
}

void VLK_Form_Config_Accel_Virtual::retranslate()
{
    ui_->retranslateUi(this);
    ui_->spinBox_Auto_TimeOut->setSuffix(QLatin1Char(' ') + tr("abbr_003"));
    settings_.retranslate();
    age_.retranslate();
    int width = 0;
    for (const Sensor& sensor : sensors_)
        width = std::max(width, sensor.level->sizeHint().width());
    for (std::size_t i = 0; i < sensors_.size(); ++i) {
        const Sensor& sensor = sensors_[i];
        const QString name = QStringLiteral("%1 %2").arg(
            tr("cfgt9_008"), vlk::captionText(settings_.values().setting(static_cast<int>(i))));
        sensor.present->setAccessibleName(name);
        sensor.presentText->setAccessibleName(name);
        showPresent(i, numberIn(sensor.presentText->text()));
        sensor.presentText->setFixedWidth(width);
        for (QSlider* slider : {sensor.levelSlider, sensor.present})
            slider->setTickInterval(slider->maximum() / kTicks);
    }
}

void VLK_Form_Config_Accel_Virtual::setDefaults()
{
    stopAuto();
    clearPresentValues();
    settings_.setDefaults();
}

void VLK_Form_Config_Accel_Virtual::deviceConnected()
{
    ui_->groupBox_Quest->setEnabled(true);
}

void VLK_Form_Config_Accel_Virtual::deviceDisconnected()
{
    stopAuto();
    ui_->groupBox_Quest->setEnabled(false);
}

void VLK_Form_Config_Accel_Virtual::showPresentValues(const vlk::AccelValues& values)
{
    if (!pending_)
        return;
    const double shock = percentOf(values.shock);
    const double present[] = {shock, shock, percentOf(values.movement), values.tilt / M_PI * 180};
    for (std::size_t i = 0; i < sensors_.size(); ++i) {
        if (!std::isfinite(present[i]))
            continue;
        const double end = kScales[i].presentEnd;
        sensors_[i].present->setValue(static_cast<int>(std::clamp(present[i] * 10, 0.0, end)));
        showPresent(i, QString::asprintf("%.1f", present[i]));
        vlk::showDash(sensors_[i].presentText, false);
    }
    age_.answered();
    pending_ = monitoring_;
    if (monitoring_)
        query_.start();
}

void VLK_Form_Config_Accel_Virtual::clearPresentValues()
{
    for (std::size_t i = 0; i < sensors_.size(); ++i) {
        sensors_[i].present->setValue(0);
        showPresent(i, QStringLiteral("0"));
        vlk::showDash(sensors_[i].presentText, true);
    }
    age_.clear();
}

void VLK_Form_Config_Accel_Virtual::showPresent(std::size_t index, const QString& number)
{
    sensors_[index].presentText->setText(number + QLatin1Char(' ') +
                                         (index == kTilt ? tr("abbr_016") : QStringLiteral("%")));
}

// What is above the level would trigger the sensor now.
void VLK_Form_Config_Accel_Virtual::compare(const Sensor& sensor) const
{
    if (age_.isOld()) {
        vlk::showAsOld(sensor.presentText, true);
        return;
    }
    QPalette colors;
    if (numberIn(sensor.presentText->text()).toDouble() > sensor.level->value()) {
        colors.setColor(QPalette::Base, Qt::red);
        colors.setColor(QPalette::Text, Qt::white);
    }
    sensor.presentText->setPalette(colors);
}

void VLK_Form_Config_Accel_Virtual::compareAll()
{
    for (const Sensor& sensor : sensors_)
        compare(sensor);
}

void VLK_Form_Config_Accel_Virtual::stopAuto()
{
    ui_->checkBox_Auto->setChecked(false);
    age_.setPaused(false);
}

void VLK_Form_Config_Accel_Virtual::pauseAuto()
{
    stopAuto();
    age_.setPaused(true);
}

void VLK_Form_Config_Accel_Virtual::resumeAuto()
{
    ui_->checkBox_Auto->setChecked(true);
}

void VLK_Form_Config_Accel_Virtual::slot_stateChanged_checkBox_Auto(int state)
{
    monitoring_ = state != Qt::Unchecked;
    ui_->spinBox_Auto_TimeOut->setDisabled(monitoring_);
    ui_->pushButton_Quest->setDisabled(monitoring_);
    ui_->pushButton_Reset->setEnabled(true);
    const int period = monitoring_ ? ui_->spinBox_Auto_TimeOut->value() * 1000 : 0;
    if (monitoring_) {
        pending_ = true;
        query_.start(period);
    } else {
        query_.stop();
    }
    age_.setPeriod(period);
    if (vlkConfigFull)
        vlkConfigFull->startAccelMonitor(monitoring_, period);
}

// A period after the last answer, or after the last request if none came. The window sends it, or ends the
// monitor.
void VLK_Form_Config_Accel_Virtual::slot_timeOut_Query()
{
    if (vlkConfigFull)
        vlkConfigFull->requestAccel();
}

void VLK_Form_Config_Accel_Virtual::slot_pressed_pushButton_Quest()
{
    if (!vlkConfigFull)
        return;
    pending_ = true;
    vlkConfigFull->requestAccel();
}

void VLK_Form_Config_Accel_Virtual::slot_pressed_pushButton_Reset()
{
    if (vlkConfigFull)
        vlkConfigFull->requestAccelResult();
}
