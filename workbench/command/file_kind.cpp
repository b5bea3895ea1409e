#include "command/file_kind.h"

#include "telemetry/files/binary_layout.h"
#include "telemetry/files/telemetry_binary_reader.h"
#include "telemetry/files/telemetry_reader.h"
#include "xml/xml_scanner.h"

#include <QBuffer>
#include <QTextCodec>

#include <algorithm>
#include <array>
#include <iterator>

namespace workbench::command {

namespace {

struct KindRow
{
    FileKind kind;
    const char* name;
    const char* word;
    const char* root;
};

constexpr KindRow kKinds[] = {{FileKind::Configuration, "configuration", "cli_060", "DEVICE"},
                              {FileKind::Telemetry, "telemetry", "cli_061", "TMI"},
                              {FileKind::Calibration, "calibration", "cli_062", "FUEL"},
                              {FileKind::Tachograph, "tachograph", "cli_063", nullptr},
                              {FileKind::Unknown, "unknown", "cli_064", nullptr}};

// Blocks of a driver's card begin with the tag of the chip, those of a vehicle unit with 0x76 and a number.
bool looksLikeTachograph(const QByteArray& start)
{
    return start.startsWith(QByteArray("\0\2\0\0\x19", 5)) ||
           (start.size() > 1 && start[0] == '\x76' && start[1] > 0 && start[1] < 0x40);
}

QString textOf(const QByteArray& start)
{
    return QTextCodec::codecForUtfText(start, QTextCodec::codecForName("windows-1251"))->toUnicode(start);
}

// Whether sound records stand in its first megabytes, and more of them than a program has by chance. To
// search all of a large file that is something else would take too long.
bool beginsWithRecords(QIODevice& device, const QString& name)
{
    constexpr qint64 searched = 4 << 20;
    QBuffer start;
    start.setData(device.peek(searched));
    start.open(QIODevice::ReadOnly);
    vlk::TelemetryReader reader(start, name, vlk::TelemetryReading::Salvage);
    while (reader.step()) {
    }
    constexpr qint64 leastShare = 4; // of the bytes behind the header one in four
    const vlk::RecordStore& records = reader.contents().records;
    qint64 bytes = 0;
    for (int record = 0; record < records.size(); ++record)
        bytes += std::ssize(records.bytes(record));
    return bytes > 0 && bytes * leastShare >= start.size() - qint64{vlk::binary::kHeaderBytes};
}

} // namespace

FileKind kindOf(const QByteArray& start)
{
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(start.constData()),
                          static_cast<std::size_t>(start.size()));
    if (vlk::looksBinary(bytes))
        return FileKind::Telemetry;
    if (looksLikeTachograph(start))
        return FileKind::Tachograph;
    const QString text = textOf(start);
    vlk::XmlScanner scanner(text);
    const bool hasTag = scanner.next() == vlk::XmlScanner::Token::Start;
    const auto* found = std::ranges::find_if(kKinds, [&](const KindRow& row) {
        return hasTag && row.root && scanner.at(scanner.name()) == QLatin1String(row.root);
    });
    if (found != std::end(kKinds))
        return found->kind;
    // Without its beginning telemetry is known by the first line of a record.
    return start.contains("<Page type=\"") ? FileKind::Telemetry : FileKind::Unknown;
}

FileKind kindOf(QIODevice& device, const QString& name)
{
    const FileKind kind = kindOf(device.peek(kBeginning));
    return kind == FileKind::Unknown && name.endsWith(QLatin1String(".tmi"), Qt::CaseInsensitive) &&
                   beginsWithRecords(device, name)
               ? FileKind::Telemetry
               : kind;
}

const char* nameOf(FileKind kind)
{
    return std::ranges::find(kKinds, kind, &KindRow::kind)->name;
}

const char* wordOf(FileKind kind)
{
    return std::ranges::find(kKinds, kind, &KindRow::kind)->word;
}

QString modelOf(const QByteArray& start)
{
    const QString text = textOf(start);
    vlk::XmlScanner scanner(text);
    if (scanner.next() == vlk::XmlScanner::Token::Start) {
        for (const vlk::XmlScanner::Attribute& attribute : scanner.attributes()) {
            if (scanner.at(attribute.name) == QLatin1String("model"))
                return scanner.at(attribute.value).toString();
        }
    }
    return {};
}

} // namespace workbench::command
