#include "windows/eliding_combobox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyle>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

namespace vlk {

TextWidths widthsOf(const QStringList& texts, const QString& least, const QFontMetrics& metrics)
{
    TextWidths widths{0, metrics.horizontalAdvance(least)};
    for (const QString& text : texts)
        widths.widest = std::max(widths.widest, metrics.horizontalAdvance(text));
    return widths;
}

void ElidingComboBox::reserve(const QStringList& texts, const QString& least)
{
    reserve(widthsOf(texts, least, fontMetrics()));
}

void ElidingComboBox::reserve(TextWidths widths)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize contents(widths.least, fontMetrics().height());
    leastWidth_ = style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this).width();
    preferredWidth_ = leastWidth_ + std::max(0, widths.widest - widths.least);
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
    return fontMetrics().elidedText(option->currentText, elided_, room.width() - 2);
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
