#include "windows/binder/handles_adapter.h"

#include "windows/vlk_dblslider2.h"

namespace vlk {

HandlesAdapter::HandlesAdapter(Edits& edits, const TableLayout::Distance& rule, int first, int second,
                               VLK_DblSlider2* slider)
    : edits_(edits), rule_(rule), first_(first), second_(second), slider_(slider)
{
    const Configuration& configuration = edits.configuration();
    slider->setRange(configuration.setting(first).least, gap(), configuration.setting(second).most);
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
    const Configuration& configuration = edits_.configuration();
    const QString first = fileNumber(configuration.setting(first_), slider_->value1());
    const QString second = fileNumber(configuration.setting(second_), slider_->value2());
    edits_.set(second_, second);
    edits_.set(first_, first);
    moveHandles();
    taking_ = false;
}

double HandlesAdapter::gap() const
{
    return edits_.configuration().gapOf(edits_.table(), rule_);
}

void HandlesAdapter::show()
{
    if (!taking_)
        moveHandles();
}

void HandlesAdapter::moveHandles()
{
    const Configuration& configuration = edits_.configuration();
    const auto shown = [&](int index) {
        return shownNumber(configuration.setting(index), configuration.value(index));
    };
    slider_->setGap(gap());
    // The first step may push the second handle, and that the first.
    slider_->setValue1(shown(first_));
    slider_->setValue2(shown(second_));
    slider_->setValue1(shown(first_));
}

} // namespace vlk
