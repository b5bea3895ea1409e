#include "dialog/advice_panel.h"

#include "dialog/setting_marks.h"
#include "dialog/setting_places.h"
#include "review/setting_parts.h"
#include "review/setting_words.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "windows/named_widget.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QTableView>

#include <algorithm>

namespace vlk {

AdvicePanel::AdvicePanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent)
    : ListPanel("Advice", parent), review_(review), places_(places),
      goTo_(namedWidget<QPushButton>("pushButton_GoToAdvice", this)),
      mend_(namedWidget<QPushButton>("pushButton_Mend", this))
{
    setModel(model_);
    table()->setSelectionMode(QAbstractItemView::SingleSelection);
    table()->setIconSize({kMarkSize, kMarkSize});
    table()->setWordWrap(true);
    addToHead({goTo_, mend_});
    connect(&review_, &ConfigurationReview::changed, this, &AdvicePanel::refresh);
    connect(table()->selectionModel(), &QItemSelectionModel::currentChanged, this, &AdvicePanel::showState);
    connect(goTo_, &QPushButton::clicked, this, [this] { take(table()->currentIndex().row()); });
    connect(mend_, &QPushButton::clicked, this, [this] { press(mend_, [this] { mend(); }); });
}

void AdvicePanel::retranslate()
{
    ListPanel::retranslate();
    setTitle(tr("rev_131"), table());
    goTo_->setText(tr("rev_136"));
    mend_->setText(tr("rev_132"));
    empty()->tell(tr("rev_133"));
    refresh();
}

std::optional<Mark> AdvicePanel::mark() const
{
    return findings_.empty() ? std::nullopt : markOf(findings_.front().severity);
}

void AdvicePanel::changeEvent(QEvent* event)
{
    ListPanel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refresh();
}

void AdvicePanel::fitTable()
{
    table()->resizeRowsToContents();
}

// The worst first.
void AdvicePanel::refresh()
{
    const int line = table()->currentIndex().row();
    findings_ = review_.advice();
    std::ranges::stable_sort(findings_, std::greater(), &review::Finding::severity);
    if (isVisible()) {
        model_.clear();
        model_.setHorizontalHeaderLabels({tr("rev_101"), tr("rev_131")});
        for (const review::Finding& finding : findings_) {
            const review::Hit place = placeOf(finding);
            const Values* values = review_.valuesOf(place.table);
            auto* page =
                new QStandardItem(values ? review::wordsOf(values->layout(), place.row).page : QString());
            if (const std::optional<Mark> mark = markOf(finding.severity))
                page->setIcon(markIcon(*mark, palette()));
            model_.appendRow({page, new QStandardItem(review::adviceText(finding))});
        }
        table()->resizeColumnToContents(0);
        fitTable();
        table()->setCurrentIndex(model_.index(std::min(std::max(line, 0), model_.rowCount() - 1), 0));
    }
    showState();
    Q_EMIT changed();
}

// Where a box is to be ticked there, else at the setting that the advice is about.
review::Hit AdvicePanel::placeOf(const review::Finding& finding) const
{
    for (const review::Mend& mend : finding.mends) {
        review::Hit box = review_.settingAt(mend.path);
        const Values* values = review_.valuesOf(box.table);
        if (!values || box.row < 0 || review::partCount(values->setting(box.row)) == 0)
            continue;
        const std::vector<int> parts =
            review::differingParts(values->setting(box.row), values->value(box.row), mend.value);
        box.part = parts.empty() ? -1 : parts.front();
        return box;
    }
    return finding.paths.isEmpty() ? review::Hit() : review_.settingAt(finding.paths.first());
}

const review::Finding* AdvicePanel::current() const
{
    const auto line = static_cast<std::size_t>(table()->currentIndex().row());
    return line < findings_.size() ? &findings_[line] : nullptr;
}

void AdvicePanel::showState()
{
    const review::Finding* finding = current();
    goTo_->setEnabled(finding && placeOf(*finding).row >= 0);
    const bool isKnown = finding && !finding->mends.empty();
    mend_->setEnabled(isKnown && review_.canMend());
    mend_->setToolTip(mend_->isEnabled() || !finding ? QString() : tr(isKnown ? "rev_253" : "rev_254"));
}

void AdvicePanel::take(int line)
{
    const auto at = static_cast<std::size_t>(line);
    const review::Hit place = at < findings_.size() ? placeOf(findings_[at]) : review::Hit();
    if (place.row >= 0)
        places_.goTo(place.table, place.row, place.part);
}

void AdvicePanel::mend()
{
    if (const review::Finding* finding = current())
        review_.mend(finding->mends, [] { return QCoreApplication::translate("vlk", "rev_134"); });
}

} // namespace vlk
