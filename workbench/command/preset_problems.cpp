#include "command/preset_problems.h"

#include "settings/all_settings.h"

#include <algorithm>
#include <functional>

namespace workbench::command {

using vlk::Change;
using vlk::review::FileKeys;
using vlk::review::PresetProblem;

namespace {

// Wrong whatever else a file holds: ranges and lists of some settings follow others.
bool isAlwaysWrong(const PresetProblem& problem)
{
    using What = PresetProblem::What;
    if (problem.what == What::UnknownKey || problem.what == What::Doubled)
        return true;
    const int key = FileKeys::all().at(problem.path);
    const vlk::review::FileKey& place = FileKeys::all()[key];
    const bool follows = std::ranges::any_of(place.rows, [&](int row) {
        const vlk::TableLayout::Row& setting = FileKeys::all().layout(place.table).rows[row];
        return !setting.ranges.empty() || !setting.sharers.empty() || !setting.distances.empty();
    });
    return problem.what == What::BadValue && problem.change != Change::ByRule && !follows;
}

} // namespace

std::vector<PresetProblem> problemsOfPreset(CXmlSection& root)
{
    std::vector<PresetProblem> problems =
        vlk::review::applied(root, vlk::Configuration(vlk::allSettings())).problems;
    std::erase_if(problems, std::not_fn(isAlwaysWrong));
    return problems;
}

} // namespace workbench::command
