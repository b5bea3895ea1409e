#include "command/telemetry_summary.h"

#include "base/windows1251.h"
#include "command/output.h"
#include "telemetry/files/binary_layout.h"
#include "telemetry/files/telemetry_binary_reader.h"
#include "telemetry/files/telemetry_xml_reader.h"
#include "window/languages.h"
#include "xml/xml_scanner.h"

#include <QBuffer>

#include <algorithm>

namespace workbench::command {

namespace {

constexpr qint64 piece = 4 << 20;
// Records take several times the room of their bytes.
constexpr qint64 largestBinary = 24 << 20;

class Counter
{
public:
    explicit Counter(TelemetrySummary* summary) : summary_(*summary) {}

    void take(const vlk::TelemetryContents& contents, qint64 offset)
    {
        constexpr vlk::ElementIndex number = vlk::element("NumPage");
        contents.records.forEach([&](const TmiPage_Zeta3& page) {
            // A record that has no time reads as the beginning of all of them.
            if (const quint32 time = timeOf(page); time != 0) {
                summary_.from = std::min(summary_.from.value_or(time), time);
                summary_.to = std::max(summary_.to.value_or(time), time);
            }
            if (page.isExtra())
                return;
            const auto now = static_cast<quint32>(page.value<number>());
            summary_.gaps += isBehind_ && now != before_ && now != before_ + 1;
            before_ = now;
            isBehind_ = true;
        });
        summary_.records += contents.records.size();
        for (vlk::FileDamage damage : contents.damages) {
            damage.offset += offset;
            summary_.damages.push_back(damage);
        }
    }

private:
    TelemetrySummary& summary_;
    bool isBehind_ = false; // another record
    quint32 before_ = 0;
};

QString modelOf(const QByteArray& start)
{
    const QString text = vlk::fromWindows1251(start);
    vlk::XmlScanner scanner(text);
    if (scanner.next() != vlk::XmlScanner::Token::start)
        return {};
    for (const vlk::XmlScanner::Attribute& attribute : scanner.attributes()) {
        if (scanner.at(attribute.name) == QLatin1String("model"))
            return scanner.at(attribute.value).toString();
    }
    return {};
}

// Cut behind lines that end a page: the count of records in front of all of them is compared here.
void countXml(QIODevice& device, TelemetrySummary* summary)
{
    Counter counter(summary);
    QByteArray rest;
    qint64 offset = 0;
    std::optional<quint32> announced;
    for (bool isOver = false; !isOver;) {
        const QByteArray read = device.read(piece);
        isOver = read.isEmpty();
        rest += read;
        const int end = isOver ? rest.size() : rest.lastIndexOf("</Page>");
        const int lineEnd = isOver ? end : end < 0 ? -1 : rest.indexOf('\n', end) + 1;
        // A page has some ten thousand bytes.
        const int size = lineEnd > 0 ? lineEnd : rest.size() > 2 * piece ? rest.size() : 0;
        QByteArray part = rest.left(size);
        rest.remove(0, size);
        QBuffer buffer(&part);
        if (part.isEmpty() || !buffer.open(QIODevice::ReadOnly))
            continue;
        vlk::TelemetryContents contents = vlk::readTelemetryXml(buffer);
        if (contents.announced)
            announced = contents.announced;
        std::erase_if(contents.damages, [](const vlk::FileDamage& damage) {
            return damage.kind == vlk::FileDamage::RecordCount;
        });
        counter.take(contents, offset);
        offset += size;
    }
    if (announced && *announced != summary->records)
        summary->damages.push_back({vlk::FileDamage::RecordCount, 0, 0});
}

} // namespace

std::optional<TelemetrySummary> summaryOf(QIODevice& device)
{
    TelemetrySummary summary;
    const QByteArray start = device.peek(4096);
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(start.constData()),
                          static_cast<std::size_t>(start.size()));
    if (!vlk::looksBinary(bytes)) {
        summary.model = modelOf(start);
        countXml(device, &summary);
        return summary;
    }
    QByteArray content = device.read(largestBinary + 1);
    if (content.size() > largestBinary)
        return std::nullopt;
    summary.model =
        QString::fromLatin1(start.mid(vlk::binary::kModelAt, vlk::binary::kModelBytes).split('\0').first());
    QBuffer buffer(&content);
    if (buffer.open(QIODevice::ReadOnly))
        Counter(&summary).take(vlk::readTelemetryBinary(buffer), 0);
    return summary;
}

QByteArray damageLines(const QString& file, const std::vector<vlk::FileDamage>& damages)
{
    // By FileDamage::Kind.
    static constexpr const char* kinds[] = {"cli_070", "cli_071", "cli_072", "cli_073", "cli_074", "cli_075"};
    QByteArray lines;
    for (const vlk::FileDamage& damage : damages)
        lines += complaint(file, text("cli_076").arg(damage.offset).arg(text(kinds[damage.kind])));
    return lines;
}

} // namespace workbench::command
