#include "review/advice_binding.h"

#include "review/advice_rules.h"
#include "settings/all_settings.h"
#include "settings/table_layout.h"

#include <algorithm>

namespace vlk::review::advice {

namespace {

std::vector<BoundCondition> bound(std::span<const Condition> conditions, Numbers numbers)
{
    using Test = Condition::Test;
    std::vector<BoundCondition> all;
    for (const Condition& condition : conditions) {
        if (condition.test == Test::Nothing)
            break;
        BoundCondition& made = all.emplace_back();
        made.condition = &condition;
        made.position = condition.position ? positionOf(condition.position, numbers) : -1;
        if (condition.test == Test::Like || condition.test == Test::Unlike)
            made.pattern.setPattern(QString::fromLatin1(condition.text));
        if (condition.other)
            made.other = placeOf(numberedName(condition.other, numbers));
        if (!condition.path || condition.test == Test::Unread)
            continue;
        if (condition.over == Condition::Over::One)
            made.places = {placeOf(numberedName(condition.path, numbers))};
        for (std::uint8_t number = 1; number <= condition.count; ++number)
            made.places.push_back(placeOf(numberedName(condition.path, {numbers.outer, number})));
    }
    return all;
}

} // namespace

const std::vector<BoundRule>& boundRules()
{
    static const std::vector<BoundRule> rules = [] {
        std::vector<BoundRule> all;
        for (const Rule& rule : kRules) {
            const auto add = [&](int outer, int inner) {
                const Numbers numbers{static_cast<std::uint8_t>(outer), static_cast<std::uint8_t>(inner)};
                all.push_back({&rule, numbers, bound(rule.all, numbers), bound(rule.any, numbers)});
            };
            for (int outer = std::min<int>(1, rule.outer); outer <= rule.outer; ++outer) {
                const int first = rule.pairs ? outer + 1 : std::min<int>(1, rule.inner);
                for (int inner = first; inner <= rule.inner; ++inner)
                    add(outer, inner);
            }
        }
        return all;
    }();
    return rules;
}

Place placeOf(const QString& path)
{
    const std::vector<const SettingsTable*>& tables = allSettings();
    for (std::size_t table = 0; table < tables.size(); ++table) {
        const TableLayout& layout = layoutOf(*tables[table]);
        const int size = layout.section.size();
        const bool isOfTable = path.startsWith(layout.section) && path.midRef(size, 1) == QLatin1String("/");
        if (const int row = isOfTable ? layout.rowAt(path.mid(size + 1)) : -1; row >= 0)
            return {static_cast<int>(table), row};
    }
    Q_ASSERT_X(false, "advice: no setting has the path", qPrintable(path));
    return {};
}

int positionOf(Position position, Numbers numbers)
{
    return position(numbers.inner > 0 ? numbers.inner : numbers.outer);
}

} // namespace vlk::review::advice
