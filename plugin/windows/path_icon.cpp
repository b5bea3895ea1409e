#include "windows/path_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace vlk {

namespace {

constexpr int kGrid = 24;
constexpr int kStroke = 2;

QPainterPath drawing(LinePath icon)
{
    QPainterPath path;
    const auto lines = [&path](std::initializer_list<QPoint> points) {
        path.moveTo(*points.begin());
        for (const QPoint& point : points)
            path.lineTo(point);
    };
    switch (icon) {
    case LinePath::Back: {
        const QRectF circle(4, 4, 16, 16);
        path.arcMoveTo(circle, 160);
        path.arcTo(circle, 160, -320);
        lines({{4, 4}, {4, 9}, {9, 9}});
        lines({{12, 8}, {12, 12}, {15, 14}});
        break;
    }
    case LinePath::Begin:
        lines({{6, 5}, {6, 19}});
        lines({{18, 5}, {10, 12}, {18, 19}});
        break;
    case LinePath::End:
        lines({{18, 5}, {18, 19}});
        lines({{6, 5}, {14, 12}, {6, 19}});
        break;
    case LinePath::Plus:
        lines({{12, 5}, {12, 19}});
        lines({{5, 12}, {19, 12}});
        break;
    }
    return path;
}

class PathIconEngine : public QIconEngine
{
public:
    explicit PathIconEngine(const QPainterPath& path) : path_(path) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor colour = QGuiApplication::palette().color(group, QPalette::ButtonText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / qreal{kGrid}, rect.height() / qreal{kGrid});
        painter->setPen(QPen(colour, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(path_);
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

    QIconEngine* clone() const override { return new PathIconEngine(path_); }

private:
    QPainterPath path_;
};

} // namespace

QIcon pathIcon(LinePath path)
{
    return QIcon(new PathIconEngine(drawing(path)));
}

} // namespace vlk
