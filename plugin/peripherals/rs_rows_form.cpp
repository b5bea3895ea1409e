#include "peripherals/rs_rows_form.h"

#include "settings/rs_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace vlk {

namespace {

constexpr char kTypes[] = "comboBox_Type";

QWidget* makeInput(const Setting& setting)
{
    if (setting.is<Flag>())
        return new QCheckBox;
    if (setting.is<Choice>())
        return new QComboBox;
    if (setting.is<Text>())
        return new QLineEdit;
    return new QSpinBox;
}

} // namespace

RsRowsForm::RsRowsForm(const char* owner, const char* title, QWidget* parent)
    : VLK_Form_Config_RS_Param(parent), group_(new QGroupBox(this)), lines_(new QGridLayout(group_)),
      owner_(owner), title_(title)
{
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(group_);
    whole->addStretch(1);
    lines_->setHorizontalSpacing(8);
    lines_->setVerticalSpacing(6);
    lines_->setColumnStretch(2, 1);
    group_->setObjectName(QStringLiteral("groupBox"));
    for (const Setting& setting : kRsSettings.rows) {
        if (const Shown* shown = setting.shown(); shown && shown->widget.form() == owner)
            addLine(setting, QString::fromLatin1(shown->widget.tail));
    }
    types_ = group_->findChild<QComboBox*>(QLatin1String(kTypes));
}

void RsRowsForm::addLine(const Setting& setting, const QString& name)
{
    QWidget* input = makeInput(setting);
    input->setObjectName(name);
    const int line = lines_->rowCount();
    if (setting.is<Flag>()) {
        lines_->addWidget(input, line, 0, 1, 3);
        return;
    }
    auto* label = new QLabel;
    label->setObjectName(QStringLiteral("label_") + name);
    label->setBuddy(input);
    lines_->addWidget(label, line, 0);
    lines_->addWidget(input, line, 1);
}

void RsRowsForm::retranslate()
{
    group_->setTitle(tr(title_));
}

void RsRowsForm::applyLineSettings()
{
    if (types_)
        tellLineOf(types_->currentText());
}

void RsRowsForm::tellLineOf(const QString& type)
{
    const int item = types_->findText(type, Qt::MatchExactly | Qt::MatchCaseSensitive);
    const QString code = types_->itemData(item).toString();
    for (const RsLine& line : kRsLines) {
        if (item >= 0 && QLatin1String(line.owner) == QLatin1String(owner_) &&
            QLatin1String(line.type) == code)
            Q_EMIT changeRs_Settings(QString::fromLatin1(line.speed), QStringLiteral("None"),
                                     QStringLiteral("1"));
    }
}

} // namespace vlk
