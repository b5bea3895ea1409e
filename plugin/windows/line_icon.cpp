#include "windows/line_icon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <array>
#include <vector>

namespace vlk {

namespace {

constexpr double kGrid = 24;
constexpr double kStroke = 2;

using Line = std::vector<QPointF>;

// By the order of LineIcon: lines between points of the grid.
const std::array<std::vector<Line>, 3>& drawings()
{
    static const std::array<std::vector<Line>, 3> all{{
        {{{12, 20}, {12, 4}}, {{5, 11}, {12, 4}, {19, 11}}},
        {{{12, 4}, {12, 20}}, {{5, 13}, {12, 20}, {19, 13}}},
        {{{12, 3}, {22, 21}, {2, 21}, {12, 3}}, {{12, 10}, {12, 15}}, {{12, 18}, {12, 18.01}}},
    }};
    return all;
}

class LineIconEngine : public QIconEngine
{
public:
    explicit LineIconEngine(LineIcon which) : which_(which) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        QPainterPath path;
        for (const Line& line : drawings()[static_cast<std::size_t>(which_)]) {
            path.moveTo(line.front());
            for (std::size_t i = 1; i < line.size(); ++i)
                path.lineTo(line[i]);
        }
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kGrid, rect.height() / kGrid);
        painter->setPen(QPen(QApplication::palette().color(group, QPalette::ButtonText), kStroke,
                             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(path);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new LineIconEngine(which_); }

private:
    const LineIcon which_;
};

} // namespace

QIcon lineIcon(LineIcon which)
{
    return QIcon(new LineIconEngine(which));
}

} // namespace vlk
