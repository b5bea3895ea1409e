#include "telemetry/files/sound_lines.h"

#include "catalogue/field_catalogue.h"
#include "telemetry/files/line_parts.h"
#include "telemetry/files/number_text.h"
#include "telemetry/record/record_head.h"

#include <algorithm>

namespace vlk {

namespace {

// What has no end by then is no line.
constexpr std::size_t kLongestJoined = 65'536;

bool isTag(std::string_view line)
{
    const auto isControl = [](char sign) { return static_cast<unsigned char>(sign) < ' ' && sign != '\t'; };
    return line.size() > 2 && line.front() == '<' && line.back() == '>' &&
           std::ranges::none_of(line, isControl);
}

bool beginsName(std::string_view text)
{
    const auto sign = text.empty() ? '\0' : text.front();
    return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z') || sign == '_' ||
           static_cast<unsigned char>(sign) >= 0x80;
}

template <class Number>
bool hasNumber(std::string_view line, std::string_view name)
{
    return numberIn<Number>(attribute(line, name)).has_value();
}

} // namespace

bool isSoundInPage(std::string_view line)
{
    line = trimmed(line);
    if (line.empty() || line.starts_with("<!") || line.starts_with("<?"))
        return line.empty() || isTag(line);
    if (!isTag(line))
        return false;
    const std::size_t end = line.find_first_of("<>", 1);
    if (line[end] == '<')
        return false;
    std::string_view tag = line.substr(1, end - 1);
    const std::string_view rest = line.substr(end + 1);
    if (!rest.empty()) {
        const std::size_t closing = rest.find('<');
        return beginsName(tag) && closing != rest.npos && rest.substr(closing).starts_with("</") &&
               rest.find('<', closing + 1) == rest.npos;
    }
    if (tag.starts_with('/'))
        tag.remove_prefix(1);
    return beginsName(tag) && !findElement(tag);
}

bool closesItself(std::string_view line)
{
    const std::size_t opening = line.find('<');
    const std::size_t closing = line.rfind("</");
    if (closing == line.npos || opening == closing)
        return true;
    const auto nameBehind = [line](std::size_t at) {
        return line.substr(at, line.find_first_of(" \t>", at) - at);
    };
    return nameBehind(opening + 1) == nameBehind(closing + 2);
}

bool isSoundEntry(std::string_view line)
{
    line = trimmed(line);
    return line.starts_with("<Dynamic ") && line.ends_with("/>");
}

bool isSoundBetweenPages(std::string_view line)
{
    line = trimmed(line);
    if (line.empty())
        return true;
    if (!isTag(line) || endsPage(line) || isSoundEntry(line))
        return false;
    const std::string_view tag = line.substr(1, line.find_first_of(" \t>", 1) - 1);
    const bool isKnownKind = tag.starts_with('?') || tag.starts_with('!') || tag.starts_with('/');
    return (isKnownKind || beginsName(tag)) && !findElement(tag);
}

bool isSoundPageLine(std::string_view line)
{
    line = trimmed(line);
    line.remove_prefix(std::min(line.find("<Page"), line.size()));
    // What stands behind it on the line has lost its own.
    if (!isTag(line) || line.find('>') != line.size() - 1)
        return false;
    const std::optional<quint8> type = numberIn<quint8>(attribute(line, "type"));
    if (type == kTelemetryRecord) {
        const std::string_view format = attribute(line, "format");
        return hasNumber<quint8>(line, "ver") && !format.empty() &&
               format.find_first_not_of("01") == format.npos;
    }
    const auto isNumber = [line](const char* name) { return hasNumber<quint8>(line, name); };
    if (type == kExtraPacket)
        return std::ranges::all_of(std::to_array({"stVer", "stSize", "hVer", "hSize"}), isNumber);
    return type.has_value();
}

std::size_t sizeOfFirst(std::string_view line)
{
    constexpr std::string_view entry = "<Dynamic ";
    if (isSoundEntry(line) && line.rfind(entry) == line.find(entry))
        return line.size();
    // Of a line that is read in pieces the last tag may be the beginning of one.
    const auto beginsWith = [](std::string_view text, std::string_view tag) {
        return text.starts_with(tag) || (!text.ends_with('\n') && tag.starts_with(text));
    };
    bool isQuoted = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '"')
            isQuoted = !isQuoted;
        if (line[at] != '>' || isQuoted)
            continue;
        const std::size_t next = line.find_first_not_of(" \t\r\n", at + 1);
        if (next == line.npos)
            break;
        const std::string_view rest = line.substr(next);
        if (rest.front() == '<' && (!rest.starts_with("</") || beginsWith(rest, "</Page>")))
            return next;
    }
    return line.size();
}

std::optional<std::string_view> JoinedLines::add(std::string_view piece)
{
    const bool isWhole = piece.ends_with('\n');
    if (isWhole && rest_.empty())
        return piece;
    rest_ += piece;
    if (!isWhole && rest_.size() < kLongestJoined)
        return std::nullopt;
    line_ = takeRest();
    return line_;
}

} // namespace vlk
