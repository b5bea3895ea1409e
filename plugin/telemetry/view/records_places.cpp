#include "telemetry/view/records_places.h"

#include <QTabWidget>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kTableShare = 3; // of the width, against that of the views
constexpr int kViewsShare = 2;

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
            below->setStretchFactor(0, kTableShare);
            below->setStretchFactor(1, kViewsShare);
        }
        views_->addTab(part.widget, QString());
    }
    addWidget(below);
    retranslate();
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

void RecordsPlaces::retranslate()
{
    for (const RecordsPart& part : parts_) {
        if (part.title)
            views_->setTabText(views_->indexOf(part.widget), tr(part.title));
        part.retranslate();
    }
}

} // namespace vlk
