#include "telemetry/files/csv_columns.h"

#include "telemetry/files/csv_rows.h"

#include <QRegularExpression>

#include <algorithm>

namespace vlk {

namespace {

constexpr std::string_view kMarker = "<val>";

// The n-th of the parts apart by "|"; empty behind the last.
constexpr std::string_view part(std::string_view text, int n)
{
    for (; n > 0 && !text.empty(); --n)
        text.remove_prefix(std::min(text.find('|'), text.size() - 1) + 1);
    return text.substr(0, text.find('|'));
}

constexpr int partCount(std::string_view text)
{
    return static_cast<int>(std::ranges::count(text, '|')) + 1;
}

constexpr std::array<CsvColumn, kCsvColumnCount> kColumns = [] {
    std::array<CsvColumn, kCsvColumnCount> columns{};
    int first = 0;
    int item = 0; // the next one looked for is mostly the next one there is
    for (std::size_t row = 0; row < std::size(csv::kCsvRows); ++row) {
        const csv::CsvRow& source = csv::kCsvRows[row];
        const int lists = partCount(source.items);
        const int headings = partCount(source.heading);
        int count = 0;
        for (int list = 0; list < lists; ++list) {
            int position = list;
            const auto add = [&](std::string_view, const items::ItemName& name, int) {
                for (int steps = 0; kItems[item].name != std::string_view(name); ++steps) {
                    item = (item + 1) % kItemCount;
                    if (steps == kItemCount)
                        throw "a column names an item that does not exist";
                }
                if (first + position >= kCsvColumnCount)
                    throw "fewer columns were expected";
                columns[first + position] = {static_cast<ItemIndex>(item), static_cast<std::uint8_t>(row),
                                             static_cast<std::uint8_t>(position % headings),
                                             static_cast<std::uint8_t>(source.first + position / headings)};
                position += lists;
                ++count;
            };
            items::forEachName(part(source.items, list), add);
        }
        first += count;
    }
    if (first != kCsvColumnCount)
        throw "more columns were expected";
    return columns;
}();

static_assert(std::ranges::none_of(kColumns, [](const CsvColumn& column) {
    return kItems[column.item].rule().shape == Shape::Special;
}));

// With a number it takes the place of the marker, or stands behind a text that has none; without one the text
// ends at the marker.
QString wordText(const QString& key, const QString& number)
{
    const QString text = Word(key.toLatin1().constData()).text();
    const int marker = text.indexOf(QLatin1String(kMarker.data(), kMarker.size()));
    if (number.isEmpty())
        return text.left(marker);
    if (marker < 0)
        return text + QLatin1Char(' ') + number;
    return text.left(marker) + number + text.mid(marker + static_cast<int>(kMarker.size()));
}

ItemIndex itemIn(const TmiPage_Zeta3& page, const CsvColumn& column)
{
    const bool isFixOfPacket = column.item == item("StateNGauge.fix") && page.isExtra();
    return isFixOfPacket ? item("StateNGauge.fixOfPacket") : column.item;
}

} // namespace

std::span<const CsvColumn, kCsvColumnCount> csvColumns()
{
    return kColumns;
}

QString headingText(const CsvColumn& column)
{
    static const QRegularExpression variable(
        QStringLiteral("(?<family>tmizta_|abbr_)(?<digits>\\d{3})(?<next>\\+\\+)?(?<number>#)?|#"));
    const csv::CsvRow& row = csv::kCsvRows[column.row];
    const std::string_view form = part(row.heading, column.heading);
    const QString pattern = QString::fromUtf8(form.data(), static_cast<int>(form.size()));
    const QString number = QString::number(column.number);

    QString text;
    int done = 0;
    for (auto found = variable.globalMatch(pattern); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        text += pattern.midRef(done, match.capturedStart() - done);
        done = match.capturedEnd();
        const QString family = match.captured(QStringLiteral("family"));
        if (family.isEmpty()) {
            text += number;
            continue;
        }
        const int steps = match.captured(QStringLiteral("next")).isEmpty() ? 0 : column.number - row.first;
        const int key = match.captured(QStringLiteral("digits")).toInt() + steps;
        text += wordText(family + QStringLiteral("%1").arg(key, 3, 10, QLatin1Char('0')),
                         match.captured(QStringLiteral("number")).isEmpty() ? QString() : number);
    }
    return text + pattern.midRef(done);
}

TextParts cellParts(const TmiPage_Zeta3& page, const CsvColumn& column, const TextOptions& options)
{
    return textParts(page, itemIn(page, column), options);
}

QString cellText(const TmiPage_Zeta3& page, const CsvColumn& column, const TextOptions& options)
{
    return text(page, itemIn(page, column), options);
}

bool isInPackets(const CsvColumn& column)
{
    constexpr auto& elements = ExtraPacket::kElementsOfHead;
    return std::ranges::find(elements, column.element(), &ExtraPacket::HeadElement::element) !=
           elements.end();
}

} // namespace vlk
