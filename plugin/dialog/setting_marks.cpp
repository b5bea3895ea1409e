#include "dialog/setting_marks.h"

#include "dialog/mark_text.h"
#include "dialog/setting_menu.h"
#include "dialog/setting_places.h"
#include "review/setting_parts.h"
#include "typing/field_mark.h"
#include "windows/cell_marks.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace vlk {

using review::FileKeys;

namespace {

// What a click on the widget comes to.
QObject* clickedOf(QWidget* widget)
{
    auto* tree = qobject_cast<QTreeWidget*>(widget);
    return tree ? static_cast<QObject*>(tree->viewport()) : widget;
}

} // namespace

std::optional<Mark> markOf(review::Severity severity)
{
    switch (severity) {
    case review::Severity::Error:
        return Mark::Invalid;
    case review::Severity::Warning:
        return Mark::Advice;
    case review::Severity::Hint:
        break;
    }
    return {};
}

SettingMarks::SettingMarks(ConfigurationReview& review, std::function<PageSettings*()> pageOnShow,
                           QWidget* window)
    : QObject(window), review_(review), pageOnShow_(std::move(pageOnShow))
{
    window->installEventFilter(this);
    connect(&review_, &ConfigurationReview::changed, this, [this] {
        markTabs();
        refresh();
    });
}

SettingMarks::~SettingMarks() = default;

void SettingMarks::retranslate()
{
    tabs_.clear();
    for (auto& [settings, page] : pages_)
        page.isKnown = false;
    markTabs();
    refresh();
}

int SettingMarks::rowOn(const PageSettings& page, const review::Hit& setting) const
{
    if (setting.row < 0)
        return -1;
    const Values& values = page.values();
    const int table = FileKeys::all().tableOf(values.table());
    if (table >= 0)
        return table == setting.table ? setting.row : -1;
    const QString& path = FileKeys::all().layout(setting.table).rows[setting.row].filePath;
    for (int row = 0; row < values.count(); ++row) {
        if (values.row(row).filePath == path)
            return row;
    }
    return -1;
}

bool SettingMarks::learn(PageSettings& settings)
{
    const auto [place, isNew] = pages_.try_emplace(&settings);
    Page& page = place->second;
    if (page.isKnown)
        return false;
    Binder& binder = settings.binder();
    if (isNew)
        connect(&binder, &Binder::joined, this, [&page] { page.isKnown = false; });
    page.isKnown = true;
    page.marked.clear();
    page.spots.clear();
    for (int row = 0; row < settings.values().count(); ++row) {
        const bool isWhole = review::partCount(settings.values().setting(row)) == 0;
        for (const Binder::Place& place : binder.placesOf(row)) {
            if (!isWhole && place.part < 0)
                continue;
            const Spot spot(row, place.part);
            page.marked.try_emplace(spot, place.widget);
            for (QObject* clicked :
                 {clickedOf(place.widget), static_cast<QObject*>(binder.forms().labelOf(place.widget))}) {
                if (!clicked)
                    continue;
                page.spots[clicked] << spot;
                clicked->installEventFilter(this);
            }
        }
    }
    return true;
}

SettingMarks::Spots SettingMarks::spotsOf(const PageSettings& page) const
{
    Spots spots;
    const review::Differences& edits = review_.edits();
    for (int row = 0; row < page.values().count(); ++row) {
        for (const int key : ConfigurationReview::keysOf(page, row)) {
            if (!review_.isOwn(key))
                continue;
            const QString& before = edits.before().at(key).meaning;
            for (const int part :
                 review::differingParts(page.values().setting(row), before, edits.after().at(key).meaning)) {
                Told& told = spots[{row, part}];
                told.isChanged = true;
                told.before = before;
                told.mover = moverText(review_, page, row);
            }
            break;
        }
        if (const QString before = choiceBefore(review_, page, row); !before.isNull()) {
            Told& told = spots[{row, -1}];
            told.isChanged = true;
            told.before = before;
        }
    }
    addAdvice(page, &spots);
    return spots;
}

void SettingMarks::addAdvice(const PageSettings& page, Spots* spots) const
{
    for (const review::Finding& finding : review_.advice()) {
        const std::optional<Mark> mark = markOf(finding.severity);
        if (!mark)
            continue;
        const auto add = [&](Spot spot) {
            Told& told = (*spots)[spot];
            told.severity = std::max(told.severity, *mark);
            told.advice << review::adviceText(finding);
        };
        const Values& values = page.values();
        for (const QString& path : finding.paths) {
            const int row = rowOn(page, review_.settingAt(path));
            if (row >= 0 && review::partCount(values.setting(row)) == 0)
                add({row, -1});
        }
        for (const auto& [path, part] : finding.parts) {
            if (const int row = rowOn(page, review_.settingAt(path)); row >= 0)
                add({row, part});
        }
        // Marks those parts of a setting of many that a mend would change.
        for (const review::Mend& mend : finding.mends) {
            const int row = rowOn(page, review_.settingAt(mend.path));
            if (row < 0 || review::partCount(values.setting(row)) == 0)
                continue;
            for (const int part : review::differingParts(values.setting(row), values.value(row), mend.value))
                add({row, part});
        }
    }
}

void SettingMarks::refresh()
{
    PageSettings* settings = pageOnShow_();
    if (!settings)
        return;
    const bool isNew = learn(*settings);
    const bool wasOnShow = std::exchange(onShow_, settings) == settings && !isNew;
    Page& page = pages_[settings];
    const Spots before = std::exchange(page.told, spotsOf(*settings));
    QVector<QWidget*> stale;
    const auto compare = [&](const Spots& spots, const Spots& others) {
        for (const auto& [spot, told] : spots) {
            const auto other = others.find(spot);
            const auto marked = page.marked.find(spot);
            if (marked == page.marked.end() || !marked->second || stale.contains(marked->second))
                continue;
            if (isNew || other == others.end() || !(other->second == told))
                stale << marked->second;
        }
    };
    compare(before, page.told);
    compare(page.told, before);
    for (QWidget* widget : stale)
        mark(*settings, widget);
    if (wasOnShow)
        pointAtMoved(page, before);
}

// Whoever edits one of several values looks at that one.
void SettingMarks::pointAtMoved(const Page& page, const Spots& before)
{
    for (const auto& [spot, told] : page.told) {
        const auto earlier = before.find(spot);
        const QString& mover = earlier == before.end() ? QString() : earlier->second.mover;
        const auto marked = page.marked.find(spot);
        if (!told.mover.isEmpty() && told.mover != mover && marked != page.marked.end() && marked->second)
            SettingPlaces::pointAt(marked->second);
    }
}

void SettingMarks::markCell(const PageSettings& settings, QTreeWidget* tree, const Spot& spot,
                            const Told& told)
{
    std::optional<Mark> worst;
    QStringList texts;
    if (told.isChanged) {
        worst = Mark::Changed;
        texts << changeText(review_, settings, spot.first, spot.second);
    }
    if (!told.advice.isEmpty()) {
        worst = std::max(worst, std::optional(told.severity));
        texts << told.advice;
    }
    const Shown& shown = *settings.values().setting(spot.first).shown();
    CellMarks::of(tree).set(shown.numbers.outer - 1, shown.column, worst, texts.join(QLatin1Char('\n')));
}

void SettingMarks::mark(const PageSettings& settings, QWidget* widget)
{
    const Page& page = pages_[&settings];
    auto* tree = qobject_cast<QTreeWidget*>(widget);
    QStringList changes;
    QStringList advice;
    Mark severity = Mark::Advice;
    for (const Spot& spot : page.spots.value(clickedOf(widget))) {
        const auto told = page.told.find(spot);
        const bool isTold = told != page.told.end() && page.marked.at(spot) == widget;
        if (tree) {
            markCell(settings, tree, spot, isTold ? told->second : Told{});
            continue;
        }
        if (!isTold)
            continue;
        if (told->second.isChanged) {
            changes << changeText(review_, settings, spot.first, spot.second);
            if (!told->second.mover.isEmpty())
                changes << told->second.mover;
        }
        severity = std::max(severity, told->second.severity);
        advice << told->second.advice;
    }
    if (tree)
        return;
    markField(widget, MarkReason::Changed, Mark::Changed, changes.join(QLatin1Char('\n')));
    markField(widget, MarkReason::Advice, severity, advice.join(QLatin1Char('\n')));
}

void SettingMarks::markTabs()
{
    for (int table = 0; table < FileKeys::all().tables(); ++table) {
        const PageSettings* page = review_.pageOf(table);
        if (!page)
            continue;
        int advice = 0;
        std::optional<Mark> worst;
        for (const review::Finding& finding : review_.advice()) {
            const std::optional<Mark> mark = markOf(finding.severity);
            const bool isHere = mark && std::ranges::any_of(finding.paths, [&](const QString& path) {
                                    return review_.settingAt(path).table == table;
                                });
            if (!isHere)
                continue;
            ++advice;
            worst = std::max(worst, mark);
        }
        QStringList told;
        const auto changed = std::ranges::count_if(review_.edits().ownKeys(table),
                                                   [this](int key) { return review_.isOwn(key); });
        if (changed > 0) {
            told << withColon("rev_161", QLocale().toString(static_cast<int>(changed)));
            worst = worst ? worst : Mark::Changed;
        }
        if (advice > 0)
            told << withColon("rev_131", QLocale().toString(advice));
        const QString text = told.join(QLatin1Char('\n'));
        const auto known = tabs_.find(page->tabIndex());
        if (known != tabs_.end() && known->second == std::pair(worst, text))
            continue;
        tabs_[page->tabIndex()] = std::pair(worst, text);
        Q_EMIT tabMarked(page->tabIndex(), worst, text);
    }
}

bool SettingMarks::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::PaletteChange:
        if (watched == parent()) {
            tabs_.clear();
            markTabs();
        }
        return false;
    case QEvent::MouseButtonPress:
        // Keeps the page from opening its own menu, too.
        return watched != parent() && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
    case QEvent::ContextMenu:
        return watched != parent() && openMenu(watched, static_cast<QContextMenuEvent*>(event));
    default:
        return false;
    }
}

bool SettingMarks::openMenu(QObject* clicked, QContextMenuEvent* event)
{
    PageSettings* page = pageOnShow_();
    if (!page)
        return false;
    const auto* tree = qobject_cast<QTreeWidget*>(clicked->parent());
    const QModelIndex cell = tree ? tree->indexAt(event->pos()) : QModelIndex();
    const QVector<Spot> spots = pages_[page].spots.value(clicked);
    const auto spot = std::ranges::find_if(spots, [&](const Spot& one) {
        const Shown* shown = page->values().setting(one.first).shown();
        return !tree || (cell.row() == shown->numbers.outer - 1 && cell.column() == shown->column);
    });
    if (spot == spots.end())
        return false;
    openSettingMenu({review_, *page, spot->first, spot->second}, clicked, event);
    return true;
}

} // namespace vlk
