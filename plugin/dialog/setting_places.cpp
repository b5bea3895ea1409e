#include "dialog/setting_places.h"

#include "review/file_keys.h"
#include "review/needed_setting.h"
#include "review/setting_parts.h"
#include "windows/way_to.h"

#include <QApplication>
#include <QFrame>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kOutlineMs = 1500;
constexpr char kOutlineName[] = "frame_Found";
// Parts of what is in sight of a page that stay free above and below a setting.
constexpr int kMiddle = 2;
constexpr int kRoomAtEdge = 8;

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

// Takes the focus from where a setting is looked for.
void leave(QWidget* closed)
{
    for (QWidget* outer = closed->parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(outer))
            return area->setFocus(Qt::ShortcutFocusReason);
    }
}

void tellBelow(QWidget* widget, const QString& text)
{
    QToolTip::showText(widget->mapToGlobal(QPoint(0, widget->height())), text, widget);
}

// Where the eyes are: below the field in which it was looked for, else in the middle of the form.
void tellWhereLookedFor(QWidget* form, const QString& text)
{
    if (QWidget* typed = qobject_cast<QLineEdit*>(QApplication::focusWidget()))
        tellBelow(typed, text);
    else if (form)
        QToolTip::showText(form->mapToGlobal(form->rect().center()), text, form);
}

// The row that a form shows for a key of the file: its own, or the choice that sets it, alone or along with
// others. -1 for none.
int shownRowOf(const Values& values, const QString& path)
{
    const int row = values.layout().rowAt(path);
    if (row < 0)
        return row;
    const int holder = values.holder(row);
    if (review::canBeShown(values.setting(holder)))
        return holder;
    for (const Sets& rule : values.table().all<Sets>()) {
        if (rule.moment == Moment::Always && rule.path.row == holder && rule.when.row >= 0 &&
            review::canBeShown(values.setting(rule.when.row)))
            return rule.when.row;
    }
    for (const Presets& presets : values.table().all<Presets>()) {
        const auto isIt = [&](const Path& field) { return field.row == holder; };
        if (std::ranges::any_of(presets.fields, isIt) &&
            review::canBeShown(values.setting(presets.trigger.row)))
            return presets.trigger.row;
    }
    return -1;
}

constexpr int kMostNeeded = 4; // that wait for each other

QString sentenceOf(const char* key)
{
    return QCoreApplication::translate("vlk", key);
}

// Also where its widget stands in a part of the form that is hidden as a whole.
std::optional<review::Needed> neededToShow(PageSettings& page, int row)
{
    if (auto needed = review::neededToShow(page.values(), row))
        return needed;
    const QWidget* widget = page.binder().widgetOf(row);
    const When* unmet = widget ? page.binder().hiddenBy(widget) : nullptr;
    return unmet ? std::optional(review::neededFor(page.values(), *unmet)) : std::nullopt;
}

// Makes the cell of a list that shows the setting the current one; null where it stands in none.
QTreeWidget* chooseCell(QWidget* widget, const Setting& setting)
{
    auto* tree = qobject_cast<QTreeWidget*>(widget);
    const Shown* shown = setting.shown();
    if (!tree || !shown || shown->column <= 0)
        return nullptr;
    QTreeWidgetItem* line = tree->topLevelItem(shown->numbers.outer - 1);
    tree->setCurrentItem(line, shown->column);
    tree->scrollToItem(line);
    return tree;
}

void outline(QWidget* parent, const QRect& place)
{
    constexpr int margin = 3;
    const QRect around = place.adjusted(-margin, -margin, margin, margin);
    for (QFrame* earlier :
         parent->findChildren<QFrame*>(QLatin1String(kOutlineName), Qt::FindDirectChildrenOnly)) {
        if (earlier->geometry() == around)
            delete earlier;
    }
    auto* frame = new QFrame(parent);
    frame->setObjectName(QLatin1String(kOutlineName));
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    frame->setFrameShape(QFrame::Box);
    frame->setLineWidth(2);
    QPalette palette = frame->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Active, QPalette::Highlight));
    frame->setPalette(palette);
    frame->setGeometry(around);
    frame->show();
    frame->raise();
    QTimer::singleShot(kOutlineMs, frame, &QObject::deleteLater);
}

} // namespace

void SettingPlaces::pointAt(QWidget* widget)
{
    if (!widget->isVisible())
        return;
    outline(widget->parentWidget(), widget->geometry());
    // The tip comes up beside the widget: below may stand the field that is being edited.
    constexpr int ownDrop = 16; // of a tip, below where it is asked for
    if (QApplication::mouseButtons() == Qt::NoButton)
        QToolTip::showText(widget->mapToGlobal({widget->width(), -ownDrop}), widget->toolTip(), widget);
}

void SettingPlaces::keepInSight(QWidget* widget)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    scrollTo(widget, kRoomAtEdge);
}

SettingPlaces::SettingPlaces(std::function<std::vector<PageSettings*>()> pages, QObject* parent)
    : QObject(parent), pages_(std::move(pages))
{
}

PageSettings* SettingPlaces::pageOf(int table) const
{
    const std::vector<PageSettings*> pages = pages_();
    const auto found = std::ranges::find_if(pages, [table](const PageSettings* page) {
        return review::FileKeys::all().tableOf(page->values().table()) == table;
    });
    return found == pages.end() ? nullptr : *found;
}

// The quick window has some of the keys, in a table of its own, and sets others that it does not show.
std::pair<PageSettings*, int> SettingPlaces::placeOf(int table, int row) const
{
    const review::FileKeys& keys = review::FileKeys::all();
    if (PageSettings* page = pageOf(table))
        return {page, row};
    std::vector<int> held = table < 0 ? std::vector<int>() : keys.heldBy(table, row);
    if (held.empty() && table >= 0 && keys.of(table, row) >= 0)
        held.push_back(keys.of(table, row));
    for (PageSettings* page : pages_()) {
        if (keys.tableOf(page->values().table()) >= 0)
            continue;
        for (const int key : held) {
            if (const int quick = shownRowOf(page->values(), keys[key].path); quick >= 0)
                return {page, quick};
        }
    }
    return {};
}

review::Hit SettingPlaces::onShow(const review::Hit& hit) const
{
    const auto [page, own] = placeOf(hit.table, hit.row);
    if (!page || pageOf(hit.table) == page)
        return hit;
    return {.table = review::FileKeys::all().tableOf(page->values().table()), .row = own};
}

QWidget* SettingPlaces::widgetOf(int table, int row, int part) const
{
    const auto [page, own] = placeOf(table, row);
    return page ? page->binder().widgetOf(own, part) : nullptr;
}

QString SettingPlaces::whyHidden(int table, int row) const
{
    const auto [page, own] = placeOf(table, row);
    if (!page)
        return sentenceOf("rev_259");
    const auto needed = neededToShow(*page, own);
    return needed ? needed->text : QString();
}

bool SettingPlaces::isShownNowhere(int table, int row, int part) const
{
    const QWidget* widget = widgetOf(table, row, part);
    return widget && widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide) &&
           whyHidden(table, row).isEmpty();
}

void SettingPlaces::goTo(int table, int row, int part)
{
    auto [page, own] = placeOf(table, row);
    if (!page && table < 0)
        return; // of the quick window, which has gone
    if (!page) {
        const std::vector<PageSettings*> pages = pages_();
        QWidget* form = pages.empty() ? nullptr : pages.front()->binder().forms().first();
        return tellWhereLookedFor(form, sentenceOf("rev_259"));
    }
    if (isShownNowhere(table, row, part)) {
        QWidget* form = page->binder().forms().first();
        showTabs(form);
        return tellWhereLookedFor(form, sentenceOf("rev_331"));
    }
    QString told;
    for (int step = 0; step < kMostNeeded; ++step) {
        const auto needed = neededToShow(*page, own);
        if (!needed)
            break;
        told = sentenceOf("rev_258").arg(needed->text);
        own = needed->row;
        part = -1;
    }
    QWidget* widget = page->binder().widgetOf(own, part);
    if (!widget)
        return showTabs(page->binder().forms().first());
    showTabs(widget);
    goWaysTo(widget);
    if (QPushButton* opener = openerOf(widget); opener && !widget->window()->isVisible())
        widget = opener;
    scrollTo(widget, kMiddle);
    widget->setFocus(Qt::ShortcutFocusReason);
    // A page that is shown for the first time gets its layout behind this.
    QTimer::singleShot(0, widget, [widget, told, own = own, binder = QPointer(&page->binder())] {
        if (!widget->isVisible() || !binder)
            return;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        scrollTo(widget, kMiddle);
        if (const QTreeWidget* list = chooseCell(widget, binder->values().setting(own)))
            outline(list->viewport(), list->visualRect(list->currentIndex()));
        else
            outline(widget->parentWidget(), widget->geometry());
        if (!widget->isEnabled())
            leave(widget);
        const auto* line = qobject_cast<const QLineEdit*>(widget);
        const QString text = !told.isEmpty()              ? told
                             : !widget->isEnabled()       ? binder->whyDisabled(widget)
                             : line && line->isReadOnly() ? sentenceOf("rev_347")
                                                          : QString();
        if (!text.isEmpty())
            tellBelow(widget, text);
    });
}

} // namespace vlk
