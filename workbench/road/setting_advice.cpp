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
            advice->append({.isError = true, .page = {}, .group = {}, .caption = {}, .text = line});
    }
    std::stable_partition(advice->begin(), advice->end(),
                          [](const SettingAdvice& told) { return told.isError; });
}

QStringList errorsIn(const QVector<SettingAdvice>& advice)
{
    QStringList errors;
    for (const SettingAdvice& told : advice) {
        if (told.isError)
            errors.append(told.line());
    }
    return errors;
}

} // namespace workbench
