#include "windows/binder/flag_adapter.h"

#include "windows/binder/checkable.h"

#include <QCheckBox>

namespace vlk {

FlagAdapter::FlagAdapter(const Flag& flag, const Joint& joint, QWidget* box)
    : Adapter(joint.edits, joint.row), flag_(flag), box_(box)
{
    onToggled(box, this, [this](bool) { take(); });
}

void FlagAdapter::dress()
{
    caption(box_);
}

void FlagAdapter::show(const QString& value)
{
    setChecked(box_, (value != QLatin1String("0")) != flag_.inverted);
}

QString FlagAdapter::held() const
{
    return QString::number(isChecked(box_) != flag_.inverted ? flag_.on : 0);
}

std::unique_ptr<Adapter> adapterFor(const Flag& row, const Joint& joint)
{
    QWidget* box = joint.find(row.widget);
    return box ? std::make_unique<FlagAdapter>(row, joint, box) : nullptr;
}

QWidget* inputOf(const Flag&)
{
    return new QCheckBox;
}

} // namespace vlk
