#include "window/window_notice.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

namespace workbench {

namespace {

constexpr int kMargin = 6;
const QString kHits = QStringLiteral("listWidget_Found"); // below the field in which one looks for them
constexpr int kGoesOnMs = 5000; // between two keys of somebody who goes round the window

// Those of the window itself.
QList<QFrame*> barsIn(const QWidget* window)
{
    auto bars = window->findChildren<QFrame*>(QStringLiteral("noticeBar"));
    bars.erase(std::remove_if(bars.begin(), bars.end(),
                              [window](const QFrame* bar) { return bar->window() != window; }),
               bars.end());
    return bars;
}

} // namespace

WindowNotice::WindowNotice(QWidget* owner) : NoticeBar(owner, QStringLiteral("label_WindowNotice"))
{
    setObjectName(QStringLiteral("frame_WindowNotice"));
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFrameShape(QFrame::Box);
    setNewestFirst();
    keepToTwoLines();
    QCoreApplication::instance()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &WindowNotice::place);
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
    if (notice->mayClose)
        menu->addAction(tr("wrd_402"), this, &WindowNotice::closeShown);
    menu->setActiveAction(menu->actions().constFirst());
    menu->popup(geometry().bottomLeft());
}

void WindowNotice::say(int number, const std::function<Notice()>& notice)
{
    place();
    tell(number, notice);
    place();
}

bool WindowNotice::takesKey(const QWidget& widget, QKeyEvent& event)
{
    if (widget.window() != parentWidget() || !isVisible() || event.key() != Qt::Key_F6 ||
        event.modifiers() != Qt::NoModifier)
        return false;
    if (event.type() == QEvent::KeyPress) {
        offerByKeys();
        return true;
    }
    // What is accepted here is no shortcut of the window.
    const bool goesOn = round_.isValid() && !round_.hasExpired(kGoesOnMs);
    round_.start();
    event.setAccepted(!goesOn);
    return !goesOn;
}

// Keys of all that is in the window; for its place the window, and the bars in it.
bool WindowNotice::eventFilter(QObject* object, QEvent* event)
{
    if (NoticeBar::eventFilter(object, event))
        return true;
    const auto* widget = qobject_cast<QWidget*>(object);
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (widget && isKey)
        return takesKey(*widget, *static_cast<QKeyEvent*>(event));
    const bool isWatched =
        widget && (widget->objectName() == QLatin1String("noticeBar") || widget->objectName() == kHits);
    if (!widget || (widget != parentWidget() && !(isWatched && widget->window() == parentWidget())))
        return false;
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        place();
        break;
    case QEvent::DynamicPropertyChange:
        if (static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == kCount)
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

void WindowNotice::hideEvent(QHideEvent* event)
{
    NoticeBar::hideEvent(event);
    askForRoom(0);
}

void WindowNotice::place()
{
    QRect inside = parentWidget()->geometry().marginsRemoved({kMargin, kMargin, kMargin, kMargin});
    int covered = 0;
    int least = 0; // that covers them
    for (const QFrame* bar : barsIn(parentWidget())) {
        const bool keepsPlace = bar->sizePolicy().retainSizeWhenHidden();
        QRect place(bar->mapToGlobal(QPoint()), bar->size());
        if (bar->isVisible() || keepsPlace)
            inside = {place.topLeft(), QPoint(place.right(), inside.bottom())};
        if (bar->isVisible() && keepsPlace) {
            covered += bar->property(kCount).toInt();
            least = std::max(least, bar->property(kOwnHeight).toInt());
        } else if (bar->isVisible())
            inside.setTop(
                std::max(inside.top(), place.bottom() + 1 + kRoomMargin - bar->property(kRoomBelow).toInt()));
    }
    setBehind(covered);
    resize(inside.width(), std::max(heightForWidth(inside.width()), least));
    const QWidget* typed = parentWidget()->focusWidget();
    if (typed && typed->isVisible() && typed->testAttribute(Qt::WA_InputMethodEnabled)) {
        QRect field(typed->mapToGlobal(QPoint()), typed->size());
        // They are there only while the field has the focus.
        const auto* hits = parentWidget()->findChild<QWidget*>(kHits);
        if (hits && hits->isVisible())
            field |= {hits->mapToGlobal(QPoint()), hits->size()};
        if (field.intersects({inside.topLeft(), size()}))
            inside.setTop(field.bottom() + 1 + kMargin);
    }
    move(inside.topLeft());
    askForRoom(isHidden() ? 0 : height() + kRoomMargin);
}

void WindowNotice::askForRoom(int pixels)
{
    for (QFrame* bar : barsIn(parentWidget())) {
        if (bar->property(kRoomBelow).toInt() != pixels)
            bar->setProperty(kRoomBelow, pixels);
    }
}

} // namespace workbench
