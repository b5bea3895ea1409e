#include "window/history_window.h"

#include "check/configuration_check.h"
#include "plugin_names.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "typing/table_look.h"
#include "window/find_field.h"
#include "window/host_session.h"
#include "window/message_box.h"
#include "window/scrolling.h"
#include "window/settings.h"
#include "window/trouble_text.h"

#include <QComboBox>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

namespace {

constexpr QSize historySize(940, 500);
constexpr int listWidth = 340;

enum Column { Moment, Changes, Note, ColumnCount };
constexpr const char* columnKeys[ColumnCount] = {"wb_history_time", "wb_history_changes",
                                                 "wb_history_note_head"};

// Numbers of backups, and what else can be compared with.
enum Other { TheTracker = -1, AFile = -2 };

struct KeepRow
{
    int days;
    const char* key;
};

constexpr KeepRow keepRows[] = {{0, "wb_history_always"},
                                {92, "wb_history_quarter"},
                                {366, "wb_history_year"},
                                {1096, "wb_history_years"}};

QString momentText(const QDateTime& made)
{
    return made.toLocalTime().toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
}

QString numberText(int backup)
{
    return text("wb_history_number").arg(number(backup));
}

int numberOf(const QTreeWidgetItem* item)
{
    return item ? item->data(0, Qt::UserRole).toInt() : 0;
}

// The one before it of the same tracker.
int earlierThan(const Backups& backups, const Backup& backup)
{
    const auto found = std::find_if(backups.all().cbegin(), backups.all().cend(), [&](const Backup& each) {
        return each.tracker == backup.tracker && each.number < backup.number;
    });
    return found == backups.all().cend() ? 0 : found->number;
}

} // namespace

HistoryWindow::HistoryWindow(HostSession& session, Settings& settings, QWidget* parent)
    : QDialog(parent), session_(session), settings_(settings), filter_(new QLineEdit(this)),
      list_(new QTreeWidget(this)), one_(new QComboBox(this)), other_(new QComboBox(this)),
      model_([this](int column) { return headOf(column); }, true), table_(new QTableView(this)),
      keep_(new QComboBox(this))
{
    setObjectName(QStringLiteral("dialog_History"));
    texts_.bind([this] { setWindowTitle(plainText("wb_history")); });
    auto* splitter = new QSplitter(this);
    splitter->addWidget(buildList());
    splitter->addWidget(buildDifferences());
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({listWidth, historySize.width() - listWidth});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(9, 9, 9, 9);
    column->setSpacing(6);
    column->addWidget(splitter, 1);
    column->addWidget(buildButtons());

    counting_.setInterval(0);
    connect(&counting_, &QTimer::timeout, this, &HistoryWindow::countNext);
    connect(&session_.backups(), &Backups::changed, this, &HistoryWindow::fill);
    connect(&session_.tracker(), &tracker::SimulatedTracker::attachedChanged, this, &HistoryWindow::fill);
    resizeWithin(this, historySize);
    fill();
    list_->setFocus();
}

QWidget* HistoryWindow::buildList()
{
    filter_->setObjectName(QStringLiteral("lineEdit_HistoryFilter"));
    filter_->setClearButtonEnabled(true);
    list_->setObjectName(QStringLiteral("treeWidget_Backups"));
    list_->setColumnCount(ColumnCount);
    dressTable(list_);
    list_->setRootIsDecorated(true);
    list_->setColumnWidth(Moment, cellWidth(*list_, QStringLiteral("00.00.0000 00:00:00")) +
                                      2 * list_->indentation());
    texts_.bind([this] {
        filter_->setPlaceholderText(text("wb_history_filter"));
        filter_->setAccessibleName(text("wb_history_filter"));
        list_->setAccessibleName(text("wb_history_list"));
        QStringList heads;
        for (const char* key : columnKeys)
            heads.append(text(key));
        list_->setHeaderLabels(heads);
        list_->resizeColumnToContents(Changes);
    });
    joinFindField(filter_, list_);
    auto* empty = new EmptyNote(list_);
    texts_.bind([empty] { empty->tell(text("wb_history_none")); });
    connect(filter_, &QLineEdit::textChanged, this, &HistoryWindow::filter);
    connect(list_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (const int backup = numberOf(item))
            select(backup);
    });
    // Never brings anything back.
    connect(list_, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* item) {
        if (numberOf(item) != 0)
            table_->setFocus();
    });

    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(filter_);
    column->addWidget(list_, 1);
    return side;
}

QWidget* HistoryWindow::buildDifferences()
{
    one_->setObjectName(QStringLiteral("comboBox_Backup"));
    other_->setObjectName(QStringLiteral("comboBox_Against"));
    auto* against = texts_.bind(new QLabel(this), "wb_history_against");
    against->setBuddy(other_);
    texts_.bind([this] { one_->setAccessibleName(text("wb_history_one")); });
    connect(one_, QOverload<int>::of(&QComboBox::activated), this,
            [this] { select(one_->currentData().toInt()); });
    connect(other_, QOverload<int>::of(&QComboBox::activated), this, &HistoryWindow::chooseOther);

    table_->setObjectName(QStringLiteral("tableView_History"));
    texts_.bind([this] { table_->setAccessibleName(text("wb_history_table")); });
    table_->setModel(&model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    dressTable(table_, TableUse::read);
    elideInTheMiddle(table_, SettingChangeModel::Setting);
    table_->setIconSize({markSize, markSize});
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->setColumnWidth(SettingChangeModel::Setting, 290);
    table_->setColumnWidth(SettingChangeModel::Before, 130);
    empty_ = new EmptyNote(table_);
    connect(&model_, &QAbstractItemModel::dataChanged, this, &HistoryWindow::updateButtons);

    auto* line = new QHBoxLayout;
    line->addWidget(one_);
    line->addWidget(against);
    line->addWidget(other_);
    line->addStretch(1);
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(line);
    column->addWidget(table_, 1);
    return side;
}

QWidget* HistoryWindow::buildButtons()
{
    auto* foot = new QWidget(this);
    auto* line = new QHBoxLayout(foot);
    line->setContentsMargins(0, 0, 0, 0);
    note_ = addButton(line, "pushButton_Note", "wb_history_note", &HistoryWindow::note);
    keep_->setObjectName(QStringLiteral("comboBox_Keep"));
    for (const KeepRow& row : keepRows)
        keep_->addItem(text(row.key), row.days);
    keep_->setCurrentIndex(qMax(0, keep_->findData(settings_.backupDays())));
    auto* label = texts_.bind(new QLabel(this), "wb_history_keep");
    label->setBuddy(keep_);
    texts_.bind([this] {
        for (int row = 0; row < keep_->count(); ++row)
            keep_->setItemText(row, text(keepRows[row].key));
    });
    connect(keep_, QOverload<int>::of(&QComboBox::activated), this, [this] {
        settings_.setBackupDays(keep_->currentData().toInt());
        session_.backups().keepFor(settings_.backupDays(), QDateTime::currentDateTimeUtc());
    });
    line->addWidget(label);
    line->addWidget(keep_);
    line->addStretch(1);
    chosen_ =
        addButton(line, "pushButton_BringChosen", "wb_history_bring_chosen", &HistoryWindow::bringChosen);
    whole_ = addButton(line, "pushButton_BringWhole", "wb_history_bring", &HistoryWindow::bringBack);
    auto* close = addButton(line, "pushButton_Close", "wb_report_close", nullptr);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    return foot;
}

QPushButton* HistoryWindow::addButton(QLayout* line, const char* name, const char* key,
                                      void (HistoryWindow::*act)())
{
    auto* button = texts_.bind(new QPushButton(this), key);
    button->setObjectName(QLatin1String(name));
    button->setMinimumWidth(80);
    button->setAutoDefault(false);
    if (act)
        connect(button, &QPushButton::clicked, this, act);
    line->addWidget(button);
    return button;
}

void HistoryWindow::fill()
{
    const int before = selected();
    const QString attached = session_.tracker().attached() ? session_.tracker().text2() : QString();
    const QSignalBlocker quiet(list_);
    list_->clear();
    one_->clear();
    uncounted_.clear();
    QHash<QString, QTreeWidgetItem*> trackers;
    for (const Backup& backup : session_.backups().all()) {
        QTreeWidgetItem*& tracker = trackers[backup.tracker];
        if (!tracker) {
            tracker = new QTreeWidgetItem({backup.tracker + QLatin1Char(' ') + backup.name});
            list_->insertTopLevelItem(backup.tracker == attached ? 0 : list_->topLevelItemCount(), tracker);
            tracker->setFirstColumnSpanned(true);
            tracker->setExpanded(true);
        }
        auto* item = new QTreeWidgetItem(tracker, {momentText(backup.made), {}, backup.note});
        item->setData(0, Qt::UserRole, backup.number);
        item->setToolTip(0, numberText(backup.number));
        item->setTextAlignment(Changes, Qt::AlignRight | Qt::AlignVCenter);
        if (changes_.contains(backup.number))
            item->setText(Changes, number(changes_[backup.number]));
        else if (earlierThan(session_.backups(), backup) != 0)
            uncounted_.append(backup.number);
        one_->addItem(numberText(backup.number), backup.number);
    }
    filter();
    if (!uncounted_.isEmpty())
        counting_.start();
    const QTreeWidgetItem* first =
        list_->topLevelItemCount() > 0 ? list_->topLevelItem(0)->child(0) : nullptr;
    select(session_.backups().find(before) ? before : numberOf(first));
}

// One at a time, so that the window answers meanwhile.
void HistoryWindow::countNext()
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
    changes_[next] = int(changes->size());
    for (QTreeWidgetItemIterator item(list_); *item; ++item)
        if (numberOf(*item) == next)
            (*item)->setText(Changes, number(changes->size()));
}

void HistoryWindow::filter()
{
    const QString wanted = filter_->text().trimmed();
    for (int top = 0; top < list_->topLevelItemCount(); ++top) {
        QTreeWidgetItem* tracker = list_->topLevelItem(top);
        const bool isTracker = tracker->text(0).contains(wanted, Qt::CaseInsensitive);
        bool any = false;
        for (int i = 0; i < tracker->childCount(); ++i) {
            QTreeWidgetItem* item = tracker->child(i);
            const QString words = item->text(Moment) + QLatin1Char(' ') + item->text(Note) +
                                  QLatin1Char(' ') + QString::number(numberOf(item));
            const bool shown = isTracker || words.contains(wanted, Qt::CaseInsensitive);
            item->setHidden(!shown);
            any |= shown;
        }
        tracker->setHidden(!any);
    }
}

int HistoryWindow::selected() const
{
    return one_->currentData().toInt();
}

void HistoryWindow::select(int backup)
{
    one_->setCurrentIndex(one_->findData(backup));
    const QSignalBlocker quiet(list_);
    for (QTreeWidgetItemIterator item(list_); *item; ++item)
        if (backup != 0 && numberOf(*item) == backup)
            list_->setCurrentItem(*item);
    offerOthers();
    compare();
}

// The one before it first of all; where there is none, what the tracker holds now.
void HistoryWindow::offerOthers()
{
    other_->clear();
    const auto backup = session_.backups().find(selected());
    if (!backup)
        return;
    for (const Backup& each : session_.backups().all())
        if (each.number != backup->number)
            other_->addItem(numberText(each.number), each.number);
    if (session_.tracker().attached())
        other_->addItem(text("wb_history_now"), TheTracker);
    other_->addItem(file_.isEmpty() ? text("wb_history_file") : QFileInfo(file_).fileName(), AFile);
    const int earlier = earlierThan(session_.backups(), *backup);
    other_->setCurrentIndex(earlier != 0                    ? other_->findData(earlier)
                            : session_.tracker().attached() ? other_->findData(TheTracker)
                                                            : -1);
}

void HistoryWindow::chooseOther(int index)
{
    if (other_->itemData(index).toInt() == AFile) {
        const QString chosen = QFileDialog::getOpenFileName(
            this, text("wb_open_caption"), settings_.configurationFolder(), text("wb_history_file_filter"));
        if (!chosen.isEmpty())
            file_ = chosen;
        other_->setItemText(index, file_.isEmpty() ? text("wb_history_file") : QFileInfo(file_).fileName());
    }
    compare();
}

std::optional<QByteArray> HistoryWindow::other()
{
    const int wanted = other_->currentIndex() < 0 ? 0 : other_->currentData().toInt();
    if (wanted == TheTracker)
        return session_.present();
    QByteArray document;
    if (wanted == AFile) {
        QFile file(file_);
        document = file.open(QIODevice::ReadOnly) ? file.read(largestConfiguration + 1) : QByteArray();
    } else {
        document = session_.backups().document(wanted);
    }
    if (checkConfiguration(document, session_.tracker().model()))
        return {};
    return document;
}

void HistoryWindow::compare()
{
    std::optional<SettingChanges> changes;
    const int backup = selected();
    const std::optional<QByteArray> before = backup == 0 ? std::nullopt : other();
    if (before)
        changes = session_.comparer().compare(*before, session_.backups().document(backup));
    model_.setChanges(changes.value_or(SettingChanges()));
    model_.retranslate();
    empty_->tell(backup == 0 || other_->currentIndex() < 0 ? text("wb_history_alone")
                 : changes                                 ? text("wb_review_none")
                                                           : text("wb_history_unreadable"));
    updateButtons();
}

QString HistoryWindow::headOf(int column) const
{
    switch (column) {
    case SettingChangeModel::Setting:
        return text("wb_review_setting");
    case SettingChangeModel::Before:
        return other_->currentText();
    default:
        return one_->currentText();
    }
}

void HistoryWindow::updateButtons()
{
    const bool any = selected() != 0;
    const bool attached = session_.tracker().attached();
    note_->setEnabled(any);
    whole_->setEnabled(any && attached);
    chosen_->setEnabled(any && attached && !model_.chosen().isEmpty());
    for (QPushButton* button : {whole_, chosen_})
        button->setToolTip(attached ? QString() : text("wb_refused_detached"));
}

void HistoryWindow::note()
{
    const auto backup = session_.backups().find(selected());
    if (!backup)
        return;
    bool isGiven = false;
    const QString note =
        QInputDialog::getText(this, numberText(backup->number), text("wb_history_note_label"),
                              QLineEdit::Normal, backup->note, &isGiven);
    if (isGiven && !session_.backups().setNote(backup->number, note.trimmed()))
        tell([] { return text("wb_history_note_failed"); });
}

void HistoryWindow::bringBack()
{
    tell(session_.bringBack(selected()));
}

void HistoryWindow::bringChosen()
{
    tell(session_.bringBack(selected(), model_.chosen()));
}

void HistoryWindow::tell(const Sentence& failure)
{
    if (failure)
        showWarning(failure(), this);
}

void HistoryWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        texts_.apply();
        fill();
    }
}

} // namespace workbench
