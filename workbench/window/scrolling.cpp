#include "window/scrolling.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWidget>

#include <algorithm>

namespace workbench {

namespace {

// What title bar and borders take, before there are any to be asked.
constexpr QSize kFrame(8, 36);

// As wide as its content, up to a part of the screen; beyond that it scrolls sideways too.
class ColumnArea : public QScrollArea
{
public:
    QSize minimumSizeHint() const override
    {
        const int content = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
        const QScreen* screen = this->screen();
        const int most = screen ? screen->availableSize().width() * 9 / 20 : content;
        return {std::min(content, most), QScrollArea::minimumSizeHint().height()};
    }
    QSize sizeHint() const override { return widget()->sizeHint().expandedTo(minimumSizeHint()); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        // In another language the content may need another width.
        if (object == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(object, event);
    }
};

} // namespace

QScrollArea* scrolling(QWidget* widget)
{
    auto* area = new ColumnArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(widget);
    return area;
}

QSize within(QSize wanted, QSize room)
{
    return wanted.boundedTo(room - kFrame);
}

void resizeWithin(QWidget* window, QSize wanted)
{
    const QScreen* screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    window->resize(within(wanted, screen->availableGeometry().size()));
    if (window->testAttribute(Qt::WA_Moved))
        moveWithin(window, window->pos());
}

void moveWithin(QWidget* window, QPoint place)
{
    const QScreen* screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect room = screen->availableGeometry();
    const QPoint last = room.bottomRight() + QPoint(1, 1) -
                        QPoint(window->width() + kFrame.width(), window->height() + kFrame.height());
    window->move(std::max(room.left(), std::min(place.x(), last.x())),
                 std::max(room.top(), std::min(place.y(), last.y())));
}

} // namespace workbench
