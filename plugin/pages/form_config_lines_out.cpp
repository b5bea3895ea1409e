#include "pages/form_config_lines_out.h"

#include "ui_VLK_Designer_Form_Config_Lines_Out.h"

#include "review/value_text.h"
#include "settings/lines_out_settings.h"

VLK_Form_Config_Lines_Out::VLK_Form_Config_Lines_Out(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_Lines_Out>()),
      settings_(vlk::kLinesOutSettings, "cfgt10_001")
{
    ui_->setupUi(this);
    settings_.bind({this});
    retranslate();
    setDefaults();
}

VLK_Form_Config_Lines_Out::~VLK_Form_Config_Lines_Out() = default;

void VLK_Form_Config_Lines_Out::retranslate()
{
    ui_->retranslateUi(this);
    ui_->groupBox_O1->setTitle(QStringLiteral("%1 O1").arg(tr("cfgt10_048")));
    settings_.retranslate();
}

void VLK_Form_Config_Lines_Out::slot_currentIndexChanged_UseAs_O1(const QString& use)
{
    for (const vlk::Code& code : vlk::kOutputUses) {
        if (vlk::codeText(code) == use)
            settings_.edit("LINE1/use", QString::fromLatin1(code.code));
    }
}
