#include "windows/handle_ends.h"

#include "windows/vlk_dblslider2.h"

#include <QEvent>
#include <QPainter>

namespace vlk {

HandleEnds::HandleEnds(VLK_DblSlider2* slider) : QWidget(slider->parentWidget()), slider_(slider)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    stackUnder(slider);
    slider->installEventFilter(this);
    for (const auto changed : {&VLK_DblSlider2::value1Changed, &VLK_DblSlider2::value2Changed})
        connect(slider, changed, this, qOverload<>(&QWidget::update));
    follow();
}

void HandleEnds::follow()
{
    constexpr int room = VLK_DblSlider2::handleRoom;
    setGeometry(slider_->geometry().adjusted(-room, 0, room, 0));
}

bool HandleEnds::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        follow();
        break;
    case QEvent::EnabledChange:
        update();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void HandleEnds::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.translate(VLK_DblSlider2::handleRoom, 0);
    slider_->paintHandles(painter);
}

} // namespace vlk
