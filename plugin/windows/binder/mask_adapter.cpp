#include "windows/binder/mask_adapter.h"

namespace vlk {

MaskAdapter::MaskAdapter(Edits& edits, int index, QWidget* widget, MaskWidget* mask)
    : Adapter(edits, index), widget_(widget), mask_(mask)
{
    own(widget);
    mask_->edited = [this] {
        if (!edits_.isShowing())
            take();
    };
}

MaskAdapter::~MaskAdapter()
{
    mask_->edited = nullptr;
}

void MaskAdapter::dress()
{
    caption(widget_, setting().captionKey);
}

} // namespace vlk
