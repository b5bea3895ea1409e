#include "telemetry/files/number_table_writer.h"

#include "base/csv_line.h"
#include "telemetry/files/column_offsets.h"
#include "telemetry/files/csv_columns.h"
#include "telemetry/files/json_writer.h"
#include "telemetry/files/number_cells.h"
#include "telemetry/files/title_lines.h"
#include "telemetry/text/unit_word.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace vlk {

namespace {

constexpr ElementIndex kHeadOfAll[] = {element("NumPage"), element("Code"), element("Time")};

// Elements that say by a bit in which unit they are: a column for each.
struct TwoUnits
{
    ElementIndex element;
    ItemIndex items[2];
};
constexpr TwoUnits kTwoUnits[] = {
    {element("CAN_FuelLevel"), {item("CAN_FuelLevel.percent"), item("CAN_FuelLevel.litres")}},
    {element("CAN_LevelFiltr"), {item("CAN_LevelFiltr.percent"), item("CAN_LevelFiltr.litres")}},
};

bool isInRecords(ElementIndex index, const ExportAhead& ahead)
{
    const bool isAlways = std::ranges::find(kHeadOfAll, index) != std::end(kHeadOfAll);
    const bool isInHead =
        std::ranges::find(ExtraPacket::kElementsOfHead, index, &ExtraPacket::HeadElement::element) !=
        ExtraPacket::kElementsOfHead.end();
    return isAlways || ahead.fields.test(kElements[index].field) || (ahead.hasPackets && isInHead);
}

std::vector<ElementIndex> elementsOf(const ExportAhead& ahead, const ExportOptions& options)
{
    std::vector<ElementIndex> elements;
    for (const FilterColumn& column : options.columns) {
        if (std::ranges::find(elements, elementOf(column)) == elements.end())
            elements.push_back(elementOf(column));
    }
    for (int i = 0; i < kElementCount && options.columns.empty(); ++i) {
        const auto index = static_cast<ElementIndex>(i);
        if (options.archive || isInRecords(index, ahead))
            elements.push_back(index);
    }
    return elements;
}

// The column of a table of texts that shows the cell and nothing else of its element; null for none.
const CsvColumn* columnOf(const NumberCell& cell)
{
    const CsvColumn* found = nullptr;
    for (const CsvColumn& column : csvColumns()) {
        if (cell.kind == NumberCell::OfItem ? column.item != cell.item : column.element() != cell.element)
            continue;
        if (found)
            return nullptr;
        found = &column;
    }
    if (!found || cell.kind == NumberCell::AsFile)
        return nullptr;
    const Item& item = kItems[found->item];
    const Rule& rule = item.rule();
    const bool isWhole =
        cell.kind == NumberCell::OfItem || (rule.bits.count == 0 && rule.shape != Shape::TwoState);
    const bool isInItsUnit = cell.kind == NumberCell::Moment || measureOf(item, rule).unit == cell.unit;
    return isWhole && isInItsUnit ? found : nullptr;
}

class NumberTableWriter : public ExportWriter
{
public:
    NumberTableWriter(ExportForm form, const ExportAhead& ahead, const ExportOptions& options)
        : isCsv_(form == ExportForm::Csv), separator_(!isCsv_                ? '\t'
                                                      : options.decimalComma ? ';'
                                                                             : ','),
          isMarked_(options.isMarked), heading_(options.heading), isArchive_(options.archive),
          hasEntries_(options.columns.empty() && (options.archive || ahead.hasPackets)),
          absent_(options.archive ? "\\N" : ""), cells_(cellsOf(ahead, options)),
          offsets_(elementsIn(cells_), true), numbers_(options.utcOffset, options.decimalComma ? ',' : '.'),
          tracker_(field(options.origin.trackerId.toUtf8())),
          row_((cells_.size() + 1) * (NumberCells::kLongest + 1)), written_(cells_.size())
    {
    }

    void begin(OutputBuffer& out) override
    {
        QByteArrayList headings;
        if (isArchive_)
            headings << "tracker";
        for (const NumberCell& cell : cells_)
            headings << field(headingOf(cell));
        if (hasEntries_)
            headings << "Dynamic";
        out << (isMarked_ ? "\xEF\xBB\xBF" : "") << headings.join(separator_) << rowEnd();
    }

    void add(OutputBuffer& out, const RecordStore& store, std::span<const int> records) override
    {
        for (const int record : records)
            addRow(out, store, record);
    }

    void finish(OutputBuffer& /*out*/) override {}

private:
    // What a cell had in the record before: most have it again.
    struct Written
    {
        std::uint64_t raw = 0;
        std::size_t size = 0;
        std::array<char, NumberCells::kLongest> text{};
    };

    static std::vector<NumberCell> cellsOf(const ExportAhead& ahead, const ExportOptions& options)
    {
        const std::string userTypes = typeLetters(options.origin.titles).toLatin1().toStdString();
        std::vector<NumberCell> cells;
        for (const ElementIndex index : elementsOf(ahead, options)) {
            const auto* const two = std::ranges::find(kTwoUnits, index, &TwoUnits::element);
            if (options.raw)
                cells.push_back(rawCell(index));
            else if (two == std::end(kTwoUnits))
                cells.push_back(numberCell(index, userTypes));
            else
                std::ranges::transform(two->items, std::back_inserter(cells),
                                       [](ItemIndex item) { return numberCell(item); });
        }
        return cells;
    }

    static std::vector<ElementIndex> elementsIn(const std::vector<NumberCell>& cells)
    {
        std::vector<ElementIndex> elements;
        std::ranges::transform(cells, std::back_inserter(elements), &NumberCell::element);
        return elements;
    }

    QByteArray headingOf(const NumberCell& cell) const
    {
        if (const CsvColumn* const column = heading_ ? columnOf(cell) : nullptr)
            return heading_(*column).toUtf8();
        const std::string_view name = kElements[cell.element].name;
        const QByteArray heading(name.data(), static_cast<int>(name.size()));
        const Word& unit = unitWord(cell.unit);
        return unit ? heading + ", " + unit.text().toUtf8() : heading;
    }

    // A text as a cell; tabs and ends of lines have no place in text with tabs.
    QByteArray field(QByteArray text) const
    {
        if (isCsv_)
            return csvCell(text, separator_);
        return text.replace('\\', "\\\\").replace('\t', "\\t").replace('\n', "\\n").replace('\r', "\\r");
    }

    std::string_view rowEnd() const { return isCsv_ ? "\r\n" : "\n"; }

    void addRow(OutputBuffer& out, const RecordStore& store, int record)
    {
        const RecordLayout& layout = store.layout(record);
        const std::span<const int> offsets = offsets_.of(layout);
        const auto bytes = store.bytes(record);
        // An archive has it in its key.
        const bool isNumbered = isArchive_ || layout.has(element("NumPage"));
        char* end = row_.data();
        for (std::size_t i = 0; i < cells_.size(); ++i) {
            const bool isNone = !isNumbered && cells_[i].element == element("NumPage");
            if (offsets[i] == ColumnOffsets::kAbsent || isNone)
                end = std::ranges::copy(absent_, end).out;
            else
                end = putCell(end, i, rawIn(bytes, offsets[i], kElements[cells_[i].element].width));
            *end++ = separator_;
        }
        if (isArchive_)
            out << tracker_ << std::string_view(&separator_, 1);
        // The last separator stands only before the entries.
        const auto size = static_cast<std::size_t>(end - row_.data());
        out << std::string_view(row_.data(), hasEntries_ || size == 0 ? size : size - 1);
        if (hasEntries_)
            addEntries(out, store, record);
        out << rowEnd();
    }

    char* putCell(char* to, std::size_t cell, std::uint64_t raw)
    {
        Written& written = written_[cell];
        if (written.size == 0 || written.raw != raw) {
            written.raw = raw;
            char* const begin = written.text.data();
            const char* end = numbers_.put(begin, cells_[cell], raw);
            if (end == begin)
                end = std::ranges::copy(absent_, begin).out;
            written.size = static_cast<std::size_t>(end - begin);
        }
        // All of it, which takes less time than to look how much.
        std::memcpy(to, written.text.data(), written.text.size());
        return to + written.size;
    }

    void addEntries(OutputBuffer& out, const RecordStore& store, int record)
    {
        if (!store.layout(record).isPacket()) {
            out << absent_;
            return;
        }
        store.decode(page_, record);
        out << field(entriesAsJson(page_.extra()));
    }

    bool isCsv_;
    char separator_;
    bool isMarked_;
    std::function<QString(const CsvColumn&)> heading_;
    bool isArchive_;
    bool hasEntries_;
    std::string_view absent_;
    std::vector<NumberCell> cells_;
    ColumnOffsets offsets_;
    NumberCells numbers_;
    QByteArray tracker_;
    std::vector<char> row_;
    std::vector<Written> written_; // by cell
    TmiPage_Zeta3 page_;
};

} // namespace

std::unique_ptr<ExportWriter> numberTableWriter(ExportForm form, const ExportAhead& ahead,
                                                const ExportOptions& options)
{
    return std::make_unique<NumberTableWriter>(form, ahead, options);
}

} // namespace vlk
