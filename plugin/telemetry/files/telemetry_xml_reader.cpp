#include "telemetry/files/telemetry_xml_reader.h"

#include "base/windows1251.h"
#include "telemetry/files/input_buffer.h"
#include "telemetry/files/line_parts.h"
#include "telemetry/files/number_text.h"
#include "telemetry/files/title_lines.h"
#include "telemetry/files/value_reading.h"
#include "telemetry/record/record_head.h"

namespace vlk {

namespace {

// Longer lines are read in pieces of these lengths.
constexpr std::size_t kLongestLine = 1023;
constexpr std::size_t kLongestLineOfPage = 255;

// The lines of one page, up to the one that ends it, which is taken too.
class PageLines
{
public:
    enum End { Closing, NextPage, OfFile };

    explicit PageLines(InputBuffer& input) : input_(input) {}

    template <class Visit>
    void forEach(Visit visit)
    {
        for (std::string_view line = input_.line(kLongestLineOfPage); !line.empty();
             line = input_.line(kLongestLineOfPage)) {
            if (endsPage(line)) {
                end_ = startsPage(line) ? NextPage : Closing;
                endAt_ = input_.position() - std::ssize(line);
                return;
            }
            visit(line);
        }
        end_ = OfFile;
    }

    End end() const { return end_; }
    qint64 endAt() const { return endAt_; } // where the line begins that ended the page

private:
    InputBuffer& input_;
    End end_ = OfFile;
    qint64 endAt_ = 0;
};

template <class Number>
Number numberAttribute(std::string_view line, std::string_view name)
{
    return numberFrom<Number>(attribute(line, name));
}

QString textOf(std::string_view bytes)
{
    return fromWindows1251(QByteArray(bytes.data(), static_cast<int>(bytes.size())));
}

void readRecord(PageLines& lines, std::string_view pageLine, RecordStore& records)
{
    const auto ver = numberAttribute<quint8>(pageLine, "ver");
    const FieldMask mask = FieldMask::fromText(attribute(pageLine, "format"));
    TmiPage_Zeta3::ValueBlock block{};
    lines.forEach([&](std::string_view line) {
        const ElementLine parts = elementLine(line);
        if (const auto index = findElement(parts.tag))
            readValue(*index, parts.value, block.data() + kElements[*index].offset);
    });
    records.add(ver, mask, block);
}

// A packet while its lines are read: the head, and of the area as much as has room. `areaSize` counts all
// that the lines bring.
struct PacketParts
{
    std::array<std::uint8_t, ExtraPacket::kHeadBytes> head{};
    std::array<std::uint8_t, ExtraPacket::kAreaBytes> area{};
    std::size_t areaSize = 0;

    void put(std::size_t offset, std::span<const std::uint8_t> bytes)
    {
        const std::size_t at = areaSize + offset;
        if (at < area.size())
            std::ranges::copy(bytes.first(std::min(bytes.size(), area.size() - at)), area.begin() + at);
    }
};

void readElement(std::string_view line, PacketParts& packet)
{
    const ElementLine parts = elementLine(line);
    const auto named = [&](const ExtraPacket::HeadElement& row) {
        return kElements[row.element].name == parts.tag;
    };
    const auto row = std::ranges::find_if(ExtraPacket::kElementsOfHead, named);
    if (row != ExtraPacket::kElementsOfHead.end())
        readValue(row->element, parts.value, packet.head.data() + row->offset);
}

// The text of a card has to fit its size in the local encoding too.
QByteArray cardBytes(std::string_view value, int size)
{
    QString text = textOf(value).left(size);
    QByteArray bytes = text.toLocal8Bit();
    while (bytes.size() > size) {
        text.chop(1);
        bytes = text.toLocal8Bit();
    }
    return bytes;
}

void readEntry(std::string_view line, PacketParts& packet)
{
    const auto type = numberAttribute<quint8>(line, "type");
    const auto size = numberAttribute<quint8>(line, "size");
    const std::string_view value = attribute(line, "value");
    const std::array<std::uint8_t, ExtraPacket::kEntryHeadBytes> head{type, size};
    packet.put(0, head);
    if (type == ExtraEntry::Card) {
        const QByteArray bytes = cardBytes(value, size);
        packet.put(head.size(), bytesAt(bytes.constData(), bytes.size()));
    } else if (type == ExtraEntry::TouchKey || type == ExtraEntry::Rfid) {
        std::array<std::uint8_t, sizeof(quint64)> bytes;
        qToLittleEndian(numberFrom<quint64>(value), bytes.data());
        packet.put(head.size(), bytes);
    }
    packet.areaSize += head.size() + size;
}

void readExtraPacket(PageLines& lines, std::string_view pageLine, RecordStore& records)
{
    PacketParts packet;
    packet.head[0] = kExtraPacket;
    packet.head[ExtraPacket::kStVerAt] = numberAttribute<quint8>(pageLine, "stVer");
    packet.head[ExtraPacket::kStSizeAt] = numberAttribute<quint8>(pageLine, "stSize");
    packet.head[ExtraPacket::kHVerAt] = numberAttribute<quint8>(pageLine, "hVer");
    packet.head[ExtraPacket::kHSizeAt] = numberAttribute<quint8>(pageLine, "hSize");
    lines.forEach([&](std::string_view line) {
        if (line.find("<Dynamic") != line.npos)
            readEntry(line, packet);
        else
            readElement(line, packet);
    });
    const std::size_t size = packet.head[ExtraPacket::kStSizeAt] + packet.head[ExtraPacket::kHSizeAt] +
                             ExtraPacket::kBesideHeads + packet.areaSize;
    qToLittleEndian(static_cast<quint16>(size), packet.head.data() + ExtraPacket::kSizeAt);
    const auto area = std::span(packet.area).first(std::min(packet.areaSize, packet.area.size()));
    records.add(ExtraPacket::fromParts(packet.head, area));
}

PageLines readPage(InputBuffer& input, std::string_view line, RecordStore& records)
{
    // The line lives in the buffer only until the next one is read.
    const std::string pageLine(line);
    PageLines lines(input);
    switch (numberAttribute<quint8>(pageLine, "type")) {
    case kTelemetryRecord:
        readRecord(lines, pageLine, records);
        break;
    case kExtraPacket:
        readExtraPacket(lines, pageLine, records);
        break;
    default:
        lines.forEach([](std::string_view) {});
    }
    return lines;
}

void readTypes(std::string_view line, const TypeLine& row, TelemetryTitles& titles)
{
    const QString letters = textOf(attribute(line, "type")).leftJustified(row.count, QLatin1Char('u'));
    for (int i = 0; i < row.count; ++i)
        titles.userTypes[row.first + i] = letters[i];
}

void readTitle(std::string_view line, TelemetryTitles& titles)
{
    anyTag(line, [&](std::string_view rest) {
        const auto begins = [&](const auto& row) { return rest.starts_with(row.tag); };
        if (const auto* row = std::ranges::find_if(kTitleLines, begins); row != std::end(kTitleLines)) {
            if (!rest.substr(row->tag.size()).starts_with(' '))
                return false;
            titleOf(titles, *row) = textOf(attribute(line, "title"));
            return true;
        }
        const auto* row = std::ranges::find_if(kTypeLines, begins);
        if (row == std::end(kTypeLines))
            return false;
        readTypes(line, *row, titles);
        return true;
    });
}

} // namespace

TelemetryContents readTelemetryXml(QIODevice& device)
{
    InputBuffer input(device);
    TelemetryContents contents;
    contents.records.setUtcOffset(localOffset());
    // A page without a closing line takes the first line of the next one with it, whose lines then start
    // nothing.
    std::optional<qint64> lostAt;
    const auto report = [&contents](FileDamage::Kind kind, qint64 from, qint64 to) {
        contents.damages.push_back({kind, from, to - from, contents.records.size()});
    };
    qint64 countAt = 0;
    for (std::string_view line = input.line(kLongestLine); !line.empty(); line = input.line(kLongestLine)) {
        const qint64 lineAt = input.position() - std::ssize(line);
        if (!startsPage(line)) {
            if (line.find("<INTERVAL") != line.npos) {
                contents.announced = numberAttribute<quint32>(line, "count");
                countAt = lineAt;
            }
            readTitle(line, contents.titles);
            continue;
        }
        if (lostAt)
            report(FileDamage::Records, *std::exchange(lostAt, {}), lineAt);
        const int before = contents.records.size();
        const PageLines page = readPage(input, line, contents.records);
        if (page.end() == PageLines::NextPage) {
            lostAt = page.endAt();
        } else if (page.end() == PageLines::OfFile) {
            contents.lastIsCut = contents.records.size() > before;
            report(FileDamage::CutShort, lineAt, input.position());
        }
    }
    if (lostAt)
        report(FileDamage::Records, *lostAt, input.position());
    const auto count = static_cast<quint32>(contents.records.size());
    if (contents.announced.value_or(count) != count)
        report(FileDamage::RecordCount, countAt, countAt);
    return contents;
}

} // namespace vlk
