#include "typing/join_fields.h"

#include "typing/date_entry.h"
#include "typing/number_entry.h"
#include "typing/text_entry.h"

#include <QAbstractSpinBox>
#include <QDateTimeEdit>
#include <QLineEdit>

namespace vlk {

void joinFields(QWidget* window)
{
    const auto boxes = window->findChildren<QAbstractSpinBox*>();
    for (QAbstractSpinBox* box : boxes) {
        if (auto* date = qobject_cast<QDateTimeEdit*>(box))
            DateEntry::join(date);
        else
            NumberEntry::join(box);
    }
    const auto lines = window->findChildren<QLineEdit*>();
    for (QLineEdit* line : lines) {
        if (!qobject_cast<QAbstractSpinBox*>(line->parentWidget()))
            TextEntry::join(line);
    }
}

} // namespace vlk
