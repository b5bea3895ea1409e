#include "typing/present_value.h"

#include "typing/kept_palette.h"

#include <QDoubleSpinBox>
#include <QLineEdit>

namespace vlk {

void standOut(QWidget* value, bool present)
{
    QFont font = value->font();
    font.setWeight(present ? QFont::DemiBold : QFont::Normal);
    value->setFont(font);
    auto* line = qobject_cast<QLineEdit*>(value);
    auto* box = qobject_cast<QAbstractSpinBox*>(value);
    if (line)
        line->setFrame(!present);
    if (box) {
        box->setFrame(!present);
        box->setReadOnly(present);
        box->setButtonSymbols(present ? QAbstractSpinBox::NoButtons : QAbstractSpinBox::UpDownArrows);
    }
    if (line || box)
        value->setFocusPolicy(present ? Qt::ClickFocus : Qt::StrongFocus);
}

void showAsPresent(QWidget* value, bool present)
{
    standOut(value, present);
    if (!value->inherits("QLineEdit") && !value->inherits("QAbstractSpinBox"))
        return;
    value->setPalette(present ? ofPresentValue(value->palette()) : QPalette());
}

void showAsOld(QWidget* value, bool old)
{
    const QPalette present = ofPresentValue({});
    value->setPalette(old ? ofOldValue(present) : present);
}

void showPresentValue(QDoubleSpinBox* box, double value)
{
    box->setSpecialValueText(QString());
    box->setValue(value);
}

void showNoPresentValue(QDoubleSpinBox* box)
{
    box->setValue(box->minimum());
    box->setSpecialValueText(QStringLiteral("–"));
}

} // namespace vlk
