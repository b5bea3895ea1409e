#include "window/window_notice.h"

#include <QEvent>

namespace vlk {

namespace {

constexpr int margin = 6;

} // namespace

WindowNotice::WindowNotice(QWidget* owner) : NoticeBar(owner, QStringLiteral("label_WindowNotice"))
{
    setObjectName(QStringLiteral("frame_WindowNotice"));
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFrameShape(QFrame::Box);
    owner->installEventFilter(this);
    connect(this, &NoticeBar::closed, this, [this] { isDismissed_ = true; });
}

void WindowNotice::say(const std::function<QString()>& sentence)
{
    if (!sentence)
        isDismissed_ = false;
    if (isDismissed_)
        return;
    place();
    tell(sentence);
    place();
}

bool WindowNotice::eventFilter(QObject* /*owner*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        place();
        break;
    case QEvent::Hide:
        // What is minimised takes it along by itself.
        if (!event->spontaneous())
            hide();
        break;
    default:
        break;
    }
    return false;
}

void WindowNotice::changeEvent(QEvent* event)
{
    NoticeBar::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        place();
    }
}

void WindowNotice::place()
{
    const QRect inside = parentWidget()->geometry().marginsRemoved({margin, margin, margin, margin});
    resize(inside.width(), heightForWidth(inside.width()));
    move(inside.topLeft());
}

} // namespace vlk
