#include "windows/binder/choice_adapter.h"

#include "windows/binder/code_list.h"

#include <QSignalBlocker>

namespace vlk {

ChoiceAdapter::ChoiceAdapter(Edits& edits, int row, QComboBox* box) : Adapter(edits, row), box_(box)
{
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] { take(); });
}

void ChoiceAdapter::dress()
{
    caption(box_);
    const QSignalBlocker blocker(box_);
    fillCodes(box_, setting(), values().limits(row()));
    shown_.reset();
    show(values().value(row()));
}

void ChoiceAdapter::show(const QString& value)
{
    if (shown_ == std::pair(value, box_->currentIndex()))
        return;
    selectCode(box_, value);
    shown_ = {value, box_->currentIndex()};
}

void ChoiceAdapter::take()
{
    if (box_->currentIndex() >= 0 || setting().none)
        edited(held());
}

QString ChoiceAdapter::firstItem() const
{
    return box_->itemData(0).toString();
}

QString ChoiceAdapter::held() const
{
    if (box_->currentIndex() >= 0)
        return box_->currentData().toString();
    return QString::fromLatin1(setting().none ? setting().none : "");
}

} // namespace vlk
