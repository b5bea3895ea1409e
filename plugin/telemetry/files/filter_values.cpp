#include "telemetry/files/filter_values.h"

#include <QDateTime>
#include <QRegularExpression>

#include <charconv>

namespace vlk {

namespace {

qint64 secondsOf(const QDate& date, const QTime& clock, QString zone, std::optional<qint32> utcOffset)
{
    if (zone.isEmpty() && !utcOffset)
        return QDateTime(date, clock, Qt::LocalTime).toSecsSinceEpoch();
    qint64 offset = utcOffset.value_or(0);
    if (!zone.isEmpty()) {
        zone.remove(QLatin1Char(':'));
        const int minutes = zone.midRef(1, 2).toInt() * 60 + zone.midRef(3, 2).toInt();
        offset = zone[0] == QLatin1Char('-') ? -60 * minutes : 60 * minutes;
    }
    return QDateTime(date, clock, Qt::UTC).toSecsSinceEpoch() - offset;
}

} // namespace

std::optional<double> typedNumber(const QString& text, int position, int* end)
{
    static const QRegularExpression form(
        QStringLiteral("[+-]?\\d+(?:[.,]\\d+)?(?:[eE][+-]?\\d+)?(?![\\w.,:-])"),
        QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match =
        form.match(text, position, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
    if (!match.hasMatch())
        return std::nullopt;
    QByteArray digits = match.captured().toLatin1().replace(',', '.');
    if (digits.startsWith('+'))
        digits.remove(0, 1);
    double number = 0;
    const auto [last, error] = std::from_chars(digits.constBegin(), digits.constEnd(), number);
    if (error != std::errc() || last != digits.constEnd())
        return std::nullopt;
    *end = match.capturedEnd();
    return number;
}

std::optional<MomentSpan> typedMoment(const QString& text, int position, std::optional<qint32> utcOffset,
                                      int* end)
{
    static const QRegularExpression form(
        QStringLiteral("(?:(?<day>[0-9]{1,2})\\.(?<month>[0-9]{1,2})\\.(?<year>[0-9]{4})"
                       "|(?<year2>[0-9]{4})-(?<month2>[0-9]{2})-(?<day2>[0-9]{2}))"
                       "(?:(?: +|T)(?<hour>[0-9]{1,2}):(?<minute>[0-9]{2})(?::(?<second>[0-9]{2}))?"
                       "(?<zone>Z|[+-][0-9]{2}:?[0-9]{2})?)?(?![0-9A-Za-z:])"));
    const QRegularExpressionMatch match =
        form.match(text, position, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
    const auto part = [&](const char* name) { return match.captured(QLatin1String(name)); };
    const auto either = [&](const char* name, const char* other) {
        return part(part(name).isEmpty() ? other : name).toInt();
    };
    const QDate date(either("year", "year2"), either("month", "month2"), either("day", "day2"));
    const QTime clock(part("hour").toInt(), part("minute").toInt(), part("second").toInt());
    if (!match.hasMatch() || !date.isValid() || !clock.isValid())
        return std::nullopt;
    *end = match.capturedEnd();
    const qint64 first = secondsOf(date, clock, part("zone"), utcOffset);
    const int span = part("hour").isEmpty() ? 86'400 : part("second").isEmpty() ? 60 : 1;
    return MomentSpan{first, first + span - 1};
}

} // namespace vlk
