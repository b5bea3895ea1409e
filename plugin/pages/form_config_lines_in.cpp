#include "pages/form_config_lines_in.h"

#include "ui_VLK_Designer_Form_Config_Lines_In.h"

#include "link/messages.h"
#include "pages/form_lines_in_settings.h"
#include "settings/lines_in_settings.h"
#include "windows/wnd_config_full.h"

#include <QtEndian>

namespace {

constexpr const char* kUses[] = {"IN1/normState", "IN2/normState", "IN3/normState"};

// The lines as the tracker numbers them.
constexpr int kFirstLine = 21;
constexpr char kLines[] = "21,22,23";
constexpr int kAnswerHead = 7;

double volts(unsigned millivolts)
{
    return millivolts / 1000.0;
}

} // namespace

VLK_Form_Config_Lines_In::VLK_Form_Config_Lines_In(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_Lines_In>()),
      settings_(vlk::kLinesInSettings, "cfgt8_001")
{
    ui_->setupUi(this);
    age_.tellIn(ui_->label_Quest_Since);
    lines_ = {ui_->lineSettings_In1, ui_->lineSettings_In2, ui_->lineSettings_In3};
    lines_[0]->setLevelsVisible(false);
    settings_.bind(this, {lines_.begin(), lines_.end()});
    using This = VLK_Form_Config_Lines_In;
    connect(ui_->checkBox_AutoQuest, &QCheckBox::stateChanged, this, &This::slot_stateChanged_checkBox_Auto);
    connect(ui_->pushButton_Quest, &QPushButton::clicked, this, &This::slot_pressed_pushButton_Quest);
    connect(&settings_, &vlk::PageSettings::changed, this, &This::showUses);
    connect(&settings_, &vlk::PageSettings::shown, this, &This::showUses);
    connect(&age_, &vlk::PresentAge::changed, this, [this] {
        for (VLK_Form_Lines_In_Settings* line : lines_)
            line->setPresentValueOld(age_.isOld());
    });
    retranslate();
    setDefaults();
}

VLK_Form_Config_Lines_In::~VLK_Form_Config_Lines_In() = default;

void VLK_Form_Config_Lines_In::retranslate()
{
    ui_->retranslateUi(this);
    ui_->spinBox_AutoQuest_TimeOut->setSuffix(QLatin1Char(' ') + tr("abbr_003"));
    settings_.retranslate();
    age_.retranslate();
    for (VLK_Form_Lines_In_Settings* line : lines_)
        line->retranslate();
}

void VLK_Form_Config_Lines_In::setDefaults()
{
    settings_.setDefaults();
    stopAuto();
    for (VLK_Form_Lines_In_Settings* line : lines_)
        line->clearPresentValue();
    age_.clear();
}

void VLK_Form_Config_Lines_In::showUses()
{
    for (std::size_t line = 0; line < std::size(kUses); ++line)
        lines_[line]->setUse(settings_.value(kUses[line]));
}

void VLK_Form_Config_Lines_In::showLineValues(const QByteArray& answer)
{
    for (const QByteArray& pair : answer.mid(kAnswerHead).split(',')) {
        const int colon = pair.indexOf(':');
        if (colon < 0)
            return;
        bool known = false;
        const std::size_t line = pair.left(colon).toUInt(&known) - kFirstLine;
        bool measured = false;
        const unsigned millivolts = pair.mid(colon + 1).toUInt(&measured, 16);
        if (known && measured && line < lines_.size()) {
            lines_[line]->setPresentValue(volts(millivolts));
            age_.answered();
        }
    }
}

void VLK_Form_Config_Lines_In::showAnalogRecord(const uchar* record)
{
    if (!record)
        return;
    for (std::size_t line = 0; line < lines_.size(); ++line)
        lines_[line]->setPresentAinValue(
            volts(qFromLittleEndian<quint16>(record + vlk::kAnalogRecordLine1 + 2 * line)));
    age_.answered();
}

void VLK_Form_Config_Lines_In::stopAuto()
{
    ui_->checkBox_AutoQuest->setChecked(false);
    age_.setPaused(false);
}

void VLK_Form_Config_Lines_In::pauseAuto()
{
    stopAuto();
    age_.setPaused(true);
}

void VLK_Form_Config_Lines_In::resumeAuto()
{
    ui_->checkBox_AutoQuest->setChecked(true);
}

void VLK_Form_Config_Lines_In::slot_stateChanged_checkBox_Auto(int state)
{
    const bool on = state != Qt::Unchecked;
    ui_->spinBox_AutoQuest_TimeOut->setDisabled(on);
    ui_->pushButton_Quest->setDisabled(on);
    const int period = on ? ui_->spinBox_AutoQuest_TimeOut->value() * 1000 : 0;
    age_.setPeriod(period);
    if (vlkConfigFull)
        vlkConfigFull->startLinesMonitor(on, kLines, period);
}

void VLK_Form_Config_Lines_In::slot_pressed_pushButton_Quest()
{
    if (vlkConfigFull)
        vlkConfigFull->requestLines(kLines);
}
