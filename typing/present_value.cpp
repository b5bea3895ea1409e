#include "typing/present_value.h"

#include <QAbstractSpinBox>
#include <QLineEdit>

namespace vlk {

namespace {

void setPaper(QWidget* field, bool paper)
{
    QPalette palette;
    // Whatever the colour below is, now and later.
    if (!paper)
        palette.setColor(QPalette::Base, Qt::transparent);
    field->setPalette(palette);
    field->setFocusPolicy(paper ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

void showAsPresent(QWidget* value, bool present)
{
    QFont font = value->font();
    font.setWeight(present ? QFont::DemiBold : QFont::Normal);
    value->setFont(font);
    if (auto* line = qobject_cast<QLineEdit*>(value)) {
        line->setFrame(!present);
        setPaper(line, !present);
    } else if (auto* box = qobject_cast<QAbstractSpinBox*>(value)) {
        box->setFrame(!present);
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        setPaper(box, !present);
    }
}

} // namespace vlk
