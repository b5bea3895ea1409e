#include "road/setting_advice.h"

#include <algorithm>

namespace workbench {

namespace {

QString placeOf(QStringList parts)
{
    parts.removeAll(QString());
    return parts.isEmpty() ? QString() : parts.join(QStringLiteral(", ")) + QStringLiteral(": ");
}

bool isToldBy(const QString& refused, const SettingAdvice& advice)
{
    const QString place = placeOf({advice.group, advice.caption});
    return advice.isError && !place.isEmpty() && refused.startsWith(place);
}

} // namespace

QString SettingAdvice::line() const
{
    return placeOf({page, group, caption}) + text;
}

void addRefused(QVector<SettingAdvice>* advice, const QStringList& refused)
{
    for (const QString& line : refused) {
        const auto tells = [&](const SettingAdvice& told) { return isToldBy(line, told); };
        if (std::ranges::none_of(*advice, tells))
            advice->append({.page = {}, .group = {}, .caption = {}, .text = line, .isTyped = true});
    }
    std::ranges::stable_sort(*advice, {}, [](const SettingAdvice& told) {
        return told.isError ? 0 : told.isTyped ? 1 : 2;
    });
}

QStringList toLookAt(const QVector<SettingAdvice>& advice)
{
    QStringList lines;
    for (const SettingAdvice& told : advice) {
        if (told.isError || told.isTyped)
            lines.append(told.line());
    }
    return lines;
}

} // namespace workbench
