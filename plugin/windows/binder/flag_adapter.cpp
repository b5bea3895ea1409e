#include "windows/binder/flag_adapter.h"

#include "windows/binder/checkable.h"

namespace vlk {

FlagAdapter::FlagAdapter(Edits& edits, int row, QWidget* box) : Adapter(edits, row), box_(box)
{
    onToggled(box, this, [this](bool) { take(); });
}

void FlagAdapter::dress()
{
    caption(box_);
}

void FlagAdapter::show(const QString& value)
{
    setChecked(box_, (value != QLatin1String("0")) != setting().inverted);
}

QString FlagAdapter::held() const
{
    return QString::number(isChecked(box_) != setting().inverted ? setting().on : 0);
}

} // namespace vlk
