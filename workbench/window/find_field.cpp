#include "window/find_field.h"

#include <QLineEdit>
#include <QShortcut>

namespace workbench {

void joinFindField(QLineEdit* field, QWidget* content)
{
    QObject::connect(new QShortcut(QKeySequence::Find, field), &QShortcut::activated, field, [field] {
        field->setFocus();
        field->selectAll();
    });
    const auto inField = [field](Qt::Key key) {
        return new QShortcut(key, field, nullptr, nullptr, Qt::WidgetShortcut);
    };
    QObject::connect(inField(Qt::Key_Down), &QShortcut::activated, content, qOverload<>(&QWidget::setFocus));
    QObject::connect(inField(Qt::Key_Escape), &QShortcut::activated, field, [field, content] {
        field->clear();
        content->setFocus();
    });
}

} // namespace workbench
