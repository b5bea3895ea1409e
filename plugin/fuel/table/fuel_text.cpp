#include "fuel/table/fuel_text.h"

#include "base/thousands.h"
#include "base/windows1251.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTextCodec>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vlk {

namespace {

// The two cells of a line in the order in which they stand.
using Cells = std::pair<QString, QString>;

constexpr QChar kTab = QLatin1Char('\t');
constexpr QChar kComma = QLatin1Char(',');
constexpr QChar kPoint = QLatin1Char('.');
constexpr QChar kSemicolon = QLatin1Char(';');

QStringList split(const QString& line, QChar separator)
{
    constexpr QChar kQuote = QLatin1Char('"');
    QStringList cells(QString{});
    bool quoted = false;
    for (int i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (c == kQuote && quoted && line.midRef(i + 1, 1) == kQuote)
            cells.last() += line[++i];
        else if (c == kQuote)
            quoted = !quoted;
        else if (c == separator && !quoted)
            cells << QString();
        else
            cells.last() += c;
    }
    return cells;
}

bool isDigits(const QString& cell)
{
    return !cell.isEmpty() && std::ranges::all_of(cell, [](QChar c) { return c.isDigit(); });
}

// A comma may separate two cells, or a number from its decimals.
QStringList splitAtCommas(const QString& line)
{
    QStringList cells = split(line, kComma);
    if (cells.size() == 4 && std::ranges::all_of(cells, isDigits))
        return {cells[0] + kPoint + cells[1], cells[2] + kPoint + cells[3]};
    if (cells.size() > 2 && std::ranges::all_of(cells.begin(), cells.begin() + 3, isDigits))
        return {line};
    return cells;
}

// The headings of a line as they stand.
Cells headsOf(const QString& line)
{
    QStringList cells;
    if (line.contains(kSemicolon))
        cells = split(line, kSemicolon);
    else if (line.contains(kTab))
        cells = split(line, kTab);
    else
        cells = splitAtCommas(line);
    return {cells.value(0).trimmed(), cells.value(1).trimmed()};
}

// Only two cells say where one number ends: blanks within it stand between its thousands then.
Cells numbersOf(const Cells& texts)
{
    const Cells cells(withDecimalPoint(texts.first), withDecimalPoint(texts.second));
    return cells.second.isEmpty()
               ? cells
               : Cells(withoutThousandsBlanks(cells.first), withoutThousandsBlanks(cells.second));
}

Cells cellsOf(const QString& line)
{
    return numbersOf(headsOf(line));
}

// A comma before three digits stands between thousands where the user's decimal sign is the point.
QString withoutGroups(const QString& cell)
{
    static const QRegularExpression groups(QStringLiteral("^\\d{1,3}(,\\d{3})+(\\.\\d*)?$"));
    const bool mayBeGroups = QLocale().decimalPoint() == kPoint;
    return mayBeGroups && groups.match(cell).hasMatch() ? QString(cell).remove(kComma) : cell;
}

Cells pastedCellsOf(const QString& line)
{
    // With commas alone nobody can tell them from those between cells.
    if (!line.contains(kTab) && !line.contains(kSemicolon))
        return cellsOf(line);
    const auto [first, second] = headsOf(line);
    return numbersOf({withoutGroups(first), withoutGroups(second)});
}

FuelRow rowOf(Cells cells, FuelOrder order)
{
    if (order == FuelOrder::ValueFirst)
        std::swap(cells.first, cells.second);
    return {std::move(cells.first), std::move(cells.second)};
}

// Small, without what stands between them.
QStringList wordsOf(const QString& heading)
{
    static const QRegularExpression between(QStringLiteral("\\W+"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return heading.toLower().split(between, Qt::SkipEmptyParts);
}

template <std::size_t Count>
bool beginsWithAny(const QString& word, const QString (&beginnings)[Count])
{
    return std::ranges::any_of(beginnings,
                               [&word](const QString& beginning) { return word.startsWith(beginning); });
}

// Hands over line by line; stops when `take` gives false.
template <class Take>
void forEachLine(const QString& text, Take take)
{
    for (int from = 0; from < text.size();) {
        const int end = text.indexOf(QLatin1Char('\n'), from);
        const int length = (end < 0 ? text.size() : end) - from;
        QString line = text.mid(from, std::min(length, kMaxFuelLine));
        while (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        if (!take(line))
            return;
        from += length + 1;
    }
}

// With which the words of a heading begin, in each language of the texts; a unit is the whole word.
const QString kVolumeWords[] = {QStringLiteral("volume"), QStringLiteral("litre"), QStringLiteral("liter"),
                                QStringLiteral("объём"),  QStringLiteral("объем"), QStringLiteral("литр")};
const QString kVolumeUnits[] = {QStringLiteral("l"), QStringLiteral("л")};
const QString kVoltageWords[] = {QStringLiteral("volt"), QStringLiteral("напряж")};
const QString kLevelWords[] = {QStringLiteral("level"), QStringLiteral("code"), QStringLiteral("уров"),
                               QStringLiteral("код")};
const QString kReadingWords[] = {QStringLiteral("value"), QStringLiteral("reading"),
                                 QStringLiteral("значени"), QStringLiteral("показани")};

template <std::size_t Count>
bool names(const QStringList& words, const QString (&beginnings)[Count])
{
    return std::ranges::any_of(
        words, [&beginnings](const QString& word) { return beginsWithAny(word, beginnings); });
}

bool namesVolume(const QStringList& words)
{
    return names(words, kVolumeWords) || std::ranges::any_of(words, [](const QString& word) {
               return std::ranges::find(kVolumeUnits, word) != std::end(kVolumeUnits);
           });
}

bool namesValue(const QStringList& words)
{
    return names(words, kVoltageWords) || names(words, kLevelWords) || names(words, kReadingWords);
}

std::optional<FuelOrder> orderOf(const Cells& heads, const FuelCaptions& captions)
{
    if (!captions.value.isEmpty() && heads == Cells(captions.value, captions.volume))
        return FuelOrder::ValueFirst;
    if (!captions.value.isEmpty() && heads == Cells(captions.volume, captions.value))
        return FuelOrder::VolumeFirst;
    const QStringList first = wordsOf(heads.first);
    const QStringList second = wordsOf(heads.second);
    if (namesVolume(first) != namesVolume(second))
        return namesVolume(first) ? FuelOrder::VolumeFirst : FuelOrder::ValueFirst;
    if (namesValue(first) != namesValue(second))
        return namesValue(first) ? FuelOrder::ValueFirst : FuelOrder::VolumeFirst;
    return {};
}

// A line of headings: of a CSV file, of the screen, or of whatever a spreadsheet has them called.
std::optional<FuelHeadings> headingsOf(const QString& line, const FuelCaptions& captions)
{
    const auto [first, second] = headsOf(line);
    const std::optional<FuelOrder> order = orderOf({first, second}, captions);
    if (!order)
        return {};
    const QString value = *order == FuelOrder::ValueFirst ? first : second;
    const QStringList words = wordsOf(value);
    const bool isVoltage = names(words, kVoltageWords);
    if (isVoltage == names(words, kLevelWords))
        return FuelHeadings{*order, value, FuelMeasure::Unknown};
    return FuelHeadings{*order, value, isVoltage ? FuelMeasure::Voltage : FuelMeasure::Level};
}

// Why no cell can hold the number; none where one can. One that is written with more digits than it has loses
// them.
std::optional<FuelRefusal> fit(QString& text, const FuelLimit& limit)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return FuelRefusal::NoNumber;
    if (number < 0 || number > limit.top)
        return FuelRefusal::OutOfRange;
    const QString shortest = QString::number(number, 'f', limit.decimals);
    if (std::abs(shortest.toDouble() - number) > 1e-9)
        return FuelRefusal::TooManyDecimals;
    static const QRegularExpression digits(QStringLiteral("^\\d+(\\.\\d+)?$"));
    if (!digits.match(text).hasMatch() || text.section(kPoint, 1).size() > limit.decimals)
        text = shortest;
    return {};
}

QString decoded(const QByteArray& content)
{
    return QTextCodec::codecForUtfText(content, QTextCodec::codecForLocale())->toUnicode(content);
}

} // namespace

QByteArray fuelCsv(const FuelCaptions& captions, const FuelRows& rows)
{
    QString text;
    const auto add = [&text](const QString& value, const QString& volume) {
        text += value + kSemicolon + volume + QLatin1String("\r\n");
    };
    add(captions.value, captions.volume);
    for (const FuelRow& row : rows)
        add(row.value, row.volume);
    return text.toLocal8Bit();
}

std::optional<FuelHeadings> fuelCsvHeadings(const QByteArray& content, const FuelCaptions& captions)
{
    // In another system's encoding figures can be read, headings cannot: then they are tried in each of them.
    const QByteArray start = content.left(kMaxFuelLine);
    std::optional<FuelHeadings> headings;
    for (const QString& text : {decoded(start), QString::fromUtf8(start), fromWindows1251(start)}) {
        forEachLine(text, [&](const QString& line) {
            headings = headingsOf(line, captions);
            return false;
        });
        if (headings)
            break;
    }
    return headings;
}

std::variant<FuelCsv, FuelCsvFault> readFuelCsvByHeadings(const QByteArray& content,
                                                          const FuelCaptions& captions)
{
    const std::optional<FuelHeadings> headings = fuelCsvHeadings(content, captions);
    std::optional<FuelRows> rows = readFuelCsv(content, headings ? headings->order : FuelOrder::ValueFirst);
    if (!rows)
        return FuelCsvFault::NoTable;
    if (headings)
        return FuelCsv{*std::move(rows), headings->value, headings->measure};
    if (!rows->empty())
        return FuelCsvFault::NoOrder;
    return FuelCsv{};
}

std::optional<FuelRows> readFuelCsv(const QByteArray& content, FuelOrder order)
{
    const QString text = decoded(content);
    if (text.contains(QChar(QChar::Null)))
        return {};
    FuelRows rows;
    bool isHeading = true;
    forEachLine(text, [&](const QString& line) {
        if (std::exchange(isHeading, false))
            return true;
        FuelRow row = rowOf(cellsOf(line), order);
        if (!row.value.isEmpty() || !row.volume.isEmpty())
            rows.push_back(std::move(row));
        return rows.size() <= kMaxFuelRows;
    });
    if (rows.size() > kMaxFuelRows)
        return {};
    return rows;
}

QString fuelClipboard(const FuelCaptions& captions, const FuelRows& rows)
{
    const QChar decimalSign = QLocale().decimalPoint();
    QString text = captions.volume + kTab + captions.value + QLatin1Char('\n');
    for (const FuelRow& row : rows)
        text += QString(row.volume + kTab + row.value).replace(kPoint, decimalSign) + QLatin1Char('\n');
    return text;
}

PastedRows readFuelClipboard(const QString& text, const FuelCaptions& captions, const FuelKind& kind,
                             FuelOrder order)
{
    PastedRows pasted{{}, {}, order};
    bool isFirst = true;
    int lineNumber = 0;
    forEachLine(text, [&](const QString& line) {
        ++lineNumber;
        const Cells cells = pastedCellsOf(line);
        if (cells.first.isEmpty() && cells.second.isEmpty())
            return true;
        const bool mayBeHeading = std::exchange(isFirst, false) && !isPoint(rowOf(cells, order));
        const auto headings = mayBeHeading ? headingsOf(line, captions) : std::nullopt;
        if (headings) {
            pasted.order = headings->order;
            pasted.areHeaded = true;
            return true;
        }
        FuelRow row = rowOf(cells, pasted.order);
        // A volume beside an empty cell may be two numbers with a blank between them; where it is one number,
        // the other cell is at fault.
        if (row.value.isEmpty())
            row.volume = withoutThousandsBlanks(row.volume);
        if (const auto ofVolume = fit(row.volume, kVolumeLimit))
            pasted.leftOut.push_back({lineNumber, *ofVolume, true});
        else if (const auto ofValue = fit(row.value, valueLimit(kind)))
            pasted.leftOut.push_back({lineNumber, *ofValue, false});
        else
            pasted.rows.push_back(std::move(row));
        return true;
    });
    if (pasted.rows.size() > kMaxFuelRows) {
        pasted.rows.clear();
        pasted.leftOut.clear();
        for (int line = 1; line <= lineNumber; ++line)
            pasted.leftOut.push_back({line, FuelRefusal::TooManyLines, false});
    }
    return pasted;
}

} // namespace vlk
