#pragma once

// Widgets that rules of a table enable or show; all rules of a widget have to allow it. Its label is enabled
// with it. The tool tip of a disabled one says what disables it.

#include "settings/values.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

#include <vector>

namespace vlk {

class RuledWidgets : public QObject
{
    Q_OBJECT

public:
    explicit RuledWidgets(const Values& values) : values_(values) {}

    void clear() { targets_.clear(); }
    void add(QWidget* widget, QLabel* label, const Enable& rule);
    // By the values of now.
    void evaluate() const;
    // The rule that disables the widget, in words; its tool tip where no rule does.
    QString whyDisabled(const QWidget* widget) const;
    // What does not hold of the rule that hides the widget, or what is around it; null where none does.
    const When* hiddenBy(const QWidget* widget) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Target
    {
        QPointer<QWidget> widget;
        QPointer<QLabel> label;
        Enable::Effect effect;
        std::vector<const Enable*> rules;
    };

    QString whyDisabled(const Target& target) const;
    // Of a rule that does not hold.
    const When* unmetOf(const Enable& rule) const;

    const Values& values_;
    std::vector<Target> targets_;
};

} // namespace vlk
