#include "windows/binder/ruled_widgets.h"

#include "review/value_text.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>

namespace vlk {

namespace {

QString notAvailableWith(const QString& setting)
{
    return QCoreApplication::translate("vlk", "cfgt6_452").arg(setting);
}

} // namespace

void RuledWidgets::add(QWidget* widget, QLabel* label, const Enable& rule)
{
    const auto known = std::ranges::find_if(targets_, [&](const Target& target) {
        return target.widget == widget && target.effect == rule.effect;
    });
    if (known != targets_.end()) {
        known->rules.push_back(&rule);
        return;
    }
    targets_.push_back({widget, label, rule.effect, {&rule}});
    if (rule.effect == Enable::Effect::Shown)
        return;
    widget->installEventFilter(this);
    if (label)
        label->installEventFilter(this);
}

void RuledWidgets::evaluate() const
{
    for (const Target& target : targets_) {
        if (!target.widget)
            continue;
        const bool allowed =
            std::ranges::all_of(target.rules, [&](const auto* rule) { return values_.holds(*rule); });
        for (QWidget* widget : {target.widget.data(), static_cast<QWidget*>(target.label.data())}) {
            if (widget)
                target.effect == Enable::Effect::Shown ? widget->setVisible(allowed)
                                                       : widget->setEnabled(allowed);
        }
    }
}

bool RuledWidgets::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::ToolTip || !widget || widget->isEnabled())
        return QObject::eventFilter(watched, event);
    const auto target = std::ranges::find_if(targets_, [&](const Target& candidate) {
        return candidate.widget == widget || candidate.label == widget;
    });
    const QString why = target == targets_.end() ? QString() : whyDisabled(*target);
    if (why.isEmpty())
        return QObject::eventFilter(watched, event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), why, widget);
    return true;
}

QString RuledWidgets::whyDisabled(const Target& target) const
{
    for (const Enable* rule : target.rules) {
        if (values_.holds(*rule))
            continue;
        const int missing = unmetOf(*rule)->row;
        const QString caption = captionText(values_.setting(missing));
        const QString value = valueText(values_, missing);
        return notAvailableWith(caption.isEmpty() ? value : caption + QStringLiteral(": ") + value);
    }
    return {};
}

const When* RuledWidgets::unmetOf(const Enable& rule) const
{
    return &*std::ranges::find_if_not(rule.when, [&](const When& one) { return values_.holds(one); });
}

const When* RuledWidgets::hiddenBy(const QWidget* widget) const
{
    for (const QWidget* outer = widget; outer && !outer->isWindow(); outer = outer->parentWidget()) {
        for (const Target& target : targets_) {
            if (target.widget != outer || target.effect != Enable::Effect::Shown)
                continue;
            const auto unmet = std::ranges::find_if_not(
                target.rules, [&](const auto* rule) { return values_.holds(*rule); });
            if (unmet != target.rules.end())
                return unmetOf(**unmet);
        }
    }
    return nullptr;
}

QString RuledWidgets::whyDisabled(const QWidget* widget) const
{
    for (const QWidget* outer = widget; !outer->isWindow(); outer = outer->parentWidget()) {
        for (const Target& target : targets_) {
            if (target.widget == outer && target.effect == Enable::Effect::Enabled && !outer->isEnabled())
                return whyDisabled(target);
        }
        const auto* box = qobject_cast<const QGroupBox*>(outer);
        if (box && outer != widget && box->isCheckable() && !box->isChecked())
            return notAvailableWith(box->title() + QStringLiteral(": ") + yesNo(false));
    }
    return widget->toolTip();
}

} // namespace vlk
