#include "windows/eliding_combobox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyle>
#include <QStylePainter>
#include <QToolTip>

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
    const int frame = 2 * view()->frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + frame);
    VLK_ComboBox::showPopup();
}

QString ElidingComboBox::shownText(QStyleOptionComboBox* option) const
{
    initStyleOption(option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, this);
    return fontMetrics().elidedText(option->currentText, Qt::ElideRight, room.width() - 2);
}

bool ElidingComboBox::event(QEvent* event)
{
    QStyleOptionComboBox option;
    if (event->type() != QEvent::ToolTip || shownText(&option) == currentText())
        return VLK_ComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), currentText(), this);
    return true;
}

void ElidingComboBox::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    const QString text = shownText(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = text;
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace vlk
