#include "telemetry/files/telemetry_xml_writer.h"

#include "base/windows1251.h"
#include "telemetry/files/title_lines.h"
#include "telemetry/files/value_writing.h"
#include "telemetry/text/time_text.h"

#include <algorithm>

namespace vlk {

namespace {

// A text ends with its line: what would break it, or hide in it, becomes a blank.
QByteArray onOneLine(const QString& text)
{
    QByteArray bytes = toWindows1251(text);
    std::ranges::replace_if(
        bytes, [](char sign) { return static_cast<unsigned char>(sign) < ' ' && sign != '\t'; }, ' ');
    return bytes;
}

void addNumber(OutputBuffer& out, auto number)
{
    if constexpr (std::is_floating_point_v<decltype(number)>)
        out << shortestText(number);
    else
        out << number;
}

template <class Source>
void addElement(OutputBuffer& out, const ElementValues<Source>& source, ElementIndex index)
{
    const std::string_view name = kElements[index].name;
    out << "\t\t<" << name << ">";
    withFileNumber(index, source.raw(index), [&out](auto number) { addNumber(out, number); });
    out << "</" << name << ">\r\n";
}

void addRecord(OutputBuffer& out, const TmiPage_Zeta3& page)
{
    out << "\t<Page type=\"" << page.type() << "\" ver=\"" << page.ver() << "\" format=\""
        << page.mask().text() << "\">\r\n";
    for (const ElementIndex index : kAlwaysWritten)
        addElement<TmiPage_Zeta3::RecordValues>(out, page, index);
    for (int i = static_cast<int>(std::size(kAlwaysWritten)); i < kElementCount; ++i) {
        const auto index = static_cast<ElementIndex>(i);
        if (page.has(index))
            addElement<TmiPage_Zeta3::RecordValues>(out, page, index);
    }
    out << "\t</Page>\r\n";
}

void addEntry(OutputBuffer& out, const ExtraEntry& entry)
{
    if (entry.type < ExtraEntry::TouchKey || entry.type > ExtraEntry::Rfid)
        return;
    out << "\t\t<Dynamic type=\"" << entry.type << "\" size=\"" << entry.size << "\" value=\"";
    if (entry.type == ExtraEntry::Card)
        out << onOneLine(entry.text());
    else
        out << entry.number();
    out << "\"/>\r\n";
}

void addExtraPacket(OutputBuffer& out, const ExtraPacket& packet)
{
    out << "\t<Page type=\"" << packet.type() << "\" size=\"" << packet.countedBytes() << "\" stVer=\""
        << packet.stVer() << "\" stSize=\"" << packet.stSize() << "\" hVer=\"" << packet.hVer()
        << "\" hSize=\"" << packet.hSize() << "\">\r\n";
    for (const ExtraPacket::HeadElement& row : ExtraPacket::kElementsOfHead)
        addElement(out, packet, row.element);
    packet.forEachEntry([&](const ExtraEntry& entry) { addEntry(out, entry); });
    out << "\t</Page>\r\n";
}

class XmlWriter : public ExportWriter
{
public:
    XmlWriter(const ExportAhead& ahead, TelemetryOrigin origin) : ahead_(ahead), origin_(std::move(origin)) {}

    void begin(OutputBuffer& out) override
    {
        out << "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n"
            << "<TMI model=\"" << onOneLine(origin_.model) << "\" modification=\"7\" vendor=\""
            << onOneLine(origin_.vendor) << "\" version=\"3.0\"> \r\n"
            << "\t<TIMEZONE offset=\"" << origin_.timeOffset << "\"/>\r\n";
        for (const TitleLine& line : kTitleLines)
            out << "\t<" << line.tag << " title=\"" << onOneLine(titleOf(origin_.titles, line)) << "\"/>\r\n";
        const QString letters = typeLetters(origin_.titles);
        for (const TypeLine& line : kTypeLines)
            out << "\t<" << line.tag << " type=\"" << onOneLine(letters.mid(line.first, line.count))
                << "\"/>\r\n";
        const auto time = [this](quint32 seconds) {
            return ahead_.count == 0 ? QByteArray("0") : dateTimeText(seconds).toLatin1();
        };
        out << "\t<INTERVAL count=\"" << ahead_.count << "\" dtFirst=\"" << time(ahead_.firstTime)
            << "\" dtLast=\"" << time(ahead_.lastTime) << "\"/>\r\n";
    }

    void add(OutputBuffer& out, const RecordStore& store, std::span<const int> records) override
    {
        for (const int record : records) {
            store.decode(page_, record);
            if (page_.isExtra())
                addExtraPacket(out, page_.extra());
            else
                addRecord(out, page_);
        }
    }

    void finish(OutputBuffer& out) override { out << "</TMI>\r\n"; }

private:
    ExportAhead ahead_;
    TelemetryOrigin origin_;
    TmiPage_Zeta3 page_;
};

} // namespace

std::unique_ptr<ExportWriter> xmlWriter(const ExportAhead& ahead, const TelemetryOrigin& origin)
{
    return std::make_unique<XmlWriter>(ahead, origin);
}

bool writeTelemetryXml(QIODevice& device, const RecordStore& records, const TelemetryOrigin& origin)
{
    ExportOptions options;
    options.origin = origin;
    return exportRecords(device, records, ExportForm::Xml, options);
}

} // namespace vlk
