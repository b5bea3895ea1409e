#include "dialog/advice_panel.h"

#include "dialog/setting_places.h"
#include "review/setting_words.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "typing/line_icon.h"
#include "typing/table_look.h"
#include "windows/named_widget.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kAdviceHeight = 200;
constexpr int kMarkRatio = 2;

Mark markOf(review::Severity severity)
{
    return severity == review::Severity::error ? Mark::invalid : Mark::advice;
}

} // namespace

AdvicePanel::AdvicePanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent)
    : QWidget(parent), review_(review), places_(places), title_(namedWidget<QLabel>("label_Advice", this)),
      table_(namedWidget<QTableView>("tableView_Advice", this)),
      goTo_(namedWidget<QPushButton>("pushButton_GoToAdvice", this)),
      mend_(namedWidget<QPushButton>("pushButton_Mend", this)),
      close_(namedWidget<QToolButton>("toolButton_CloseAdvice", this))
{
    setObjectName(QStringLiteral("widget_Advice"));
    table_->setModel(&model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    dressTable(table_, TableUse::read);
    table_->setIconSize({markSize, markSize});
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->installEventFilter(this);
    empty_ = new EmptyNote(table_);
    close_->setAutoRaise(true);
    close_->setIcon(lineIcon(LineIcon::cross));
    auto* head = new QHBoxLayout;
    head->setSpacing(8);
    for (QWidget* widget : QWidgetList{title_, goTo_, mend_})
        head->addWidget(widget);
    head->addStretch();
    head->addWidget(close_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    layout->addLayout(head);
    layout->addWidget(table_);
    setFixedHeight(kAdviceHeight);
    for (QPushButton* button : {goTo_, mend_})
        button->setAutoDefault(false);
    title_->setBuddy(table_);
    connect(&review_, &ConfigurationReview::changed, this, &AdvicePanel::refresh);
    connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this, &AdvicePanel::showState);
    connect(table_, &QTableView::doubleClicked, this, &AdvicePanel::goTo);
    connect(goTo_, &QPushButton::clicked, this, &AdvicePanel::goTo);
    connect(mend_, &QPushButton::clicked, this, &AdvicePanel::mend);
    connect(close_, &QToolButton::clicked, this, &AdvicePanel::closed);
    hide();
}

void AdvicePanel::retranslate()
{
    title_->setText(tr("rev_131"));
    goTo_->setText(tr("rev_136"));
    mend_->setText(tr("rev_132"));
    close_->setToolTip(tr("rev_116"));
    close_->setAccessibleName(tr("rev_116"));
    empty_->tell(tr("rev_133"));
    refresh();
}

bool AdvicePanel::isSerious() const
{
    return std::ranges::any_of(
        findings_, [](const review::Finding& finding) { return finding.severity != review::Severity::hint; });
}

// The worst first.
void AdvicePanel::refresh()
{
    const int line = table_->currentIndex().row();
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
            if (finding.severity != review::Severity::hint)
                page->setIcon(QIcon(markPixmap(markOf(finding.severity), palette(), markSize, kMarkRatio)));
            model_.appendRow({page, new QStandardItem(review::adviceText(finding))});
        }
        table_->resizeColumnsToContents();
        table_->setCurrentIndex(model_.index(std::min(std::max(line, 0), model_.rowCount() - 1), 0));
    }
    showState();
    Q_EMIT changed();
}

review::Hit AdvicePanel::placeOf(const review::Finding& finding) const
{
    return finding.paths.isEmpty() ? review::Hit() : review_.settingAt(finding.paths.first());
}

const review::Finding* AdvicePanel::current() const
{
    const auto line = static_cast<std::size_t>(table_->currentIndex().row());
    return line < findings_.size() ? &findings_[line] : nullptr;
}

void AdvicePanel::showState()
{
    const review::Finding* finding = current();
    goTo_->setEnabled(finding && placeOf(*finding).row >= 0);
    mend_->setEnabled(finding && !finding->mends.empty() && review_.canMend());
}

void AdvicePanel::open()
{
    show();
    refresh();
    table_->setFocus(Qt::ShortcutFocusReason);
}

void AdvicePanel::goTo()
{
    const review::Finding* finding = current();
    const review::Hit place = finding ? placeOf(*finding) : review::Hit();
    if (place.row >= 0)
        places_.goTo(place.table, place.row);
}

void AdvicePanel::mend()
{
    if (const review::Finding* finding = current())
        review_.mend(finding->mends, [] { return QCoreApplication::translate("vlk", "rev_134"); });
}

bool AdvicePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == table_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            goTo();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void AdvicePanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT closed();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace vlk
