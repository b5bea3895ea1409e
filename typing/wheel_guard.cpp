#include "typing/wheel_guard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>

namespace vlk {

namespace {

class WheelFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* input = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Wheel && input && !input->hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

bool takesTheWheel(const QWidget* widget)
{
    return qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           (qobject_cast<const QAbstractSlider*>(widget) && !qobject_cast<const QScrollBar*>(widget));
}

} // namespace

void guardFromWheel(QWidget* window)
{
    auto* filter = new WheelFilter(window);
    const auto children = window->findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (!takesTheWheel(child))
            continue;
        if (child->focusPolicy() & Qt::TabFocus)
            child->setFocusPolicy(Qt::StrongFocus);
        child->installEventFilter(filter);
    }
}

} // namespace vlk
