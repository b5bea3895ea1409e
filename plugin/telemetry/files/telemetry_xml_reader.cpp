#include "telemetry/files/telemetry_xml_reader.h"

#include "telemetry/files/line_parts.h"
#include "telemetry/files/number_text.h"
#include "telemetry/files/title_lines.h"
#include "telemetry/files/xml_page.h"
#include "telemetry/record/record_head.h"

namespace vlk {

namespace {

// Longer lines are read in pieces of these lengths.
constexpr std::size_t kLongestLine = 1023;
constexpr std::size_t kLongestLineOfPage = 255;
// Bytes of a page with all elements, each with a long value.
constexpr std::size_t kLongestUsualPage = 32'768;

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

TelemetryXmlReader::TelemetryXmlReader(QIODevice& device, TelemetryReading reading)
    : input_(device), reading_(reading)
{
    contents_.records.setUtcOffset(localOffset());
}

void TelemetryXmlReader::report(FileDamage::Kind kind, qint64 from, qint64 to)
{
    contents_.damages.push_back({kind, from, to - from, total_});
}

void TelemetryXmlReader::loseFrom(qint64 at)
{
    if (!lost_)
        lost_ = FileDamage{FileDamage::Records, at, 0, total_};
}

void TelemetryXmlReader::goOnAt(qint64 at)
{
    if (!lost_)
        return;
    lost_->bytes = at - lost_->offset;
    contents_.damages.push_back(*std::exchange(lost_, {}));
}

std::string_view TelemetryXmlReader::nextLine(std::size_t most)
{
    const bool salvages = reading_ == TelemetryReading::Salvage;
    const std::string_view line = input_.line(most);
    const std::size_t first = areLinesShared_ && !salvages ? line.size() : sizeOfFirst(line);
    if (first == line.size())
        return line;
    // What stands in front of all pages is found wherever it is.
    const bool isOfPages = most == kLongestLineOfPage || endsPage(line);
    if (isOfPages && !std::exchange(areLinesShared_, true)) {
        const qint64 at = input_.position() - std::ssize(line) + static_cast<qint64>(first);
        report(FileDamage::SharedLine, at, at);
        contents_.mayHideMore = !salvages;
    }
    if (!salvages)
        return line;
    apart_.assign(line.substr(0, first)) += '\n';
    input_.giveBack(line.size() - first);
    return apart_;
}

bool TelemetryXmlReader::step()
{
    const auto window = input_.peek(kLongestUsualPage);
    const std::string_view ahead(reinterpret_cast<const char*>(window.data()), window.size());
    if (const std::size_t size = usual_.take(ahead, contents_.records); size != 0) {
        endBetween({}, input_.position());
        goOnAt(input_.position());
        input_.skip(size);
        ++total_;
        return true;
    }
    const qint64 at = input_.position();
    const std::string_view line = nextLine(kLongestLine);
    if (line.empty())
        return false;
    if (!startsPage(line)) {
        readBetween(line, at);
        return true;
    }
    endBetween(line.substr(0, line.find("<Page")), at);
    readPage(std::string(line), at);
    return true;
}

// What stands on the line of a page, in front of it.
void TelemetryXmlReader::endBetween(std::string_view front, qint64 at)
{
    const std::string rest = between_.takeRest();
    if (!trimmed(front).empty() || !trimmed(rest).empty())
        loseFrom(at - std::ssize(rest));
    contents_.hidden += isHidden_ && endsPage(front) ? 1 : 0;
    isHidden_ = false;
}

// A line that is in no page.
void TelemetryXmlReader::readBetween(std::string_view line, qint64 at)
{
    if (isHidden_ && endsPage(line)) {
        ++contents_.hidden;
        isHidden_ = false;
    }
    const qint64 end = at + std::ssize(line);
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (at == 0 && line.starts_with(byteOrderMark))
        line.remove_prefix(byteOrderMark.size());
    if (const auto whole = between_.add(line); whole && !isSoundBetweenPages(*whole))
        loseFrom(end - std::ssize(*whole));
    if (line.find("<INTERVAL") != line.npos) {
        contents_.announced = numberAttribute<quint32>(line, "count");
        countAt_ = at;
    } else if (line.find("<TIMEZONE") != line.npos) {
        contents_.origin.timeOffset = numberAttribute<qint32>(line, "offset");
    } else if (line.find("<TMI") != line.npos) {
        contents_.origin.model = textOf(attribute(line, "model"));
        contents_.origin.vendor = textOf(attribute(line, "vendor"));
    }
    readTitle(line, contents_.origin.titles);
}

void TelemetryXmlReader::readPage(std::string pageLine, qint64 at)
{
    XmlPage page(std::move(pageLine), at);
    for (;;) {
        const qint64 lineAt = input_.position();
        const std::string_view line = nextLine(kLongestLineOfPage);
        if (line.empty())
            break;
        if (endsPage(line)) {
            page.finish(line, lineAt);
            if (reading_ == TelemetryReading::Salvage && startsPage(line))
                input_.giveBack(static_cast<std::size_t>(input_.position() - lineAt));
            break;
        }
        page.take(line);
    }
    endPage(page);
}

// Who writes pages without some of their elements does so in all of them. A mask that asks for more than came
// and stands there but once is none that a tracker had.
bool TelemetryXmlReader::mayLackElements(const XmlPage& page)
{
    if (page.end != XmlPage::Closing || page.mixesElements() || usual_.knows(page.line()))
        return false;
    const std::string mask = '"' + std::string(attribute(page.line(), "format")) + '"';
    if (page.type() != kTelemetryRecord || mask == lacking_)
        return true;
    lacking_ = mask;
    const auto window = input_.peek(kLongestUsualPage);
    const std::string_view ahead(reinterpret_cast<const char*>(window.data()), window.size());
    const bool isOnly = !usual_.knowAny() && ahead.find("<Page") == ahead.npos;
    return isOnly || ahead.find(mask) != ahead.npos;
}

// Either all pages have their masks to the last field or none has.
bool TelemetryXmlReader::hasDamagedMask(const XmlPage& page) const
{
    return page.type() == kTelemetryRecord && fullMasks_ && !page.hasFullMask();
}

void TelemetryXmlReader::endPage(const XmlPage& page)
{
    const bool salvages = reading_ == TelemetryReading::Salvage;
    const bool isIntact =
        page.isSound() && !hasDamagedMask(page) && (page.isWhole() || mayLackElements(page));
    const bool isKept = page.isRecord() && (isIntact || !salvages);
    const bool isAtEnd = page.end == XmlPage::OfFile && page.hasItsLine();
    if (!isAtEnd && (page.end == XmlPage::NextPage ? !page.isSound() : !isIntact))
        loseFrom(page.at());
    else if (isAtEnd || isIntact || !salvages)
        goOnAt(page.at());
    if (isKept) {
        page.addTo(contents_.records);
        if (!salvages && (isAtEnd || !isIntact))
            contents_.damaged.push_back(total_);
        ++total_;
    }
    if (page.type() == kTelemetryRecord && page.end == XmlPage::Closing && isIntact && page.isWhole() &&
        trimmed(page.line()).starts_with("<Page")) {
        usual_.remember(page.line(), page.ver(), page.mask());
        fullMasks_ = fullMasks_ || page.hasFullMask();
    }
    if (isAtEnd) {
        contents_.lastIsCut = isKept && !salvages;
        report(FileDamage::CutShort, page.at(), input_.position());
    } else if (startsPage(page.nextLine)) {
        endWithNext(page, isKept);
    }
}

// The first line of the next page was taken with its end, or for it.
void TelemetryXmlReader::endWithNext(const XmlPage& page, bool isKept)
{
    if (reading_ != TelemetryReading::Salvage) {
        loseFrom(page.endAt);
        isHidden_ = XmlPage(page.nextLine, page.endAt).isRecord();
        return;
    }
    loseFrom(isKept ? page.endAt : page.at());
}

void TelemetryXmlReader::finish()
{
    if (const std::string rest = between_.takeRest(); !isSoundBetweenPages(rest))
        loseFrom(input_.position() - std::ssize(rest));
    goOnAt(input_.position());
    const auto count = static_cast<quint32>(total_);
    if (contents_.announced.value_or(count) != count)
        report(FileDamage::RecordCount, countAt_, countAt_);
}

} // namespace vlk
