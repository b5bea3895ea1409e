#include "windows/eliding_combobox.h"

#include <QAbstractItemView>
#include <QStyle>
#include <QStylePainter>

#include <algorithm>

namespace vlk {

ElidingComboBox::ElidingComboBox(QWidget* parent) : VLK_ComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void ElidingComboBox::reserve(const QStringList& texts, const QString& least)
{
    const QFontMetrics metrics(font());
    int widest = 0;
    for (const QString& text : texts)
        widest = std::max(widest, metrics.horizontalAdvance(text));
    const int shortest = metrics.horizontalAdvance(least);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize contents(shortest, metrics.height());
    leastWidth_ = style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this).width();
    preferredWidth_ = leastWidth_ + std::max(0, widest - shortest);
    updateGeometry();
}

QSize ElidingComboBox::sizeHint() const
{
    return {preferredWidth_, VLK_ComboBox::sizeHint().height()};
}

QSize ElidingComboBox::minimumSizeHint() const
{
    return {leastWidth_, VLK_ComboBox::minimumSizeHint().height()};
}

void ElidingComboBox::showPopup()
{
    view()->setMinimumWidth(preferredWidth_);
    VLK_ComboBox::showPopup();
}

void ElidingComboBox::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, room.width() - 2);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace vlk
