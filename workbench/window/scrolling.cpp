#include "window/scrolling.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWidget>

namespace vlk {

namespace {

// What title bar and borders take, before there are any to be asked.
constexpr QSize frame(8, 36);

class ColumnArea : public QScrollArea
{
public:
    QSize minimumSizeHint() const override
    {
        const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
        return {width, QScrollArea::minimumSizeHint().height()};
    }
    QSize sizeHint() const override { return widget()->sizeHint().expandedTo(minimumSizeHint()); }
};

} // namespace

QScrollArea* scrolling(QWidget* widget)
{
    auto* area = new ColumnArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(widget);
    return area;
}

QSize within(QSize wanted, QSize room)
{
    return wanted.boundedTo(room - frame);
}

void resizeWithin(QWidget* window, QSize wanted)
{
    const QScreen* screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect room = screen->availableGeometry();
    window->resize(within(wanted, room.size()));
    QRect place = window->geometry();
    place.moveRight(qMin(place.right(), room.right()));
    place.moveBottom(qMin(place.bottom(), room.bottom()));
    place.moveLeft(qMax(place.left(), room.left()));
    place.moveTop(qMax(place.top(), room.top()));
    if (window->testAttribute(Qt::WA_Moved))
        window->move(place.topLeft());
}

} // namespace vlk
