#include "telemetry/view/value_label.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <utility>

namespace vlk {

ValueLabel::ValueLabel(const QString& objectName, QWidget* parent) : QLabel(parent)
{
    setObjectName(objectName);
    setTextFormat(Qt::PlainText);
}

void ValueLabel::setTextWidth(int pixels)
{
    setFixedSize(pixels + 2, fontMetrics().height());
}

void ValueLabel::setTextWidths(int leastCharacters, int mostCharacters)
{
    const int character = fontMetrics().averageCharWidth();
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMinimumWidth(character * leastCharacters);
    setMaximumWidth(character * mostCharacters);
    setFixedHeight(fontMetrics().height());
}

void ValueLabel::setValue(const QString& value)
{
    if (std::exchange(absentTip_, nullptr)) {
        updateGeometry();
        update();
    }
    setText(value);
}

void ValueLabel::setAbsent(const char* tipKey)
{
    setText({});
    if (!std::exchange(absentTip_, tipKey)) {
        updateGeometry();
        update();
    }
}

QSize ValueLabel::sizeHint() const
{
    return withDash(QLabel::sizeHint());
}

QSize ValueLabel::minimumSizeHint() const
{
    return withDash(QLabel::minimumSizeHint());
}

QSize ValueLabel::withDash(const QSize& size) const
{
    return isAbsent() ? size.expandedTo({fontMetrics().horizontalAdvance(kAbsentMark), 0}) : size;
}

bool ValueLabel::fits() const
{
    return fontMetrics().horizontalAdvance(text()) <= width();
}

QString ValueLabel::tip() const
{
    if (isAbsent())
        return absentTip(absentTip_);
    return fits() ? toolTip() : text();
}

bool ValueLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && !tip().isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip(), this);
        return true;
    }
    return QLabel::event(event);
}

// Only where the mouse is: what makes a text selectable costs more than the text.
void ValueLabel::enterEvent(QEvent* event)
{
    if (!text().isEmpty() && fits())
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QLabel::enterEvent(event);
}

void ValueLabel::leaveEvent(QEvent* event)
{
    if (!hasSelectedText())
        setTextInteractionFlags(Qt::NoTextInteraction);
    QLabel::leaveEvent(event);
}

void ValueLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton)
        event->ignore();
    else
        QLabel::mousePressEvent(event);
}

void ValueLabel::contextMenuEvent(QContextMenuEvent* event)
{
    event->ignore();
}

void ValueLabel::paintEvent(QPaintEvent* event)
{
    if (textInteractionFlags().testFlag(Qt::TextSelectableByMouse) && !isAbsent() && fits()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QString shown = isAbsent() ? QString(kAbsentMark)
                          : fits()   ? text()
                                     : fontMetrics().elidedText(text(), Qt::ElideRight, width());
    const QPalette::ColorRole role = isAbsent() ? QPalette::PlaceholderText : foregroundRole();
    // A style may leave that colour without a brush to paint with.
    QPalette colours = palette();
    colours.setColor(role, colours.color(role));
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), colours, isEnabled(), shown, role);
}

} // namespace vlk
