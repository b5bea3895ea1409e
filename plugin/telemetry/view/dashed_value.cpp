#include "telemetry/view/dashed_value.h"

#include "telemetry/view/value_label.h"

namespace vlk {

DashedValue::DashedValue(QWidget* value)
{
    auto* dash = new ValueLabel(value->objectName() + QStringLiteral("_Dash"));
    dash->setAbsent();
    insertWidget(Value, value);
    insertWidget(Dash, dash);
    setSizePolicy(value->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
}

void DashedValue::setAbsent(bool absent)
{
    setCurrentIndex(absent ? Dash : Value);
}

} // namespace vlk
