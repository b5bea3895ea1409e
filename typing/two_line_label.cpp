#include "typing/two_line_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace vlk {

TwoLineLabel::TwoLineLabel(QWidget* parent) : QLabel(parent)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
}

void TwoLineLabel::setLimited(bool isLimited)
{
    isLimited_ = isLimited;
    updateGeometry();
    update();
}

// As a label measures them, which is more than the font says.
int TwoLineLabel::twoLines() const
{
    QLabel lines(QStringLiteral("x x"));
    lines.setFont(font());
    lines.setWordWrap(true);
    return lines.heightForWidth(1);
}

int TwoLineLabel::heightForWidth(int width) const
{
    const int whole = QLabel::heightForWidth(width);
    return isLimited_ ? std::min(whole, twoLines()) : whole;
}

bool TwoLineLabel::isCut() const
{
    return isLimited_ && QLabel::heightForWidth(width()) > twoLines();
}

bool TwoLineLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !isCut())
        return QLabel::event(event);
    QStringList told{text(), toolTip()};
    told.removeAll(QString());
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), told.join(QLatin1Char('\n')), this);
    return true;
}

void TwoLineLabel::paintEvent(QPaintEvent* event)
{
    if (!isCut()) {
        QLabel::paintEvent(event);
        return;
    }
    const QRect room = contentsRect();
    // A layout breaks at no other sign.
    QString whole = text();
    whole.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
    QTextLayout layout(whole, font());
    layout.beginLayout();
    QTextLine first = layout.createLine();
    first.setLineWidth(room.width());
    layout.endLayout();
    const int rest = first.textStart() + first.textLength();
    const QString second =
        fontMetrics().elidedText(text().mid(rest).simplified(), Qt::ElideRight, room.width());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     text().left(rest).trimmed() + QLatin1Char('\n') + second);
}

} // namespace vlk
