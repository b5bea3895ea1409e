#include "windows/binder/mask_adapter.h"

#include "windows/binder/binder.h"

namespace vlk {

MaskAdapter::MaskAdapter(Binder& binder, int index, QWidget* widget, MaskWidget* mask)
    : Adapter(binder, index), widget_(widget), mask_(mask)
{
    own(widget);
    mask_->edited = [this] {
        if (!binder_.isShowing())
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
