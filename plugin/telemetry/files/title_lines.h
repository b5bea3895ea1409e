#pragma once

// The lines of the XML form that hold titles and type letters, for its writer and its reader.

#include "telemetry/record/telemetry_titles.h"

#include <string>
#include <string_view>
#include <utility>

namespace vlk {

enum class TitleGroup { input, output, temperature };

struct TitleLine
{
    std::string_view tag;
    TitleGroup group;
    int index;
};

inline constexpr TitleLine kTitleLines[] = {
    {"IN1", TitleGroup::input, 0},         {"IN2", TitleGroup::input, 1},
    {"IN3", TitleGroup::input, 2},         {"OUT1", TitleGroup::output, 0},
    {"OUT2", TitleGroup::output, 1},       {"TEMP1", TitleGroup::temperature, 0},
    {"TEMP2", TitleGroup::temperature, 1}, {"TEMP3", TitleGroup::temperature, 2},
    {"TEMP4", TitleGroup::temperature, 3},
};

// The title that a line holds, of `const TelemetryTitles` too.
template <class Titles>
auto& titleOf(Titles& titles, const TitleLine& line)
{
    switch (line.group) {
    case TitleGroup::input:
        return titles.inputs[line.index];
    case TitleGroup::output:
        return titles.outputs[line.index];
    case TitleGroup::temperature:
        break;
    }
    return titles.temperatures[line.index];
}

// Slots of the user parameters of one width, by their letters.
struct TypeLine
{
    std::string_view tag;
    int first;
    int count;
};

inline constexpr TypeLine kTypeLines[] = {
    {"USERPARAM1", 0, 16},
    {"USERPARAM2", 16, 15},
    {"USERPARAM4", 31, 15},
    {"USERPARAM8", 46, 3},
};
static_assert(kTypeLines[3].first + kTypeLines[3].count ==
              std::tuple_size_v<decltype(TelemetryTitles::userTypes)>);

// A letter a slot; "u" where a slot has none.
inline QString typeLetters(const TelemetryTitles& titles)
{
    QString letters;
    for (const QString& type : titles.userTypes)
        letters += type.isEmpty() ? QLatin1Char('u') : type[0];
    return letters;
}

} // namespace vlk
