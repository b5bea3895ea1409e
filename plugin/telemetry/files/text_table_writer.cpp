#include "telemetry/files/text_table_writer.h"

#include "telemetry/files/column_offsets.h"
#include "telemetry/files/item_texts.h"
#include "telemetry/files/table_columns.h"
#include "telemetry/files/title_lines.h"

#include <QHash>

#include <algorithm>

namespace vlk {

namespace {

constexpr std::string_view kRowEnd = "\r\n";
constexpr std::string_view kEmptyCell = "=\"\";";
constexpr ItemIndex kFixOfPacket = item("StateNGauge.fixOfPacket");

// Those that are asked for in the order of asking, each once; an element asks for all columns of its own.
std::vector<CsvColumn> textColumns(const ExportAhead& ahead, const ExportOptions& options)
{
    std::vector<CsvColumn> columns;
    const auto isThere = [&](const CsvColumn& column) { return ahead.fields.test(column.field()); };
    if (options.columns.empty())
        std::ranges::copy_if(csvColumns(), std::back_inserter(columns), isThere);
    for (const FilterColumn& asked : options.columns) {
        std::ranges::copy_if(csvColumns(), std::back_inserter(columns), [&](const CsvColumn& column) {
            const ItemIndex shown = column.named();
            const bool isAsked = asked == FilterColumn(shown) || asked == FilterColumn(column.element());
            return isAsked && isThere(column) &&
                   std::ranges::find(columns, column.item, &CsvColumn::item) == columns.end();
        });
    }
    return columns;
}

class TextTableWriter : public ExportWriter
{
public:
    TextTableWriter(const ExportAhead& ahead, const ExportOptions& options)
        : columns_(textColumns(ahead, options)), hasPackets_(ahead.hasPackets), eventText_(options.eventText),
          encode_(options.encode), words_(options.encode), offsets_(elementsOf(columns_)),
          texts_(itemsOf(columns_), typeLetters(options.origin.titles).toLatin1().toStdString(),
                 options.utcOffset, options.encode, "=\"", "\";")
    {
    }

    void begin(OutputBuffer& out) override
    {
        for (const CsvColumn& column : columns_)
            out << encode_(headingText(column)) << ";";
        if (hasPackets_)
            out << encode_(Word("tmizta_359").text()) << ";";
        out << kRowEnd;
    }

    void add(OutputBuffer& out, const RecordStore& store, std::span<const int> records) override
    {
        for (const int record : records) {
            const RecordLayout& layout = store.layout(record);
            addCells(out, store.bytes(record), offsets_.of(layout), layout.isPacket());
            if (layout.isPacket())
                addEntries(out, store, record);
            out << kRowEnd;
        }
    }

    void finish(OutputBuffer& /*out*/) override {}

private:
    static std::vector<ElementIndex> elementsOf(const std::vector<CsvColumn>& columns)
    {
        std::vector<ElementIndex> elements;
        std::ranges::transform(columns, std::back_inserter(elements), &CsvColumn::element);
        return elements;
    }

    // The validity has other words in packets; their text stands behind those of the columns.
    static std::vector<ItemIndex> itemsOf(const std::vector<CsvColumn>& columns)
    {
        std::vector<ItemIndex> items;
        std::ranges::transform(columns, std::back_inserter(items), &CsvColumn::item);
        items.push_back(kFixOfPacket);
        return items;
    }

    // Cells that no packet can have are bare.
    void addCells(OutputBuffer& out, std::span<const std::uint8_t> bytes, std::span<const int> offsets,
                  bool isPacket)
    {
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (offsets[i] == ColumnOffsets::kAbsent) {
                out << (isPacket ? std::string_view(";") : kEmptyCell);
                continue;
            }
            const CsvColumn& column = columns_[i];
            const std::uint64_t raw = rawIn(bytes, offsets[i], kElements[column.element()].width);
            if (column.item == item("Code") && eventText_)
                out << eventCell(i, static_cast<quint16>(raw));
            else if (isPacket && column.item == item("StateNGauge.fix"))
                out << texts_.of(columns_.size(), raw);
            else
                out << texts_.of(i, raw);
        }
    }

    // An event without a name shows its code.
    const QByteArray& eventCell(std::size_t column, quint16 code)
    {
        QByteArray& cell = events_[code];
        if (cell.isNull()) {
            const QByteArray name = encode_(eventText_(code));
            const std::string_view number = texts_.of(column, code);
            cell = name.isEmpty() ? QByteArray(number.data(), static_cast<int>(number.size()))
                                  : "=\"" + name + "\";";
        }
        return cell;
    }

    // They follow the last cell without a separator.
    void addEntries(OutputBuffer& out, const RecordStore& store, int record)
    {
        store.decode(page_, record);
        page_.extra().forEachEntry([&](const ExtraEntry& entry) {
            if (const Word* const word = entryWord(entry))
                out << words_.of(*word) << word->suffix() << encode_(entryValue(entry));
        });
    }

    std::vector<CsvColumn> columns_;
    bool hasPackets_;
    EventText eventText_;
    TextEncoder encode_;
    EncodedWords words_;
    ColumnOffsets offsets_;
    ItemTexts texts_;
    QHash<quint16, QByteArray> events_; // by their codes
    TmiPage_Zeta3 page_;
};

} // namespace

std::unique_ptr<ExportWriter> textTableWriter(const ExportAhead& ahead, const ExportOptions& options)
{
    return std::make_unique<TextTableWriter>(ahead, options);
}

} // namespace vlk
