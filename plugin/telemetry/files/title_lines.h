#pragma once

// The lines of the XML form that hold titles and type letters, for its writer and its reader.

#include "telemetry/record/telemetry_titles.h"

#include <string>
#include <string_view>
#include <utility>

namespace vlk {

enum class TitleGroup { Input, Output, Temperature };

struct TitleLine
{
    std::string_view tag;
    TitleGroup group;
    int index;
};

inline constexpr TitleLine kTitleLines[] = {
    {"IN1", TitleGroup::Input, 0},         {"IN2", TitleGroup::Input, 1},
    {"IN3", TitleGroup::Input, 2},         {"OUT1", TitleGroup::Output, 0},
    {"OUT2", TitleGroup::Output, 1},       {"TEMP1", TitleGroup::Temperature, 0},
    {"TEMP2", TitleGroup::Temperature, 1}, {"TEMP3", TitleGroup::Temperature, 2},
    {"TEMP4", TitleGroup::Temperature, 3},
};

// The title that a line holds, of `const TelemetryTitles` too.
template <class Titles>
auto& titleOf(Titles& titles, const TitleLine& line)
{
    switch (line.group) {
    case TitleGroup::Input:
        return titles.inputs[line.index];
    case TitleGroup::Output:
        return titles.outputs[line.index];
    case TitleGroup::Temperature:
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
