#include "telemetry/view/value_rows.h"

#include "telemetry/view/item_display.h"
#include "telemetry/view/value_label.h"
#include "telemetry/view/value_width.h"
#include "typing/grid.h"
#include "typing/present_value.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

namespace vlk {

QLabel* makeCaption(const QString& name)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

ValueLabel* makeValue(const QString& name)
{
    auto* label = new ValueLabel(name);
    showAsPresent(label);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 8);
    return label;
}

int widthOfTime(const QLabel* label)
{
    return label->fontMetrics().horizontalAdvance(QStringLiteral("00:00:00 00.00.0000 (UTC +00)"));
}

QHBoxLayout* besideEachOther(std::initializer_list<QLabel*> labels)
{
    auto* layout = new QHBoxLayout;
    layout->setSpacing(grid::kColumn);
    for (QLabel* label : labels) {
        label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        label->setMinimumWidth(0);
        layout->addWidget(label);
    }
    layout->addStretch();
    return layout;
}

QStringList partsAroundValues(const QString& text)
{
    QStringList parts = text.split(QStringLiteral("<val>"), Qt::KeepEmptyParts, Qt::CaseInsensitive);
    for (QString& part : parts)
        part = part.trimmed();
    return parts;
}

void ValueRows::add(QGridLayout* grid, std::span<const ValueRow> rows, int column)
{
    int at = 0;
    while (grid->itemAtPosition(at, column))
        ++at;
    for (const ValueRow& row : rows) {
        const QString name = QString::fromLatin1(row.value);
        QLabel* caption = makeCaption(QString(name).replace(QLatin1String("_Value"), QLatin1String("_Text")));
        ValueLabel* value = makeValue(name);
        grid->addWidget(caption, at, column);
        QLabel* unit = row.unit ? makeCaption(QString::fromLatin1(row.unit)) : nullptr;
        if (!unit)
            grid->addWidget(value, at, column + 1);
        else
            grid->addLayout(besideEachOther({value, unit}), at, column + 1);
        shown_.push_back({row, caption, value, unit});
        ++at;
    }
    grid->setColumnStretch(column + 1, 1);
}

void ValueRows::retranslate()
{
    for (const Shown& shown : shown_) {
        const QStringList parts = partsAroundValues(QCoreApplication::translate("vlk", shown.row.key));
        shown.caption->setText(parts.value(0));
        if (!shown.unit)
            shown.value->setMinimumWidth(widestText(shown.value->fontMetrics(), shown.row.item));
        else
            shown.unit->setText(shown.row.unitKey ? QCoreApplication::translate("vlk", shown.row.unitKey)
                                                  : parts.value(1));
    }
}

void ValueRows::fill(const TmiPage_Zeta3& page)
{
    for (const Shown& shown : shown_)
        showItem(*shown.value, page, shown.row.item);
}

} // namespace vlk
