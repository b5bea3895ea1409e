#include "pages/form_lines_in_settings.h"

#include "ui_VLK_Designer_Form_Lines_In_Settings.h"

#include "settings/lines_in_settings.h"
#include "typing/present_value.h"
#include "windows/needed_height.h"
#include "windows/zone_colors.h"

#include <QEvent>

#include <algorithm>

namespace {

using LineForm = Ui::VLK_Designer_Form_Lines_In_Settings;

struct UsePage
{
    const char* code;
    QWidget* LineForm::*page;
    int height;
};

constexpr UsePage kPages[] = {
    {"NU", &LineForm::page_NU, 10},   {"NS-", &LineForm::page_NB, 60},  {"NB-", &LineForm::page_NB, 60},
    {"NS+", &LineForm::page_AIN, 90}, {"NB+", &LineForm::page_AIN, 90}, {"PLS", &LineForm::page_PLS, 180},
    {"FRQ", &LineForm::page_FRQ, 60}, {"AIN", &LineForm::page_UI, 60},  {"TAHO", &LineForm::page_TAHO, 60},
};
constexpr int kHeightWithoutLevels = 60;

const UsePage* pageOf(const QString& code)
{
    const auto* found =
        std::ranges::find_if(kPages, [&](const UsePage& page) { return code == QLatin1String(page.code); });
    return found == std::end(kPages) ? nullptr : found;
}

} // namespace

VLK_Form_Lines_In_Settings::VLK_Form_Lines_In_Settings(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<LineForm>())
{
    ui_->setupUi(this);
    using This = VLK_Form_Lines_In_Settings;
    connect(ui_->pushButton_PLS_ThldBand, &QPushButton::clicked, this, &This::slot_pressed_Btn_PLS_ThldBand);
    connect(ui_->pushButton_FRQ_ThldBand, &QPushButton::clicked, this, &This::slot_pressed_Btn_FRQ_ThldBand);
    connect(ui_->pushButton_TAHO_ThldBand, &QPushButton::clicked, this,
            &This::slot_pressed_Btn_TAHO_ThldBand);
    for (QDoubleSpinBox* box : presentValues())
        vlk::showAsPresent(box);
    retranslate();
    setUse(QStringLiteral("NU"));
}

VLK_Form_Lines_In_Settings::~VLK_Form_Lines_In_Settings() = default;

void VLK_Form_Lines_In_Settings::retranslate()
{
    ui_->retranslateUi(this);
    const QString volt = tr("abbr_011");
    for (QLabel* label :
         {ui_->label_PLS_ThldBand_Min, ui_->label_FRQ_ThldBand_Min, ui_->label_TAHO_ThldBand_Min})
        label->setText(QStringLiteral("0 %1").arg(volt));
    for (QDoubleSpinBox* box : presentValues())
        box->setSuffix(QLatin1Char(' ') + volt);
    showZones();
}

std::array<QDoubleSpinBox*, 4> VLK_Form_Lines_In_Settings::presentValues() const
{
    return {ui_->doubleSpinBox_AIN_Cur, ui_->doubleSpinBox_PLS_AIN_Cur, ui_->doubleSpinBox_FRQ_AIN_Cur,
            ui_->doubleSpinBox_TAHO_AIN_Cur};
}

bool VLK_Form_Lines_In_Settings::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
        fitHeight();
    return QWidget::event(event);
}

void VLK_Form_Lines_In_Settings::setUse(const QString& code)
{
    const UsePage* use = pageOf(code);
    if (!use || code == use_)
        return;
    use_ = code;
    QWidget* page = ui_.get()->*use->page;
    // Pages that are not on show take no room.
    for (int i = 0; i < ui_->stackedWidget_Line->count(); ++i) {
        QWidget* other = ui_->stackedWidget_Line->widget(i);
        const auto policy = other == page ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        other->setSizePolicy(policy, policy);
    }
    ui_->widget_PLS->setVisible(page == ui_->page_PLS);
    ui_->stackedWidget_Line->setCurrentWidget(page);
    fitHeight();
    showZones();
}

void VLK_Form_Lines_In_Settings::setLevelsVisible(bool visible)
{
    levelsVisible_ = visible;
    ui_->groupBox_AIN_Right->setVisible(visible);
    fitHeight();
}

// Large fonts need more than the usual height.
void VLK_Form_Lines_In_Settings::fitHeight()
{
    const UsePage* use = pageOf(use_);
    if (!use)
        return;
    QWidget* page = ui_.get()->*use->page;
    const int usual = page == ui_->page_AIN && !levelsVisible_ ? kHeightWithoutLevels : use->height;
    setFixedHeight(std::max(usual, vlk::neededHeight(page, width())));
}

// A normally open contact triggers above the thresholds, a normally closed one below.
void VLK_Form_Lines_In_Settings::showZones()
{
    const bool above = use_ == QLatin1String("NB+");
    if (!above && use_ != QLatin1String("NS+"))
        return;
    ui_->slider_AIN->setColorLow(above ? vlk::kRestoreColor : vlk::kTriggerColor);
    ui_->slider_AIN->setColorHigh(above ? vlk::kTriggerColor : vlk::kRestoreColor);
    ui_->label_AIN_Left_Zone->setText(above ? tr("cfgt8_049") : tr("cfgt8_050"));
    ui_->label_AIN_Right_Zone->setText(above ? tr("cfgt8_050") : tr("cfgt8_049"));
}

void VLK_Form_Lines_In_Settings::setPresentValue(double volts)
{
    for (QDoubleSpinBox* box : presentValues())
        vlk::showPresentValue(box, volts);
}

void VLK_Form_Lines_In_Settings::clearPresentValue()
{
    for (QDoubleSpinBox* box : presentValues())
        vlk::showNoPresentValue(box);
}

void VLK_Form_Lines_In_Settings::setPresentValueOld(bool old)
{
    for (QDoubleSpinBox* box : presentValues())
        vlk::showAsOld(box, old);
}

void VLK_Form_Lines_In_Settings::setPresentAinValue(double volts)
{
    vlk::showPresentValue(ui_->doubleSpinBox_AIN_Cur, volts);
}

void VLK_Form_Lines_In_Settings::slot_pressed_Btn_PLS_ThldBand()
{
    ui_->horizontalSlider_PLS_ThldBand->setValue(vlk::kFixationLevel);
}

void VLK_Form_Lines_In_Settings::slot_pressed_Btn_FRQ_ThldBand()
{
    ui_->horizontalSlider_FRQ_ThldBand->setValue(vlk::kFixationLevel);
}

void VLK_Form_Lines_In_Settings::slot_pressed_Btn_TAHO_ThldBand()
{
    ui_->horizontalSlider_TAHO_ThldBand->setValue(vlk::kFixationLevel);
}
