#include "typing/line_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace vlk {

namespace {

constexpr int kGrid = 24;
constexpr int kStroke = 2;

QPainterPath drawing(LineIcon icon)
{
    QPainterPath path;
    const auto lines = [&path](std::initializer_list<QPoint> points) {
        path.moveTo(*points.begin());
        for (const QPoint& point : points)
            path.lineTo(point);
    };
    switch (icon) {
    case LineIcon::Back: {
        const QRectF circle(4, 4, 16, 16);
        path.arcMoveTo(circle, 160);
        path.arcTo(circle, 160, -320);
        lines({{4, 4}, {4, 9}, {9, 9}});
        lines({{12, 8}, {12, 12}, {15, 14}});
        break;
    }
    case LineIcon::Begin:
        lines({{6, 5}, {6, 19}});
        lines({{18, 5}, {10, 12}, {18, 19}});
        break;
    case LineIcon::End:
        lines({{18, 5}, {18, 19}});
        lines({{6, 5}, {14, 12}, {6, 19}});
        break;
    case LineIcon::Plus:
        lines({{12, 5}, {12, 19}});
        lines({{5, 12}, {19, 12}});
        break;
    case LineIcon::Up:
        lines({{12, 20}, {12, 4}});
        lines({{5, 11}, {12, 4}, {19, 11}});
        break;
    case LineIcon::Down:
        lines({{12, 4}, {12, 20}});
        lines({{5, 13}, {12, 20}, {19, 13}});
        break;
    case LineIcon::Cross:
        lines({{6, 6}, {18, 18}});
        lines({{18, 6}, {6, 18}});
        break;
    case LineIcon::Undo:
        path.moveTo(5, 9);
        path.lineTo(14, 9);
        path.cubicTo(21, 9, 21, 19, 14, 19);
        path.lineTo(10, 19);
        lines({{9, 4}, {4, 9}, {9, 14}});
        break;
    case LineIcon::Redo:
        path.moveTo(19, 9);
        path.lineTo(10, 9);
        path.cubicTo(3, 9, 3, 19, 10, 19);
        path.lineTo(14, 19);
        lines({{15, 4}, {20, 9}, {15, 14}});
        break;
    case LineIcon::Differences:
        lines({{5, 9}, {19, 9}});
        lines({{5, 15}, {19, 15}});
        lines({{15, 4}, {9, 20}});
        break;
    case LineIcon::Advice: {
        const QRectF bulb(6, 3, 12, 12);
        path.arcMoveTo(bulb, -60);
        path.arcTo(bulb, -60, 300);
        lines({{9, 14}, {9, 17}, {15, 17}, {15, 14}});
        lines({{10, 21}, {14, 21}});
        break;
    }
    }
    return path;
}

class DrawnIconEngine : public QIconEngine
{
public:
    DrawnIconEngine(IconDrawing drawing, QPalette::ColorRole text) : drawing_(std::move(drawing)), text_(text)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : text_;
        painter->save();
        drawing_(*painter, rect, QGuiApplication::palette().color(group, role));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new DrawnIconEngine(drawing_, text_); }

private:
    const IconDrawing drawing_;
    const QPalette::ColorRole text_;
};

} // namespace

QIcon drawnIcon(IconDrawing drawing, QPalette::ColorRole text)
{
    return QIcon(new DrawnIconEngine(std::move(drawing), text));
}

QIcon lineIcon(LineIcon which)
{
    const auto draw = [path = drawing(which)](QPainter& painter, const QRect& rect, const QColor& colour) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(rect.topLeft());
        painter.scale(rect.width() / qreal{kGrid}, rect.height() / qreal{kGrid});
        painter.setPen(QPen(colour, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path);
    };
    return drawnIcon(draw, QPalette::ButtonText);
}

} // namespace vlk
