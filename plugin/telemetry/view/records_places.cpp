#include "telemetry/view/records_places.h"

#include "telemetry/shown/records_memory.h"

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTabWidget>

#include <algorithm>
#include <numeric>

namespace vlk {

namespace {

constexpr double kCurvesShare = 0.52; // of the height
constexpr double kTableShare = 0.4;   // of the width
constexpr const char* kPlacesFile = "records-places.ini";

double keptShare(const char* name, double share)
{
    const QString file = recordsMemory(kPlacesFile);
    if (file.isEmpty() || !QFile::exists(file))
        return share;
    return std::clamp(QSettings(file, QSettings::IniFormat).value(QLatin1String(name), share).toDouble(), 0.0,
                      1.0);
}

} // namespace

RecordsPlaces::RecordsPlaces(QWidget* table, std::vector<RecordsPart> parts, QWidget* parent)
    : QSplitter(Qt::Vertical, parent), parts_(std::move(parts))
{
    setChildrenCollapsible(false);
    auto* below = new QSplitter(Qt::Horizontal);
    below->setChildrenCollapsible(false);
    below->addWidget(table);
    for (const RecordsPart& part : parts_) {
        if (!part.title) {
            addWidget(part.widget);
            continue;
        }
        if (!views_) {
            views_ = new QTabWidget;
            views_->setObjectName(QStringLiteral("tabWidget_Views"));
            below->addWidget(views_);
        }
        views_->addTab(part.widget, QString());
    }
    addWidget(below);
    if (count() > 1)
        divisions_.push_back({this, "curves", keptShare("curves", kCurvesShare)});
    if (views_)
        divisions_.push_back({below, "table", keptShare("table", kTableShare)});
    for (Division& division : divisions_)
        connect(division.splitter, &QSplitter::splitterMoved, this,
                [this, place = &division] { keep(place); });
    retranslate();
}

void RecordsPlaces::Division::apply() const
{
    constexpr int whole = 10'000;
    const int first = qRound(whole * share);
    splitter->setSizes({first, whole - first});
}

void RecordsPlaces::resizeEvent(QResizeEvent* event)
{
    QSplitter::resizeEvent(event);
    for (const Division& division : divisions_)
        division.apply();
}

void RecordsPlaces::keep(Division* division)
{
    const QList<int> sizes = division->splitter->sizes();
    const int room = std::accumulate(sizes.begin(), sizes.end(), 0);
    if (room == 0)
        return;
    division->share = static_cast<double>(sizes.front()) / room;
    if (const QString file = recordsMemory(kPlacesFile); !file.isEmpty())
        QSettings(file, QSettings::IniFormat).setValue(QLatin1String(division->name), division->share);
}

void RecordsPlaces::setName(const QString& name)
{
    for (const RecordsPart& part : parts_)
        part.setName(name);
}

void RecordsPlaces::turn(int step)
{
    views_->setCurrentIndex((views_->currentIndex() + step + views_->count()) % views_->count());
    views_->setFocus(Qt::ShortcutFocusReason);
}

bool RecordsPlaces::stepBack()
{
    return std::ranges::any_of(parts_,
                               [](const RecordsPart& part) { return part.stepBack && part.stepBack(); });
}

const char* RecordsPlaces::helpPage() const
{
    const QWidget* const focused = QApplication::focusWidget();
    // The tabs stand for the view that they show.
    const QWidget* const at =
        views_ && focused && focused->parentWidget() == views_ ? views_->currentWidget() : focused;
    const auto part = std::ranges::find_if(
        parts_, [at](const RecordsPart& each) { return each.widget == at || each.widget->isAncestorOf(at); });
    return part == parts_.end() ? kRecordsHelp : part->helpPage;
}

void RecordsPlaces::retranslate()
{
    for (const RecordsPart& part : parts_) {
        if (part.title)
            views_->setTabText(views_->indexOf(part.widget), tr(part.title));
        part.retranslate();
    }
}

} // namespace vlk
