#pragma once

// The rules of advice with their numbers in, their settings found and their patterns made: once, at the first
// question for advice.

#include "review/advice_rule.h"
#include "settings/kinds/row.h"

#include <QRegularExpression>

#include <vector>

namespace vlk::review::advice {

// A setting by its table and row; no table where a rule needs none.
struct Place
{
    int table = -1;
    int row = -1;
};

struct BoundCondition
{
    const Condition* condition;
    std::vector<Place> places; // of the path; more than one where it goes over numbers
    Place other;
    int position; // of a field or a digit
    QRegularExpression pattern;
};

struct BoundRule
{
    const Rule* rule;
    Numbers numbers; // a rule is bound once for each
    std::vector<BoundCondition> all;
    std::vector<BoundCondition> any;
};

const std::vector<BoundRule>& boundRules();

// The place of a path in which the numbers of a rule stand.
Place placeOf(const QString& path);
int positionOf(Position position, Numbers numbers);

} // namespace vlk::review::advice
