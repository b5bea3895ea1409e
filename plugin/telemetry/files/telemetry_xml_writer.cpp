#include "telemetry/files/telemetry_xml_writer.h"

#include "base/windows1251.h"
#include "telemetry/files/file_form.h"
#include "telemetry/files/output_buffer.h"
#include "telemetry/files/title_lines.h"
#include "telemetry/text/time_text.h"

#include <QLocale>

namespace vlk {

namespace {

constexpr ElementIndex kAlwaysWritten[] = {element("NumPage"), element("Code"), element("Time")};

QByteArray shortest(double number)
{
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

template <class Source>
void addValue(OutputBuffer& out, const ElementValues<Source>& source, ElementIndex index)
{
    const FileForm& form = kFileForms[index];
    if (form.divisor != 1)
        out << shortest(source.number(index) / form.divisor);
    else if (form.type == ValueType::f32)
        out << shortest(source.number(index));
    else if (form.type == ValueType::i16)
        out << static_cast<std::int16_t>(source.raw(index));
    else if (isSigned(form.type))
        out << source.integer(index);
    else
        out << source.raw(index);
}

template <class Source>
void addElement(OutputBuffer& out, const ElementValues<Source>& source, ElementIndex index)
{
    const std::string_view name = kElements[index].name;
    out << "\t\t<" << name << ">";
    addValue(out, source, index);
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
        out << toWindows1251(entry.text());
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

void addHeader(OutputBuffer& out, const RecordStore& records, const TelemetryOrigin& origin)
{
    out << "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n"
        << "<TMI model=\"" << toWindows1251(origin.model) << "\" modification=\"7\" vendor=\""
        << toWindows1251(origin.vendor) << "\" version=\"3.0\"> \r\n"
        << "\t<TIMEZONE offset=\"" << origin.timeOffset << "\"/>\r\n";
    for (const TitleLine& line : kTitleLines)
        out << "\t<" << line.tag << " title=\"" << toWindows1251(titleOf(origin.titles, line)) << "\"/>\r\n";
    const QString letters = typeLetters(origin.titles);
    for (const TypeLine& line : kTypeLines)
        out << "\t<" << line.tag << " type=\"" << toWindows1251(letters.mid(line.first, line.count))
            << "\"/>\r\n";
    const auto time = [&](int record) { return dateTimeText(timeOf(*records.at(record))).toLatin1(); };
    out << "\t<INTERVAL count=\"" << records.size() << "\" dtFirst=\""
        << (records.empty() ? QByteArray("0") : time(0)) << "\" dtLast=\""
        << (records.empty() ? QByteArray("0") : time(records.size() - 1)) << "\"/>\r\n";
}

} // namespace

bool writeTelemetryXml(QIODevice& device, const RecordStore& records, const TelemetryOrigin& origin)
{
    OutputBuffer out(device);
    addHeader(out, records, origin);
    records.forEach([&out](const TmiPage_Zeta3& page) {
        if (page.isExtra())
            addExtraPacket(out, page.extra());
        else
            addRecord(out, page);
    });
    out << "</TMI>\r\n";
    return out.finish();
}

} // namespace vlk
