#include "windows/present_value.h"

#include "windows/kept_palette.h"
#include "windows/page_style.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSlider>

namespace vlk {

namespace {

template <class Field>
void dress(Field* field)
{
    field->setReadOnly(true);
    field->setFrame(false);
    field->setFocusPolicy(Qt::ClickFocus);
    QFont font = field->font();
    font.setWeight(QFont::DemiBold);
    field->setFont(font);
}

} // namespace

void dressPresentValue(QDoubleSpinBox* box)
{
    dress(box);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    keepPalette(box, ofPresentValue);
}

void dressPresentValue(QLineEdit* line)
{
    dress(line);
}

void dressPresentValue(QSlider* slider)
{
    setPageStyle(slider);
    slider->setFocusPolicy(Qt::NoFocus);
}

void showPresentValue(QDoubleSpinBox* box, double value)
{
    box->setSpecialValueText(QString());
    box->setValue(value);
}

// The box holds its least value meanwhile.
void showNoPresentValue(QDoubleSpinBox* box)
{
    box->setValue(box->minimum());
    box->setSpecialValueText(QStringLiteral("–"));
}

} // namespace vlk
