#include "review/advice_rules.h"

#include "review/advice_driving_rules.h"
#include "review/advice_line_rules.h"
#include "review/advice_paths.h"
#include "review/advice_sensor_rules.h"
#include "review/advice_transfer_rules.h"

namespace vlk::review::advice {

namespace {

constexpr auto kAll = rulesOf(kTransferRules, kRecordRules, kTrackRules, kSystemRules, kRsRules, kInputRules,
                              kOutputRules, kBluetoothRules);
static_assert(kArePathsKnown<kAll>);
static_assert(isKnown(kMaskPath, {}) && isKnown(kFormatPath, {}));

} // namespace

constexpr std::span<const Rule> kRules = kAll;

} // namespace vlk::review::advice
