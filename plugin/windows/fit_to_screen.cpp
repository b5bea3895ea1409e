#include "windows/fit_to_screen.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <optional>

namespace vlk {

namespace {

// Null as long as the window system has not told it.
QMargins knownFrame(const QWidget* window)
{
    return window->windowHandle() ? window->windowHandle()->frameMargins() : QMargins();
}

// The frame around a window; one with the style's title bar as long as it is not known.
QMargins frameOf(const QWidget* window)
{
    if (const QMargins known = knownFrame(window); !known.isNull())
        return known;
    const QStyle* style = window->style();
    const int edge = style->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, window);
    return {edge, style->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window), edge, edge};
}

QRect roomFor(const QWidget* window)
{
    return window->screen()->availableGeometry().marginsRemoved(frameOf(window));
}

// Where the window stood when it was closed, it opens again. Without being asked, the window system would
// find a new place each time.
class Place
{
public:
    void follow(QWidget* window, const QEvent* event)
    {
        if (event->spontaneous() || window->isMaximized() || window->isFullScreen())
            return;
        if (event->type() == QEvent::Hide)
            last_ = window->pos();
        else if (event->type() == QEvent::Show && last_)
            window->move(*last_);
    }

private:
    std::optional<QPoint> last_;
};

// The frame is known some time after the window has been shown, at the latest when it has become the active
// one.
class LeastSize : public QObject
{
public:
    LeastSize(QWidget* window, const QSize& pixels) : QObject(window), pixels_(pixels) {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        place_.follow(static_cast<QWidget*>(watched), event);
        const bool isShown = event->type() == QEvent::Show && !event->spontaneous();
        if (isShown || event->type() == QEvent::Move || event->type() == QEvent::WindowActivate)
            apply(static_cast<QWidget*>(watched));
        return QObject::eventFilter(watched, event);
    }

private:
    void apply(QWidget* window) const
    {
        const QScreen* screen = window->screen();
        QSize least = pixels_ / window->devicePixelRatioF();
        if (QRect(QPoint(), screen->size()).contains(QRect(QPoint(), least))) {
            least = least.boundedTo(screen->availableGeometry().marginsRemoved(knownFrame(window)).size());
        }
        if (least == window->minimumSize())
            return;
        window->setMinimumSize(least);
        fitToScreen(window);
    }

    QSize pixels_;
    Place place_;
};

class Keeper : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        place_.follow(static_cast<QWidget*>(watched), event);
        const bool isShown = event->type() == QEvent::Show && !event->spontaneous();
        const bool isFirstActive = event->type() == QEvent::WindowActivate && isJustShown_;
        if (isShown || isFirstActive) {
            isJustShown_ = isShown;
            fitToScreen(static_cast<QWidget*>(watched));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Place place_;
    bool isJustShown_ = false; // its frame is not known yet
};

} // namespace

void fitToScreen(QWidget* window)
{
    if (window->isMaximized() || window->isFullScreen())
        return;
    const QRect room = roomFor(window);
    if (const QSize size = window->size().boundedTo(room.size()); size != window->size())
        window->resize(size);
    // A place that nobody has chosen yet is left to the window system.
    QRect place = window->geometry();
    const bool hasPlace = window->isVisible() && !knownFrame(window).isNull();
    if ((hasPlace ? room : window->screen()->availableGeometry()).contains(place))
        return;
    place.moveBottomRight({std::min(place.right(), room.right()), std::min(place.bottom(), room.bottom())});
    place.moveTopLeft({std::max(place.left(), room.left()), std::max(place.top(), room.top())});
    window->setGeometry(place);
}

void keepOnScreen(QWidget* window)
{
    window->installEventFilter(new Keeper(window));
}

void keepLeastSize(QWidget* window, const QSize& pixels)
{
    window->installEventFilter(new LeastSize(window, pixels));
}

ContentArea::ContentArea(QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
}

bool ContentArea::event(QEvent* event)
{
    if (event->type() == QEvent::Show)
        claimRoom();
    return QScrollArea::event(event);
}

bool ContentArea::eventFilter(QObject* watched, QEvent* event)
{
    const bool isHandled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest && isVisible())
        claimRoom();
    return isHandled;
}

void ContentArea::claimRoom()
{
    if (!widget())
        return;
    const QSize others = window()->size() - size();
    const QSize needed = (widget()->minimumSizeHint() + others).expandedTo(window()->layout()->minimumSize());
    const QSize room = roomFor(window()).size();
    // A scroll bar takes room of its own, which must not call for the other one.
    const int bar = needed.height() > room.height() ? verticalScrollBar()->sizeHint().width() : 0;
    window()->setMinimumSize((needed + QSize(bar, 0)).boundedTo(room));
    fitToScreen(window());
}

} // namespace vlk
