// Tables that the compiler refuses, one a case; without a case it takes them. CMakeLists.txt tells the
// reasons.

#if CASE == 11 || CASE == 12
#include "review/advice_paths.h"
#else
#include "settings/settings_table.h"
#endif

namespace {

using namespace vlk;

[[maybe_unused]] constexpr Code kCodes[] = {{.code = "a"}, {.code = "b"}};
[[maybe_unused]] constexpr Position kPositions[] = {{"first"}, {"second"}};
[[maybe_unused]] constexpr PeriodPart kParts[] = {{"seconds", 1, 0, 59, "abbr_003"}};

constexpr auto kRows = rowsOf(group("A"), flag("on", 0).in("box"), flag("off", 0),
#if CASE == 1
                              flag("ranged", 0).range(1, 5),
#elif CASE == 2
                              integer("outside", 7).range(1, 5),
#elif CASE == 3
                              choice("list", kCodes, "c"),
#elif CASE == 4
                              flag("on", 1),
#elif CASE == 5
                              flag("twice", 1).in("box"),
#elif CASE == 6
                              link("link", "A/nothing", 0),
#elif CASE == 13
                              digits("digits", "02", kPositions),
#elif CASE == 14
                              period("period", 5, kParts).atLeast(6),
#elif CASE == 15
                              integer("number", 5).switchedOnTo(7),
#endif
                              choice("code", kCodes, "a"), integer("speed", 5).range(1, 5));

constexpr auto kSets = rulesOf(
#if CASE == 7
    onEdit(when("A/speeds"), "A/on", "1"),
#elif CASE == 8
    onEdit(when("A/speed"), "B/on", "1"),
#elif CASE == 19
    onEdit(when("A/code", "a|c"), "A/on", "1"),
#elif CASE == 20
    onEdit(when("A/on"), "A/code", "c"),
#elif CASE == 21
    onEdit(when("A/on"), "A/speed", "fast"),
#endif
    always(when("A/speed", "5"), "A/off", "1"));

#if CASE == 16
constexpr auto kPairs = rulesOf(Distance{"A/speed", "A/on"});
#elif CASE == 17
constexpr auto kPairs = rulesOf(ExclusiveChoice{.path = "A/speed"});
#elif CASE == 18
constexpr auto kPairs = rulesOf(Presets{.trigger = "A/on"});
#elif CASE == 22
constexpr PresetRow kPresets[] = {{"a", {"1"}}, {"c", {"2"}}};
constexpr auto kPairs = rulesOf(Presets{.trigger = "A/code", .fields = {"A/speed"}, .rows = kPresets});
#elif CASE == 23
constexpr auto kPairs = rulesOf(RangeWhen{.path = "A/code", .offers = "b|c"});
#elif CASE == 24
constexpr auto kPairs = rulesOf(RangeWhen{.path = "A/speed", .offers = "1|2"});
#else
constexpr auto kPairs = rulesOf(Distance{"A/speed", "A/speed"});
#endif

#if CASE == 9
constexpr auto kEnables = rulesOf(enable("boxes", when("A/on")));
#else
constexpr auto kEnables = rulesOf(enable("box", when("A/on")), enable(parts("frame"), when("A/on")));
#endif

constexpr SettingsTable kTable = tableOf<kRows, kSets, kPairs, kEnables>("S");

// A kind without one of its functions.
struct Forgotten : ShownOf<Forgotten>
{
    int load = 0;
    int reset = 0;
};

#if CASE == 11 || CASE == 12
// Advice with a path that no setting has: of one number that is too many, or at all.
constexpr std::array kAdvice{
    review::advice::rule("rule", review::Severity::Hint, "key")
        .each(CASE == 11 ? 4 : 3)
        .naming("TRANS/SRV%1/use"),
    review::advice::rule("rule", review::Severity::Hint, "key")
        .when(review::advice::below("TRACK/POINTS/dist",
                                    CASE == 12 ? "TRACK/POINTS/none" : "TRACK/POINTS/angle"))};
static_assert(review::advice::kArePathsKnown<kAdvice>);
#endif

} // namespace

int main()
{
#if CASE == 10
    normalised(Forgotten(), Reading{{}, {}, {}});
#endif
    return static_cast<int>(kTable.rows.size()) - 5;
}
