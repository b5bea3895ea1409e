#include "window/backup_list.h"

#include "check/plugin_names.h"
#include "typing/empty_note.h"
#include "typing/grid.h"
#include "typing/table_look.h"
#include "window/find_field.h"
#include "window/host_session.h"
#include "window/trouble_text.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

namespace {

constexpr int kListIndent = 12;
constexpr int kTrackerRole = Qt::UserRole + 1; // its number
constexpr int kNameRole = Qt::UserRole + 2;    // what the vehicle was called then

enum Column { Moment, Number, Changes, Note, ColumnCount };
constexpr const char* kColumnKeys[ColumnCount] = {"wb_history_time", "wb_history_number_head",
                                                  "wb_history_changes", "wb_history_note_head"};

int numberOf(const QTreeWidgetItem* item)
{
    return item ? item->data(0, Qt::UserRole).toInt() : 0;
}

} // namespace

int earlierThan(const Backups& backups, const Backup& backup)
{
    const auto found = std::ranges::find_if(backups.all(), [&](const Backup& each) {
        return each.tracker == backup.tracker && each.number < backup.number;
    });
    return found == backups.all().cend() ? 0 : found->number;
}

QString backupName(int backup)
{
    return text("wb_history_number").arg(number(backup));
}

BackupList::BackupList(HostSession& session, QWidget* parent)
    : QWidget(parent), session_(session), filter_(new QLineEdit(this)), tree_(new QTreeWidget(this))
{
    buildTree();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(vlk::grid::kRow);
    column->addWidget(filter_);
    column->addWidget(tree_, 1);
    setFocusProxy(tree_);
    counting_.setInterval(0);
    connect(&counting_, &QTimer::timeout, this, &BackupList::countNext);
}

void BackupList::buildTree()
{
    filter_->setObjectName(QStringLiteral("lineEdit_HistoryFilter"));
    filter_->setClearButtonEnabled(true);
    tree_->setObjectName(QStringLiteral("treeWidget_Backups"));
    tree_->setColumnCount(ColumnCount);
    dressTable(tree_);
    tree_->setRootIsDecorated(true);
    tree_->setIndentation(kListIndent);
    tree_->header()->setMinimumSectionSize(0);
    tree_->setColumnWidth(Note, 0); // it takes what the others leave
    tree_->setColumnWidth(Moment, cellWidth(*tree_, QStringLiteral("00.00.0000 00:00:00")) +
                                      2 * tree_->indentation());
    texts_.bind([this] {
        filter_->setPlaceholderText(text("wb_history_filter"));
        filter_->setAccessibleName(text("wb_history_filter"));
        tree_->setAccessibleName(text("wb_history_list"));
        QStringList heads;
        for (const char* key : kColumnKeys)
            heads.append(text(key));
        tree_->setHeaderLabels(heads);
        for (const int column : {Number, Changes})
            tree_->resizeColumnToContents(column);
    });
    joinFindField(filter_, tree_);
    empty_ = new EmptyNote(tree_);
    texts_.bind([this] { tellEmpty(); });
    connect(filter_, &QLineEdit::textChanged, this, &BackupList::filter);
    connect(tree_, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* item) { Q_EMIT selected(numberOf(item)); });
    connect(tree_, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* item) {
        if (numberOf(item) != 0)
            Q_EMIT entered();
    });
}

void BackupList::fill()
{
    const QString attached = session_.tracker().attached() ? session_.tracker().text2() : QString();
    const QSignalBlocker quiet(tree_);
    tree_->clear();
    uncounted_.clear();
    QHash<QString, QTreeWidgetItem*> trackers;
    for (const Backup& backup : session_.backups().all()) {
        QTreeWidgetItem*& tracker = trackers[backup.tracker];
        if (!tracker) {
            tracker = new QTreeWidgetItem({backup.tracker + QLatin1Char(' ') + backup.name});
            tracker->setData(0, kTrackerRole, backup.tracker);
            tree_->insertTopLevelItem(backup.tracker == attached ? 0 : tree_->topLevelItemCount(), tracker);
            tracker->setFirstColumnSpanned(true);
            tracker->setExpanded(true);
        }
        auto* item =
            new QTreeWidgetItem(tracker, {moment(backup.made), number(backup.number), {}, backup.note});
        item->setData(0, Qt::UserRole, backup.number);
        item->setData(0, kNameRole, backup.name);
        for (const int column : {Number, Changes})
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        if (changes_.contains(backup.number))
            item->setText(Changes, number(changes_[backup.number]));
        else if (earlierThan(session_.backups(), backup) != 0)
            uncounted_.append(backup.number);
    }
    tree_->resizeColumnToContents(Number);
    nameAttached();
    filter();
    if (!uncounted_.isEmpty())
        counting_.start();
}

// A backup holds what its tracker was called before.
void BackupList::nameAttached()
{
    const TrackerIdentity attached = session_.attachedTracker();
    for (int top = 0; top < tree_->topLevelItemCount(); ++top) {
        QTreeWidgetItem* tracker = tree_->topLevelItem(top);
        if (attached.isAttached() && tracker->data(0, kTrackerRole) == attached.number)
            tracker->setText(0, attached.number + QLatin1Char(' ') + attached.name);
    }
}

int BackupList::newest() const
{
    for (QTreeWidgetItemIterator item(tree_, QTreeWidgetItemIterator::NotHidden); *item; ++item) {
        if (const int backup = numberOf(*item); backup != 0 && !(*item)->parent()->isHidden())
            return backup;
    }
    return 0;
}

void BackupList::clearFilter()
{
    filter_->clear();
}

void BackupList::select(int backup)
{
    const QSignalBlocker quiet(tree_);
    for (QTreeWidgetItemIterator item(tree_); *item; ++item) {
        if (backup != 0 && numberOf(*item) == backup)
            tree_->setCurrentItem(*item);
    }
}

// One at a time, so that the window answers meanwhile.
void BackupList::countNext()
{
    if (uncounted_.isEmpty()) {
        counting_.stop();
        return;
    }
    const int next = uncounted_.takeFirst();
    const Backups& backups = session_.backups();
    const auto backup = backups.find(next);
    if (!backup)
        return;
    const auto changes =
        session_.comparer().compare(backups.document(earlierThan(backups, *backup)), backups.document(next));
    if (!changes)
        return;
    changes_[next] = static_cast<int>(changes->size());
    for (QTreeWidgetItemIterator item(tree_); *item; ++item) {
        if (numberOf(*item) == next)
            (*item)->setText(Changes, number(changes->size()));
    }
}

void BackupList::filter()
{
    const QString wanted = filter_->text().trimmed();
    for (int top = 0; top < tree_->topLevelItemCount(); ++top) {
        QTreeWidgetItem* tracker = tree_->topLevelItem(top);
        const bool isTracker = tracker->text(0).contains(wanted, Qt::CaseInsensitive);
        bool any = false;
        for (int i = 0; i < tracker->childCount(); ++i) {
            QTreeWidgetItem* item = tracker->child(i);
            const QString words =
                QStringList{item->text(Moment), item->text(Note), item->data(0, kNameRole).toString(),
                            QString::number(numberOf(item))}
                    .join(QLatin1Char(' '));
            const bool shown = isTracker || words.contains(wanted, Qt::CaseInsensitive);
            item->setHidden(!shown);
            any |= shown;
        }
        tracker->setHidden(!any);
    }
    tellEmpty();
    empty_->refresh();
    // What is worked with is in sight.
    const QTreeWidgetItem* current = tree_->currentItem();
    if (const int first = newest(); first == 0) {
        tree_->setCurrentItem(nullptr);
    } else if (!current || current->isHidden() || (current->parent() && current->parent()->isHidden())) {
        for (QTreeWidgetItemIterator item(tree_); *item; ++item) {
            if (numberOf(*item) == first)
                tree_->setCurrentItem(*item);
        }
    }
}

void BackupList::tellEmpty()
{
    empty_->tell(text(tree_->topLevelItemCount() > 0 ? "wb_nothing_matches" : "wb_history_none"));
}

} // namespace workbench
