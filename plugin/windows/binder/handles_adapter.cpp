#include "windows/binder/handles_adapter.h"

#include "windows/vlk_dblslider2.h"

namespace vlk {

HandlesAdapter::HandlesAdapter(Edits& edits, const Distance& rule, VLK_DblSlider2* slider)
    : edits_(edits), rule_(rule), slider_(slider)
{
    slider->setRange(edits.values().setting(rule.first.row).number()->least, gap(),
                     edits.values().setting(rule.second.row).number()->most);
    connect(slider, &VLK_DblSlider2::value1Changed, this, &HandlesAdapter::take);
    connect(slider, &VLK_DblSlider2::value2Changed, this, &HandlesAdapter::take);
}

// A handle that pushes the other one has two signals, and the first comes while the slider is still in
// between: both values are taken at once, and the slider is left alone meanwhile.
void HandlesAdapter::take()
{
    if (taking_ || edits_.isShowing())
        return;
    taking_ = true;
    const Values& values = edits_.values();
    const QString first = fileNumber(*values.setting(rule_.first.row).number(), slider_->value1());
    const QString second = fileNumber(*values.setting(rule_.second.row).number(), slider_->value2());
    edits_.set(rule_.second.row, second);
    edits_.set(rule_.first.row, first);
    moveHandles();
    taking_ = false;
}

double HandlesAdapter::gap() const
{
    return edits_.values().gapOf(rule_);
}

void HandlesAdapter::show()
{
    if (!taking_)
        moveHandles();
}

void HandlesAdapter::moveHandles()
{
    const Values& values = edits_.values();
    const auto shown = [&](int row) { return shownNumber(*values.setting(row).number(), values.value(row)); };
    slider_->setGap(gap());
    // The first step may push the second handle, and that the first.
    slider_->setValue1(shown(rule_.first.row));
    slider_->setValue2(shown(rule_.second.row));
    slider_->setValue1(shown(rule_.first.row));
}

} // namespace vlk
