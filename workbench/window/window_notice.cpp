#include "window/window_notice.h"

#include <QEvent>
#include <QMenu>
#include <QShortcut>

namespace workbench {

namespace {

constexpr int margin = 6;

} // namespace

WindowNotice::WindowNotice(QWidget* owner, std::set<int> dismissed)
    : NoticeBar(owner, QStringLiteral("label_WindowNotice")), dismissed_(std::move(dismissed))
{
    setObjectName(QStringLiteral("frame_WindowNotice"));
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFrameShape(QFrame::Box);
    setNewestFirst();
    owner->installEventFilter(this);
    keys_ = new QShortcut(Qt::Key_F6, owner);
    connect(keys_, &QShortcut::activated, this, &WindowNotice::offerByKeys);
    connect(keys_, &QShortcut::activatedAmbiguously, this, &WindowNotice::offerByKeys);
    connect(this, &NoticeBar::closed, this, [this](int number) { dismissed_.insert(number); });
}

WindowNotice::~WindowNotice()
{
    delete keys_;
}

void WindowNotice::offerByKeys()
{
    const Notice* notice = shown();
    if (!notice || !isVisible())
        return;
    auto* menu = new QMenu(parentWidget());
    menu->setObjectName(QStringLiteral("menu_WindowNotice"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Notice::Action& action : notice->actions)
        menu->addAction(action.text, this, action.act);
    menu->addAction(tr("wrd_402"), this, &WindowNotice::closeShown);
    menu->setActiveAction(menu->actions().constFirst());
    menu->popup(geometry().bottomLeft());
}

void WindowNotice::say(int number, const std::function<Notice()>& notice)
{
    if (!notice) {
        dismissed_.erase(number);
        end(number);
    }
    if (!notice || dismissed_.count(number) != 0)
        return;
    place();
    tell(number, notice);
    place();
}

// Of the window, and of the bars in it.
bool WindowNotice::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        place();
        break;
    case QEvent::Hide:
        // What is minimised takes it along by itself.
        if (object == parentWidget() && !event->spontaneous())
            hide();
        place();
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
    QRect inside = parentWidget()->geometry().marginsRemoved({margin, margin, margin, margin});
    for (QFrame* bar : parentWidget()->findChildren<QFrame*>(QStringLiteral("noticeBar"))) {
        bar->installEventFilter(this);
        if (bar->isVisible() && bar->window() == parentWidget())
            inside.setTop(qMax(inside.top(), bar->mapToGlobal(QPoint(0, bar->height())).y() + margin));
    }
    resize(inside.width(), heightForWidth(inside.width()));
    move(inside.topLeft());
}

} // namespace workbench
