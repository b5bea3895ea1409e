#include "dataset/form_config_set_zeta3.h"

#include "ui_VLK_Designer_Form_Config_Set_Zeta3.h"

#include "catalogue/field_mask.h"
#include "dataset/data_set_tabs.h"
#include "settings/data_set_settings.h"
#include "windows/form_param_about.h"
#include "windows/tab_menu.h"
#include "windows/vlk_menuaction.h"

#include <QMenu>
#include <QMouseEvent>

namespace {

const QColor kAlarm(255, 0, 0);
const QColor kNoAlarm(120, 120, 120);

void colourText(QWidget* widget, QPalette palette, const QColor& colour)
{
    palette.setColor(QPalette::WindowText, colour);
    widget->setPalette(palette);
}

using Tab = VLK_Form_Config_Set_Zeta3_Tab;

} // namespace

VLK_Form_Config_Set_Zeta3::VLK_Form_Config_Set_Zeta3(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_Set_Zeta3>()),
      help_(std::make_unique<VLK_Form_Param_About>()), settings_(vlk::kDataSetSettings, "cfgt2_001")
{
    ui_->setupUi(this);
    QPalette alarm = ui_->label_MaxSize_Alarm->palette();
    alarm.setColor(QPalette::WindowText, kAlarm);
    alarm.setColor(QPalette::Disabled, QPalette::WindowText, kNoAlarm);
    ui_->label_MaxSize_Alarm->setPalette(alarm);
    connect(ui_->comboBox_FlashFormat, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &VLK_Form_Config_Set_Zeta3::slot_currentIndexChanged_FlashFormat);
    connect(ui_->toolButton_Help, &QToolButton::clicked, this,
            &VLK_Form_Config_Set_Zeta3::slot_pressed_BtnHelp);
    connect(&tabs(), &vlk::DataSetTabs::recordSizeChanged, this, &VLK_Form_Config_Set_Zeta3::checkSize);
    connect(tabs().menu().menu(), &QMenu::triggered, this, &VLK_Form_Config_Set_Zeta3::slot_triggered_Menu);
    checkSize();
}

VLK_Form_Config_Set_Zeta3::~VLK_Form_Config_Set_Zeta3() = default;

void VLK_Form_Config_Set_Zeta3::finish()
{
    settings_.bind({this});
    retranslate();
    setDefaults();
}

vlk::DataSetTabs& VLK_Form_Config_Set_Zeta3::tabs() const
{
    return *ui_->tabWidget_Zeta3;
}

void VLK_Form_Config_Set_Zeta3::retranslate()
{
    ui_->retranslateUi(this);
    ui_->label_Size_Text1->setText(QStringLiteral("%1:").arg(tr("cfgt2_003")));
    ui_->toolButton_Help->setAccessibleName(tr("wrd_027").remove(QLatin1Char('&')));
    help_->retranslate();
    tabs().retranslate();
    settings_.retranslate();
}

void VLK_Form_Config_Set_Zeta3::setDefaults()
{
    excess_ = false;
    change([this] {
        settings_.setDefaults();
        slot_currentIndexChanged_FlashFormat(ui_->comboBox_FlashFormat->currentIndex());
        tabs().forEach([](Tab& tab) { tab.afterDefaults(); });
    });
}

void VLK_Form_Config_Set_Zeta3::loadFromXml(CXmlSection* root)
{
    change([&] { settings_.load(root); });
}

void VLK_Form_Config_Set_Zeta3::deviceConnected()
{
    tabs().forEach([](Tab& tab) { tab.onDeviceConnected(); });
}

void VLK_Form_Config_Set_Zeta3::deviceDisconnected()
{
    tabs().forEach([](Tab& tab) { tab.onDeviceDisconnected(); });
}

void VLK_Form_Config_Set_Zeta3::userParamAdded(const QString& code, const QString& name, const QString& third,
                                               int size)
{
    tabs().forEach([&](Tab& tab) { tab.userParamAdded(code, name, third, size); });
}

void VLK_Form_Config_Set_Zeta3::userParamDeleted(const QString& code, const QString& name,
                                                 const QString& third, int size)
{
    tabs().forEach([&](Tab& tab) { tab.userParamDeleted(code, name, third, size); });
}

void VLK_Form_Config_Set_Zeta3::loadUserParams(CXmlSection* root)
{
    change([&] { tabs().forEach([&](Tab& tab) { tab.loadUserParams(root); }); });
}

void VLK_Form_Config_Set_Zeta3::saveUserParams(CXmlSection* root)
{
    tabs().forEach([&](Tab& tab) { tab.saveUserParams(root); });
}

void VLK_Form_Config_Set_Zeta3::change(const std::function<void()>& boxes)
{
    changing_ = true;
    boxes();
    changing_ = false;
    checkSize();
}

void VLK_Form_Config_Set_Zeta3::checkSize()
{
    if (changing_)
        return;
    const int size = tabs().recordSize();
    const bool excess = size > vlk::kLargestRecord;
    ui_->label_Size_Value->setPalette({});
    if (excess)
        colourText(ui_->label_Size_Value, palette(), kAlarm);
    ui_->label_MaxSize_Alarm->setVisible(excess);
    tabs().forEach([&](Tab& tab) { tab.sizeWithinLimit(!excess); });
    if (excess != excess_) {
        excess_ = excess;
        Q_EMIT signal_Excess_Size(excess);
    }
    ui_->label_Size_Value->setText(QString::number(size));
}

void VLK_Form_Config_Set_Zeta3::slot_currentIndexChanged_FlashFormat(int index)
{
    tabs().forEach([index](Tab& tab) { tab.enableFormat20(index >= 1); });
    tabs().forEach([index](Tab& tab) { tab.enableFormat30(index >= 2); });
}

void VLK_Form_Config_Set_Zeta3::slot_pressed_BtnHelp()
{
    help_->setTitle(tr("cfgt2_007"));
    help_->setHtml(QStringLiteral("%1<br>%2").arg(tr("cfgt2_008"), tr("cfgt2_009")));
    help_->show();
}

void VLK_Form_Config_Set_Zeta3::slot_triggered_Menu(QAction* action)
{
    if (const auto* entry = qobject_cast<VLK_MenuAction*>(action))
        tabs().menu().goTo(entry->tabIndex());
}

void VLK_Form_Config_Set_Zeta3::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton)
        tabs().menu().menu()->popup(event->globalPos());
    else
        QWidget::mousePressEvent(event);
}
