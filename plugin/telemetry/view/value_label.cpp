#include "telemetry/view/value_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

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

bool ValueLabel::fits() const
{
    return fontMetrics().horizontalAdvance(text()) <= width();
}

bool ValueLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && !fits()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

void ValueLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QString shown = fits() ? text() : fontMetrics().elidedText(text(), Qt::ElideRight, width());
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}
