#include "telemetry/view/item_display.h"

#include "telemetry/text/item_text.h"
#include "telemetry/view/value_label.h"

#include <QCoreApplication>

#include <cstdlib>

namespace vlk {

namespace {

constexpr const char* kNorthSouth[] = {"tmiw_171", "tmiw_172"};
constexpr const char* kEastWest[] = {"tmiw_173", "tmiw_174"};

bool isLatitude(ElementIndex index)
{
    return index == element("Latitude") || index == element("NaviLatitude");
}

} // namespace

bool holds(const TmiPage_Zeta3& page, ElementIndex element)
{
    return page.isExtra() ? page.extra().find(element) != nullptr : page.has(element);
}

bool holds(const TmiPage_Zeta3& page, ItemIndex item)
{
    return kItems[item].rule().always || holds(page, kItems[item].element);
}

QString positionText(const TmiPage_Zeta3& page, ItemIndex item)
{
    const ElementIndex index = kItems[item].element;
    const Rule& rule = kItems[item].rule();
    const qint64 units = page.isExtra() ? page.extra().integer(index) : page.integer(index);
    const qint64 distance = std::llabs(units);
    const double unitsPerDegree = measureOf(kItems[item], rule).divisor;
    const auto degree = static_cast<qint64>(unitsPerDegree);
    const auto& words = isLatitude(index) ? kNorthSouth : kEastWest;
    return QStringLiteral("%1\u00b0 %2' %3")
        .arg(distance / degree)
        .arg(static_cast<double>(distance % degree) * 60 / unitsPerDegree, 0, 'f', rule.decimals)
        .arg(QCoreApplication::translate("vlk", words[units < 0 ? 1 : 0]));
}

void showItem(ValueLabel& label, const TmiPage_Zeta3& page, ItemIndex item)
{
    const bool isHeld = holds(page, item);
    const QString value = text(page, item);
    if (!value.isEmpty())
        label.setValue(value);
    else
        label.setAbsent(isHeld ? kNoValue : kNotInRecord);
    if (kItems[item].rule().shape == Shape::Coordinate)
        label.setToolTip(isHeld ? positionText(page, item) : QString());
}

} // namespace vlk
