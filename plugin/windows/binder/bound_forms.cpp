#include "windows/binder/bound_forms.h"

#include "settings/table_layout.h"

#include <algorithm>

namespace vlk {

QStringList targetNames(const Enable& rule)
{
    return numberedName(rule.targets.tail, rule.numbers).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

void BoundForms::add(QWidget* form, int number)
{
    Form& added = forms_.emplace_back(Form{form, number, {}, {}});
    for (QWidget* child : form->findChildren<QWidget*>()) {
        const QString name = child->objectName();
        if (!name.isEmpty() && !added.named.contains(name))
            added.named.insert(name, child);
        auto* label = qobject_cast<QLabel*>(child);
        if (label && label->buddy() && !added.ofBuddy.contains(label->buddy()))
            added.ofBuddy.insert(label->buddy(), label);
    }
}

// What was made since is looked for.
QWidget* BoundForms::Form::find(const QString& name) const
{
    QWidget* known = named.value(name);
    return known ? known : widget->findChild<QWidget*>(name);
}

QLabel* BoundForms::Form::label(const QString& name) const
{
    return qobject_cast<QLabel*>(named.value(name));
}

const BoundForms::Form* BoundForms::formNamed(const QString& name) const
{
    const auto found = std::ranges::find_if(
        forms_, [&](const Form& form) { return form.widget && form.widget->objectName() == name; });
    return found == forms_.end() ? nullptr : &*found;
}

bool BoundForms::isLate(const Name& name, Numbers numbers) const
{
    return isLate(numberedName(name.form(), numbers));
}

QWidget* BoundForms::find(const Name& name, Numbers numbers) const
{
    return name ? find(numberedName(name.form(), numbers), numberedName(name.tail, numbers), numbers.outer)
                : nullptr;
}

QWidget* BoundForms::find(const QString& form, const QString& widget, int number) const
{
    if (!form.isEmpty()) {
        const Form* named = formNamed(form);
        return named ? named->find(widget) : nullptr;
    }
    for (const bool numbered : {true, false}) {
        for (const Form& each : forms_) {
            if (!each.widget || (each.number != 0) != numbered || (numbered && each.number != number))
                continue;
            if (QWidget* found = each.find(widget))
                return found;
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
    QLabel* label = form->label(QStringLiteral("label_") + widget->objectName());
    if (label)
        label->setBuddy(widget);
    return label;
}

QLabel* BoundForms::labelBehind(QWidget* widget) const
{
    const Form* form = formAround(widget);
    return form ? form->label(widget->objectName() + QStringLiteral("_After")) : nullptr;
}

} // namespace vlk
