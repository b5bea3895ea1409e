#include "windows/binder/handles_adapter.h"

#include "windows/binder/binder.h"
#include "windows/vlk_dblslider2.h"

namespace vlk {

HandlesAdapter::HandlesAdapter(Binder& binder, const TableLayout::Distance& rule, int first, int second,
                               VLK_DblSlider2* slider)
    : binder_(binder), rule_(rule), first_(first), second_(second), slider_(slider)
{
    const Configuration& configuration = binder.configuration();
    slider->setRange(configuration.setting(first).least, gap(), configuration.setting(second).most);
    const auto take = [this](int index, double value) {
        binder_.edited(index, fileNumber(binder_.configuration().setting(index), value));
    };
    connect(slider, &VLK_DblSlider2::value1Changed, this,
            [this, take](double value) { take(first_, value); });
    connect(slider, &VLK_DblSlider2::value2Changed, this,
            [this, take](double value) { take(second_, value); });
}

double HandlesAdapter::gap() const
{
    return binder_.configuration().gapOf(binder_.table(), rule_);
}

void HandlesAdapter::show()
{
    const Configuration& configuration = binder_.configuration();
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
