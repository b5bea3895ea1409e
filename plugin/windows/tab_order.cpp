#include "windows/tab_order.h"

#include <QWidget>

namespace vlk {

void tabThrough(QWidget* before, const QWidget* part)
{
    QWidgetList fields;
    for (QWidget* widget = before->nextInFocusChain(); widget != before;
         widget = widget->nextInFocusChain()) {
        if (part->isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy())
            fields << widget;
    }
    for (QWidget* field : fields) {
        QWidget::setTabOrder(before, field);
        before = field;
    }
}

} // namespace vlk
