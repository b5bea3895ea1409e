#include "telemetry/view/value_rows.h"

#include "telemetry/text/item_text.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

namespace vlk {

namespace {

QLabel* makeLabel(const QString& name)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

QLabel* makeCaption(const QString& name)
{
    return makeLabel(name);
}

QLabel* makeValue(const QString& name)
{
    QLabel* label = makeLabel(name);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 8);
    return label;
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
    int at = grid->count() == 0 ? 0 : grid->rowCount();
    for (const ValueRow& row : rows) {
        const QString name = QString::fromLatin1(row.value);
        QLabel* caption = makeCaption(QString(name).replace(QLatin1String("_Value"), QLatin1String("_Text")));
        QLabel* value = makeValue(name);
        grid->addWidget(caption, at, column);
        grid->addWidget(value, at, column + 1);
        shown_.push_back({&row, caption, value});
        ++at;
    }
    grid->setColumnStretch(column + 1, 1);
}

void ValueRows::retranslate()
{
    for (const Shown& shown : shown_)
        shown.caption->setText(QCoreApplication::translate("vlk", shown.row->key));
}

void ValueRows::fill(const TmiPage_Zeta3& page)
{
    for (const Shown& shown : shown_)
        shown.value->setText(text(page, shown.row->item));
}

} // namespace vlk
