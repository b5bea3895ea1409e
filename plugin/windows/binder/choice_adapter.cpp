#include "windows/binder/choice_adapter.h"

#include "windows/binder/boxes_adapter.h"
#include "windows/binder/code_list.h"

#include <QComboBox>
#include <QSignalBlocker>

#include <algorithm>

namespace vlk {

ChoiceAdapter::ChoiceAdapter(const Choice& choice, const Joint& joint, QComboBox* box)
    : Adapter(joint.edits, joint.row), choice_(choice), box_(box)
{
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] { take(); });
}

void ChoiceAdapter::dress()
{
    caption(box_);
    const QSignalBlocker blocker(box_);
    fillCodes(box_, choice_.codes, values().limits(row()));
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
    if (box_->currentIndex() >= 0 || choice_.none)
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
    return QString::fromLatin1(choice_.none ? choice_.none : "");
}

std::unique_ptr<Adapter> adapterFor(const Choice& row, const Joint& joint)
{
    const bool overBoxes =
        std::ranges::any_of(row.codes, [](const Code& code) { return static_cast<bool>(code.widget); });
    if (overBoxes)
        return std::make_unique<ExclusiveAdapter>(row, joint);
    auto* box = joint.findAs<QComboBox>(row.widget);
    return box ? std::make_unique<ChoiceAdapter>(row, joint, box) : nullptr;
}

QWidget* inputOf(const Choice&)
{
    return new QComboBox;
}

} // namespace vlk
