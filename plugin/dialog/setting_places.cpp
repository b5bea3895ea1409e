#include "dialog/setting_places.h"

#include "review/file_keys.h"

#include <QCoreApplication>
#include <QFrame>
#include <QScrollArea>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>

namespace vlk {

namespace {

constexpr int kOutlineMs = 1500;
// Parts of what is in sight of a page that stay free above and below a setting.
constexpr int kMiddle = 2;
constexpr int kEdge = 8;

void showTabs(QWidget* widget)
{
    for (QWidget* inner = widget; inner; inner = inner->parentWidget()) {
        // Between a tab's page and its widget stands a stack.
        QWidget* stack = inner->parentWidget();
        if (auto* tabs = stack ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr)
            tabs->setCurrentWidget(inner);
    }
}

void scrollTo(QWidget* widget, int part)
{
    for (QWidget* outer = widget->parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(outer))
            area->ensureWidgetVisible(widget, 0, area->viewport()->height() / part);
    }
}

// Takes the focus from where a setting is looked for, and says why it has none.
void explain(QWidget* closed)
{
    for (QWidget* outer = closed->parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(outer)) {
            area->setFocus(Qt::ShortcutFocusReason);
            break;
        }
    }
    QToolTip::showText(closed->mapToGlobal(QPoint(0, closed->height())), closed->toolTip(), closed);
}

void outline(QWidget* widget)
{
    auto* frame = new QFrame(widget->parentWidget());
    frame->setObjectName(QStringLiteral("frame_Found"));
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    frame->setFrameShape(QFrame::Box);
    frame->setLineWidth(2);
    QPalette palette = frame->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Highlight));
    frame->setPalette(palette);
    frame->setGeometry(widget->geometry().adjusted(-3, -3, 3, 3));
    frame->show();
    frame->raise();
    QTimer::singleShot(kOutlineMs, frame, &QObject::deleteLater);
}

} // namespace

void SettingPlaces::keepInSight(QWidget* widget)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    scrollTo(widget, kEdge);
}

SettingPlaces::SettingPlaces(std::function<std::vector<PageSettings*>()> pages, QObject* parent)
    : QObject(parent), pages_(std::move(pages))
{
}

QWidget* SettingPlaces::widgetOf(int table, int row, int part) const
{
    const review::FileKeys& keys = review::FileKeys::all();
    for (PageSettings* page : pages_()) {
        const int own = keys.tableOf(page->values().table());
        if (own == table)
            return page->binder().widgetOf(row, part);
        if (own >= 0)
            continue;
        // The quick window has some of the keys, in a table of its own.
        const int key = keys.of(table, row);
        for (int quick = 0; key >= 0 && quick < page->values().count(); ++quick) {
            if (page->values().row(quick).filePath == keys[key].path)
                return page->binder().widgetOf(quick, part);
        }
    }
    return nullptr;
}

void SettingPlaces::goTo(int table, int row, int part)
{
    QWidget* widget = widgetOf(table, row, part);
    if (!widget) {
        for (PageSettings* page : pages_()) {
            if (review::FileKeys::all().tableOf(page->values().table()) == table)
                showTabs(page->binder().forms().first());
        }
        return;
    }
    showTabs(widget);
    scrollTo(widget, kMiddle);
    widget->setFocus(Qt::ShortcutFocusReason);
    // A page that is shown for the first time gets its layout behind this.
    QTimer::singleShot(0, widget, [widget] {
        if (!widget->isVisible())
            return;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        scrollTo(widget, kMiddle);
        outline(widget);
        if (!widget->isEnabled())
            explain(widget);
    });
}

} // namespace vlk
