#include "windows/input_guard.h"

#include "typing/join_fields.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QPushButton>
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

void guardInputs(QWidget* page)
{
    joinFields(page);
    auto* filter = new WheelFilter(page);
    const auto children = page->findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (takesTheWheel(child)) {
            if (child->focusPolicy() & Qt::TabFocus)
                child->setFocusPolicy(Qt::StrongFocus);
            child->installEventFilter(filter);
        }
        if (auto* button = qobject_cast<QPushButton*>(child))
            button->setAutoDefault(false);
    }
}

} // namespace vlk
