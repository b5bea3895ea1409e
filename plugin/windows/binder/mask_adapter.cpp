#include "windows/binder/mask_adapter.h"

namespace vlk {

MaskAdapter::MaskAdapter(Edits& edits, int row, QWidget* widget, MaskWidget* mask)
    : Adapter(edits, row), widget_(widget), mask_(mask)
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
    caption(widget_, setting().captionKey);
}

} // namespace vlk
