#include "dialog/review_panel.h"

#include "dialog/file_names.h"
#include "dialog/preset_saving.h"
#include "dialog/setting_places.h"
#include "fuel/question.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "typing/table_look.h"
#include "windows/eliding_combobox.h"
#include "windows/named_widget.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QTableView>

#include <algorithm>
#include <numeric>

namespace vlk {

using Against = ConfigurationReview::Against;

namespace {

// The least that columns are cut to, one after the other, where the window is small: long values and names,
// then values before names. The tool tip tells what is cut.
constexpr std::pair<int, int> kNarrowest[] = {{DifferenceModel::Before, 180},  {DifferenceModel::Now, 180},
                                              {DifferenceModel::Caption, 300}, {DifferenceModel::Before, 140},
                                              {DifferenceModel::Now, 140},     {DifferenceModel::Note, 260},
                                              {DifferenceModel::Caption, 230}, {DifferenceModel::Before, 110},
                                              {DifferenceModel::Now, 110},     {DifferenceModel::Page, 90}};

// By Against.
constexpr const char* kSides[] = {"rev_109", "rev_110", "rev_111", "rev_193"};
constexpr const char* kQuestions[] = {nullptr, nullptr, "rev_270", "rev_271"}; // for its file
constexpr const char* kFilters[] = {nullptr, nullptr, "rev_118", "rev_205"};
constexpr const char* kVerbs[] = {"rev_112", "rev_113", "rev_113", "rev_197"};
constexpr const char* kSteps[] = {"rev_120", "rev_121", "rev_121", "rev_196"};

} // namespace

ReviewPanel::ReviewPanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent)
    : ListPanel("Differences", parent), review_(review), places_(places), model_(review),
      against_(namedWidget<ElidingComboBox>("comboBox_Against", this)),
      takeOver_(namedWidget<QPushButton>("pushButton_TakeOver", this)),
      preset_(namedWidget<QPushButton>("pushButton_SavePreset", this)),
      copy_(namedWidget<QPushButton>("pushButton_CopyDifferences", this)),
      csv_(namedWidget<QPushButton>("pushButton_SaveDifferences", this)),
      all_(namedWidget<QAction>("action_MarkAll", this)),
      none_(namedWidget<QAction>("action_MarkNone", this)),
      summary_(namedWidget<QLabel>("label_UneditedSummary", this))
{
    setModel(model_);
    table()->setIconSize({kMarkSize, kMarkSize});
    elideInTheMiddle(table(), DifferenceModel::Caption);
    for (const char* key : kSides)
        against_->addItem(QLatin1String(key));
    for (const auto& [action, isChosen] : {std::pair(all_, true), std::pair(none_, false)}) {
        table()->addAction(action);
        connect(action, &QAction::triggered, this, [this, isChosen = isChosen] { chooseAll(isChosen); });
    }
    table()->setContextMenuPolicy(Qt::ActionsContextMenu);
    addToHead({against_, takeOver_, preset_, copy_, csv_});
    summary_->setWordWrap(true);
    static_cast<QBoxLayout*>(layout())->insertWidget(1, summary_);
    connect(&review_, &ConfigurationReview::changed, this, [this] {
        if (isVisible())
            refresh();
    });
    connect(&model_, &QAbstractItemModel::modelReset, this, &ReviewPanel::showState);
    connect(&model_, &QAbstractItemModel::dataChanged, this, &ReviewPanel::showState);
    connect(against_, QOverload<int>::of(&QComboBox::activated), this, &ReviewPanel::chooseAgainst);
    connect(takeOver_, &QPushButton::clicked, this, [this] { press(takeOver_, [this] { takeOver(); }); });
    connect(preset_, &QPushButton::clicked, this, &ReviewPanel::saveAsPreset);
    connect(copy_, &QPushButton::clicked, this, &ReviewPanel::copy);
    connect(csv_, &QPushButton::clicked, this, &ReviewPanel::saveCsv);
}

void ReviewPanel::retranslate()
{
    ListPanel::retranslate();
    setTitle(tr("rev_108"), against_);
    int side = 0;
    for (const char* key : kSides)
        against_->setItemText(side++, tr(key));
    preset_->setText(tr("rev_194"));
    preset_->setToolTip(tr("rev_195"));
    all_->setText(tr("rev_248"));
    none_->setText(tr("rev_249"));
    copy_->setText(tr("rev_114"));
    copy_->setToolTip(tr("rev_343"));
    csv_->setText(QStringLiteral("CSV…"));
    csv_->setToolTip(tr("rev_115"));
    if (isVisible())
        refresh();
    showState();
}

void ReviewPanel::showState()
{
    const int against = static_cast<int>(review_.against());
    const QString other = review_.otherName();
    against_->setItemText(static_cast<int>(Against::File), tr(review_.isWritten() ? "rev_255" : kSides[0]));
    against_->setItemText(static_cast<int>(Against::OtherFile), other.isEmpty() ? tr("rev_111") : other);
    against_->setCurrentIndex(against);
    against_->setToolTip(review_.fileName());
    QStringList sides;
    for (int side = 0; side < against_->count(); ++side)
        sides << against_->itemText(side);
    against_->reserve(sides, sides[0]);
    takeOver_->setText(tr(kVerbs[against]));
    for (QPushButton* button : {takeOver_, preset_})
        button->setEnabled(!model_.chosenKeys().empty());
    for (QAction* action : {all_, none_})
        action->setEnabled(model_.rowCount() > 0);
    for (QPushButton* button : {copy_, csv_})
        button->setEnabled(model_.rowCount() > 0);
    empty()->tell(tr("rev_117"));
    const QString summary = model_.summary();
    summary_->setText(summary);
    summary_->setVisible(!summary.isEmpty());
    table()->clearSpans();
    for (int line = 0; line < model_.rowCount(); ++line) {
        if (model_.isHead(line))
            table()->setSpan(line, DifferenceModel::Caption, 1,
                             DifferenceModel::ColumnCount - DifferenceModel::Caption);
    }
    fitTable();
}

void ReviewPanel::fitTable()
{
    // It would keep the width that the last column had once.
    table()->horizontalHeader()->setStretchLastSection(false);
    const bool hasNotes = model_.hasNotes();
    table()->setColumnHidden(DifferenceModel::Note, !hasNotes);
    table()->resizeColumnsToContents();
    int excess = -table()->viewport()->width();
    for (int column = 0; column < DifferenceModel::ColumnCount; ++column)
        excess += table()->columnWidth(column);
    for (const auto& [column, least] : kNarrowest) {
        const int width = table()->columnWidth(column);
        table()->setColumnWidth(column, std::clamp(width - excess, std::min(least, width), width));
        excess -= width - table()->columnWidth(column);
    }
    // What the columns leave belongs to the last one.
    const int last = hasNotes ? DifferenceModel::Note : DifferenceModel::Now;
    if (excess < 0)
        table()->setColumnWidth(last, table()->columnWidth(last) - excess);
}

bool ReviewPanel::choosePreset()
{
    return chooseAgainst(static_cast<int>(Against::Preset));
}

bool ReviewPanel::chooseAgainst(int index)
{
    const auto against = static_cast<Against>(index);
    QString path;
    bool isRead = true;
    if (against == Against::OtherFile || against == Against::Preset) {
        path =
            askPathToOpen(this, against == Against::Preset ? FileKind::Preset : FileKind::OtherConfiguration,
                          tr(kQuestions[index]), tr(kFilters[index]));
        isRead = !path.isEmpty();
    }
    isRead = isRead && review_.compareWith(against, path);
    showState();
    if (!isRead && !path.isEmpty())
        warn(this, tr("rev_119").arg(path));
    return isRead;
}

void ReviewPanel::take(int line)
{
    if (model_.isHead(line)) {
        model_.toggleHead(line);
        table()->setCurrentIndex(model_.index(line, DifferenceModel::Page));
        return;
    }
    const review::Difference& difference = model_.at(line);
    if (difference.key >= 0)
        places_.goTo(review::FileKeys::all()[difference.key].table, difference.row);
}

// All become what the first one becomes.
void ReviewPanel::toggle(const QVector<int>& lines)
{
    const QModelIndex box = model_.index(lines.first(), DifferenceModel::Page);
    model_.choose(lines, box.data(Qt::CheckStateRole).toInt() != Qt::Checked);
}

void ReviewPanel::chooseAll(bool isChosen)
{
    QVector<int> lines(model_.rowCount());
    std::iota(lines.begin(), lines.end(), 0);
    model_.choose(lines, isChosen);
}

void ReviewPanel::takeOver()
{
    const char* step = kSteps[static_cast<int>(review_.against())];
    const std::vector<int> chosen = model_.chosenKeys();
    review_.takeOver(chosen, [step] { return QCoreApplication::translate("vlk", step); });
    const auto left =
        std::ranges::count_if(chosen, [this](int key) { return review_.differences().isDifferent(key); });
    if (review_.isQuick() && left > 0) {
        Q_EMIT told([left] {
            return Notice{Mark::Advice, QCoreApplication::translate("vlk", "rev_284").arg(left), {}};
        });
    }
}

void ReviewPanel::saveAsPreset()
{
    if (const auto notice = savePreset(this, review_.differences().after(), model_.chosenKeys(),
                                       static_cast<int>(model_.choosableKeys().size())))
        Q_EMIT told(notice);
}

void ReviewPanel::copy()
{
    const DifferenceModel::Copied copied = model_.copied();
    QApplication::clipboard()->setText(copied.text);
    Q_EMIT told([lines = copied.lines, all = copied.all] {
        const QLocale locale;
        const QString text = QCoreApplication::translate("vlk", "rev_344");
        return Notice{Mark::Right, text.arg(locale.toString(lines), locale.toString(all)), {}};
    });
}

void ReviewPanel::saveCsv()
{
    const QString path = askPathToSave(this, {FileKind::Differences, tr("rev_115"), tr("rev_108"),
                                              QStringLiteral("CSV (*.csv)"), QStringLiteral("csv")});
    if (path.isEmpty())
        return;
    // With a mark of the encoding, by which spreadsheets know it.
    const QString failure = saveAsAsked(path, "\xEF\xBB\xBF" + model_.csv().toUtf8(), false);
    Q_EMIT told([path, failure] {
        return failure.isEmpty() ? savedNotice(path) : Notice{Mark::Invalid, failure, {}};
    });
}

} // namespace vlk
