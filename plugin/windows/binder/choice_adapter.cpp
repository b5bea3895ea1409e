#include "windows/binder/choice_adapter.h"

#include "settings/value_text.h"

#include <QComboBox>
#include <QSignalBlocker>

namespace vlk {

ChoiceAdapter::ChoiceAdapter(Edits& edits, int index, QComboBox* box) : Adapter(edits, index), box_(box)
{
    own(box);
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] { take(); });
}

void ChoiceAdapter::dress()
{
    caption(box_);
    const QSignalBlocker blocker(box_);
    box_->clear();
    const Limits limits = configuration().limits(index());
    for (const Code& code : setting().codes) {
        if (offersCode(setting(), code, limits))
            box_->addItem(codeText(code), QString::fromLatin1(code.code));
    }
    show(configuration().value(index()));
}

void ChoiceAdapter::show(const QString& value)
{
    if (box_->currentIndex() < 0 || box_->currentData() != value)
        box_->setCurrentIndex(box_->findData(value));
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
