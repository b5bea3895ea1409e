#include "telemetry/text/special_texts.h"

#include "telemetry/text/item_text.h"

namespace vlk {

QString segmentReliability(const TmiPage_Zeta3& page)
{
    const int travelled = page.value<element("SecondsLast")>();
    const int interval = page.value<element("AllSeconds")>();
    return QString::number(interval == 0 ? 0 : travelled * 100 / interval);
}

QString linearAxes(const TmiPage_Zeta3& page)
{
    constexpr ItemIndex x = item("AccelLinearX");
    const QLatin1String bar(" | ");
    return text(page, x) + bar + text(page, x + 1) + bar + text(page, x + 2);
}

} // namespace vlk
