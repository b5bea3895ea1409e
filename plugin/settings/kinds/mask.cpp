#include "settings/kinds/mask.h"

#include "settings/kinds/spelling.h"

namespace vlk {

QString maskPart(const MaskField& field, const QString& mask)
{
    QString part(field.count, QLatin1Char('0'));
    std::transform(field.positions.begin(), field.positions.begin() + field.count, part.begin(),
                   [&](int position) { return QLatin1Char(digitAt(mask, position) != 0 ? '1' : '0'); });
    return part;
}

void setMaskPart(const MaskField& field, QString* mask, const QString& part)
{
    for (std::size_t i = 0; i < field.count; ++i)
        (*mask)[field.positions[i]] = part[static_cast<int>(i)];
}

bool isMaskOn(const MaskField& field, const QString& part)
{
    const QLatin1Char on('1');
    return field.always || (field.anyReads ? part.contains(on) : part.startsWith(on));
}

int maskItem(const MaskField& field, const QString& part)
{
    const auto found = std::find_if(field.items.begin(), field.items.end(),
                                    [&](const Code& item) { return part == QLatin1String(item.code); });
    return found == field.items.end() ? -1 : static_cast<int>(found - field.items.begin());
}

QString fieldText(const MaskField& field)
{
    const QString text = QString::fromLatin1(field.format).arg(translated(field.caption));
    return field.number > 0 ? text.arg(field.number) : text;
}

Normalised normalised(const Mask& row, const Reading& reading)
{
    const QString& text = reading.text;
    QString read(row.length, QLatin1Char('0'));
    std::transform(text.begin(), text.begin() + std::min(text.size(), read.size()), read.begin(),
                   [](QChar sign) { return QLatin1Char(sign.digitValue() > 0 ? '1' : '0'); });
    QString held = row.fields.empty() ? read : QString(row.length, QLatin1Char('0'));
    for (const MaskField& field : row.fields) {
        const QString part = maskPart(field, read);
        if (field.items.empty())
            setMaskPart(field, &held, QString(field.count, QLatin1Char(isMaskOn(field, part) ? '1' : '0')));
        else
            setMaskPart(field, &held, maskItem(field, part) < 0 ? maskPart(field, reading.before) : part);
    }
    return normalisedTo(held, text,
                        text.size() > row.length ? Change::tooLong
                        : held != read           ? Change::notOffered
                                                 : Change::otherForm);
}

QString toldText(const Mask& row, const QString& value, const char* /*unit*/)
{
    QStringList parts;
    for (const MaskField& field : row.fields) {
        const QString part = maskPart(field, value);
        const int item = maskItem(field, part);
        if (part.contains(QLatin1Char('1')))
            parts << (item < 0 ? fieldText(field)
                               : fieldText(field) + QStringLiteral(": ") + codeText(field.items[item]));
    }
    return row.fields.empty() ? value : parts.join(QStringLiteral(", "));
}

} // namespace vlk
