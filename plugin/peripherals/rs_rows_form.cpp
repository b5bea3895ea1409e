#include "peripherals/rs_rows_form.h"

#include "settings/rs_settings.h"
#include "typing/grid.h"
#include "windows/binder/row_inputs.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>

namespace vlk {

namespace {

constexpr char kTypes[] = "comboBox_Type";

} // namespace

RsRowsForm::RsRowsForm(const char* owner, const char* title, QWidget* parent)
    : VLK_Form_Config_RS_Param(parent), group_(new QGroupBox(this)), lines_(new QGridLayout(group_)),
      owner_(owner), title_(title)
{
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(group_);
    whole->addStretch(1);
    lines_->setHorizontalSpacing(vlk::grid::kColumn);
    lines_->setVerticalSpacing(vlk::grid::kRow);
    lines_->setColumnStretch(2, 1);
    group_->setObjectName(QStringLiteral("groupBox"));
    RowLines lines(lines_, RowLines::Look::Simple);
    for (const Setting* setting : rowsOfForm(kRsSettings, owner))
        lines.add(*setting);
    types_ = group_->findChild<QComboBox*>(QLatin1String(kTypes));
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
