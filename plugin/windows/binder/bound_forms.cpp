#include "windows/binder/bound_forms.h"

#include <algorithm>

namespace vlk {

namespace {

constexpr QChar kFormMark = u'/';

} // namespace

void BoundForms::add(QWidget* form, int number)
{
    Form& added = forms_.emplace_back(Form{form, number, {}, {}});
    for (QLabel* label : form->findChildren<QLabel*>()) {
        if (label->buddy() && !added.ofBuddy.contains(label->buddy()))
            added.ofBuddy.insert(label->buddy(), label);
        if (!added.named.contains(label->objectName()))
            added.named.insert(label->objectName(), label);
    }
}

const BoundForms::Form* BoundForms::formNamed(const QString& name) const
{
    const auto found = std::find_if(forms_.begin(), forms_.end(), [&](const Form& form) {
        return form.widget && form.widget->objectName() == name;
    });
    return found == forms_.end() ? nullptr : &*found;
}

bool BoundForms::isLate(const QString& name) const
{
    const int slash = name.indexOf(kFormMark);
    return slash >= 0 && !formNamed(name.left(slash));
}

QWidget* BoundForms::find(const QString& name, int number) const
{
    if (name.isEmpty())
        return nullptr;
    if (const int slash = name.indexOf(kFormMark); slash >= 0) {
        const Form* form = formNamed(name.left(slash));
        return form ? form->widget->findChild<QWidget*>(name.mid(slash + 1)) : nullptr;
    }
    for (const bool numbered : {true, false}) {
        for (const Form& form : forms_) {
            if (!form.widget || (form.number != 0) != numbered || (numbered && form.number != number))
                continue;
            if (auto* widget = form.widget->findChild<QWidget*>(name))
                return widget;
        }
    }
    return nullptr;
}

const BoundForms::Form* BoundForms::formAround(const QWidget* widget) const
{
    for (const QWidget* outer = widget->parentWidget(); outer; outer = outer->parentWidget()) {
        for (const Form& form : forms_) {
            if (form.widget == outer)
                return &form;
        }
    }
    return nullptr;
}

QLabel* BoundForms::labelOf(QWidget* widget) const
{
    const Form* form = formAround(widget);
    if (!form)
        return nullptr;
    if (QLabel* label = form->ofBuddy.value(widget); label && label->buddy() == widget)
        return label;
    QLabel* label = form->named.value(QStringLiteral("label_") + widget->objectName());
    if (label)
        label->setBuddy(widget);
    return label;
}

QLabel* BoundForms::labelBehind(QWidget* widget) const
{
    QWidget* parent = widget->parentWidget();
    return parent ? parent->findChild<QLabel*>(widget->objectName() + QStringLiteral("_After")) : nullptr;
}

} // namespace vlk
