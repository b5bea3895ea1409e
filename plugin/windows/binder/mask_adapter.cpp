#include "windows/binder/mask_adapter.h"

#include <QWidget>

namespace vlk {

MaskAdapter::MaskAdapter(const Joint& joint, QWidget* widget, MaskWidget* mask)
    : Adapter(joint.edits, joint.row), widget_(widget), mask_(mask)
{
    mask_->edited = [this] {
        shown_.clear();
        if (!edits_.isShowing())
            take();
    };
}

MaskAdapter::~MaskAdapter()
{
    mask_->edited = nullptr;
}

// A mask is many boxes, and most loads leave them as they are.
void MaskAdapter::show(const QString& value)
{
    if (!shown_.isEmpty() && value == shown_)
        return;
    mask_->showMask(value);
    shown_ = value;
}

void MaskAdapter::dress()
{
    caption(widget_, shown().captionKey);
}

std::unique_ptr<Adapter> adapterFor(const Mask& row, const Joint& joint)
{
    QWidget* widget = joint.find(row.widget);
    auto* mask = dynamic_cast<MaskWidget*>(widget);
    return mask ? std::make_unique<MaskAdapter>(joint, widget, mask) : nullptr;
}

QWidget* inputOf(const Mask&)
{
    return nullptr;
}

} // namespace vlk
