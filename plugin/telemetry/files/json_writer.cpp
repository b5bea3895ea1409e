#include "telemetry/files/json_writer.h"

#include "telemetry/files/column_offsets.h"
#include "telemetry/files/csv_columns.h"
#include "telemetry/files/item_texts.h"
#include "telemetry/files/json_text.h"
#include "telemetry/files/table_columns.h"
#include "telemetry/files/title_lines.h"
#include "telemetry/files/value_writing.h"

#include <numeric>

namespace vlk {

namespace {

// What is no number, such as NaN, is written as its name in quotes.
void addJson(OutputBuffer& out, auto number)
{
    if constexpr (!std::is_floating_point_v<decltype(number)>)
        out << number;
    else if (std::isfinite(number))
        out << shortestText(number);
    else
        out << "\"" << shortestText(number) << "\"";
}

std::vector<ElementIndex> allElements()
{
    std::vector<ElementIndex> elements(kElementCount);
    for (int i = 0; i < kElementCount; ++i)
        elements[i] = static_cast<ElementIndex>(i);
    return elements;
}

std::vector<ElementIndex> elementsOf(const std::vector<ItemIndex>& items)
{
    std::vector<ElementIndex> elements;
    elements.reserve(items.size());
    for (const ItemIndex item : items)
        elements.push_back(kItems[item].element);
    return elements;
}

std::vector<ItemIndex> itemsOfColumns()
{
    std::vector<ItemIndex> items;
    for (const CsvColumn& column : csvColumns())
        items.push_back(column.named());
    return items;
}

// What both kinds of lines share.
class JsonLines : public ExportWriter
{
public:
    void begin(OutputBuffer& /*out*/) override {}
    void finish(OutputBuffer& /*out*/) override {}

    void add(OutputBuffer& out, const RecordStore& store, std::span<const int> records) override
    {
        constexpr ElementIndex number = element("NumPage");
        for (const int record : records) {
            const RecordLayout& layout = store.layout(record);
            const auto bytes = store.bytes(record);
            out << "{\"number\":";
            if (layout.has(number))
                out << rawIn(bytes, layout.offsetOf(number), kElements[number].width);
            else
                out << "null";
            addMembers(out, layout, bytes);
            if (layout.isPacket()) {
                store.decode(page_, record);
                out << ",\"Dynamic\":";
                addEntries(out, page_.extra());
            }
            out << "}\n";
        }
    }

protected:
    virtual void addMembers(OutputBuffer& out, const RecordLayout& layout,
                            std::span<const std::uint8_t> bytes) = 0;
    virtual void addEntries(OutputBuffer& out, const ExtraPacket& packet) = 0;

private:
    TmiPage_Zeta3 page_;
};

class RawJsonLines : public JsonLines
{
protected:
    void addMembers(OutputBuffer& out, const RecordLayout& layout,
                    std::span<const std::uint8_t> bytes) override
    {
        const std::span<const int> offsets = offsets_.of(layout);
        for (int i = 0; i < kElementCount; ++i) {
            if (offsets[i] == ColumnOffsets::kAbsent)
                continue;
            const auto index = static_cast<ElementIndex>(i);
            out << ",\"" << kElements[i].name << "\":";
            withFileNumber(index, rawIn(bytes, offsets[i], kElements[i].width),
                           [&out](auto number) { addJson(out, number); });
        }
    }

    void addEntries(OutputBuffer& out, const ExtraPacket& packet) override { out << entriesAsJson(packet); }

private:
    ColumnOffsets offsets_{allElements(), true};
};

class TextJsonLines : public JsonLines
{
public:
    explicit TextJsonLines(const ExportOptions& options)
        : items_(itemsOfColumns()), offsets_(elementsOf(items_)),
          texts_(items_, typeLetters(options.origin.titles).toLatin1().toStdString(), options.utcOffset,
                 jsonEscaped),
          eventText_(options.eventText)
    {
    }

protected:
    // A value that shows nothing has no member.
    void addMembers(OutputBuffer& out, const RecordLayout& layout,
                    std::span<const std::uint8_t> bytes) override
    {
        const std::span<const int> offsets = offsets_.of(layout);
        for (std::size_t i = 0; i < items_.size(); ++i) {
            if (offsets[i] == ColumnOffsets::kAbsent)
                continue;
            const Item& shown = kItems[items_[i]];
            const std::uint64_t raw = rawIn(bytes, offsets[i], kElements[shown.element].width);
            const QByteArray event = items_[i] == item("Code") && eventText_
                                         ? jsonEscaped(eventText_(static_cast<quint16>(raw)))
                                         : QByteArray();
            const std::string_view text =
                event.isEmpty() ? texts_.of(i, raw)
                                : std::string_view(event.constData(), static_cast<std::size_t>(event.size()));
            if (!text.empty())
                out << ",\"" << shown.name << "\":\"" << text << "\"";
        }
    }

    void addEntries(OutputBuffer& out, const ExtraPacket& packet) override
    {
        out << "[";
        bool isFirst = true;
        packet.forEachEntry([&](const ExtraEntry& entry) {
            if (!entryWord(entry))
                return;
            out << (std::exchange(isFirst, false) ? "\"" : ",\"") << jsonEscaped(entryText(entry)) << "\"";
        });
        out << "]";
    }

private:
    std::vector<ItemIndex> items_;
    ColumnOffsets offsets_;
    ItemTexts texts_;
    EventText eventText_;
};

} // namespace

std::unique_ptr<ExportWriter> jsonWriter(const ExportOptions& options)
{
    if (options.raw)
        return std::make_unique<RawJsonLines>();
    return std::make_unique<TextJsonLines>(options);
}

QByteArray entriesAsJson(const ExtraPacket& packet)
{
    QByteArray list;
    packet.forEachEntry([&](const ExtraEntry& entry) {
        if (!entryWord(entry))
            return;
        const QByteArray value = entry.type == ExtraEntry::Card ? '"' + jsonEscaped(entry.text()) + '"'
                                                                : QByteArray::number(quint64{entry.number()});
        list += (list.isEmpty() ? "" : ",") + QByteArrayLiteral("{\"type\":") +
                QByteArray::number(entry.type) + ",\"size\":" + QByteArray::number(entry.size) +
                ",\"value\":" + value + '}';
    });
    return '[' + list + ']';
}

} // namespace vlk
