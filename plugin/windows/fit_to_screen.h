#pragma once

// Windows on a small screen: they open within it, their contents scroll, and what stands outside the
// contents, the buttons at the bottom, stays in sight.
//
//     ContentArea with everything but the buttons, the buttons below it, and in the window's constructor
//     keepOnScreen(this);

#include <QScrollArea>

namespace vlk {

// Shrinks a window that is larger than its screen, the bars of the desktop and the window's frame counted,
// and moves one that stands beyond the edge. Others stay as they are.
void fitToScreen(QWidget* window);

// Does so whenever the window is shown, at the place where it was closed.
void keepOnScreen(QWidget* window);

// The least size of a window, in pixels of its screen, so that there is room where everything is larger. On a
// screen that is just as large as that, the window's frame and the bars of the desktop go off it. Such a
// window too opens where it was closed.
void keepLeastSize(QWidget* window, const QSize& pixels);

// Scrolls what is in it. The window never gets smaller than the contents need, unless the screen is: then
// there are scroll bars. Where the contents come to need more, the window grows as far as the screen has
// room.
class ContentArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit ContentArea(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void claimRoom();
};

} // namespace vlk
