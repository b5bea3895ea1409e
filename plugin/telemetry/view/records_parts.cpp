#include "telemetry/view/records_parts.h"

#include "telemetry/curves/curves_view.h"
#include "telemetry/track/track_view.h"

namespace vlk {

std::vector<RecordsPart> makeRecordsParts(ShownRecords* shown, QWidget* parent)
{
    return {
        recordsPart<CurvesView>(nullptr, shown, parent),
        recordsPart<TrackView>("rec_199", shown, parent),
    };
}

} // namespace vlk
