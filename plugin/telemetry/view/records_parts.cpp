#include "telemetry/view/records_parts.h"

namespace vlk {

std::vector<RecordsPart> makeRecordsParts(ShownRecords* /*shown*/, QWidget* /*parent*/)
{
    return {};
}

} // namespace vlk
