#include "window/history_window.h"

#include "check/configuration_check.h"
#include "check/plugin_names.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/table_look.h"
#include "typing/wheel_guard.h"
#include "window/backup_list.h"
#include "window/host_session.h"
#include "window/message_box.h"
#include "window/scrolling.h"
#include "window/setting_columns.h"
#include "window/settings.h"
#include "window/trouble_text.h"

#include <QComboBox>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

constexpr QSize kHistorySize(980, 500);
constexpr int kListWidth = 380;

// Numbers of backups, and what else can be compared with.
enum Other { TheTracker = -1, AFile = -2 };

struct KeepRow
{
    int days;
    const char* key;
};

constexpr KeepRow kKeepRows[] = {{0, "wb_history_always"},
                                 {92, "wb_history_quarter"},
                                 {366, "wb_history_year"},
                                 {1096, "wb_history_years"}};

} // namespace

HistoryWindow::HistoryWindow(HostSession& session, Settings& settings, QWidget* parent)
    : QDialog(parent), session_(session), settings_(settings), list_(new BackupList(session, this)),
      one_(new QComboBox(this)), other_(new QComboBox(this)),
      model_([this](int column) { return headOf(column); }, true), table_(new QTableView(this)),
      keep_(new QComboBox(this))
{
    setObjectName(QStringLiteral("dialog_History"));
    texts_.bind([this] { setWindowTitle(plainText("wb_history")); });
    auto* splitter = new QSplitter(this);
    splitter->addWidget(list_);
    splitter->addWidget(buildDifferences());
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({kListWidth, kHistorySize.width() - kListWidth});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(vlk::grid::kAroundPage);
    column->setSpacing(vlk::grid::kRow);
    column->addWidget(splitter, 1);
    column->addWidget(buildButtons());

    connect(list_, &BackupList::selected, this, &HistoryWindow::select);
    // Never brings anything back.
    connect(list_, &BackupList::entered, table_, [this] { table_->setFocus(); });
    connect(&session_.backups(), &Backups::changed, this, &HistoryWindow::fill);
    connect(&session_.tracker(), &tracker::SimulatedTracker::attachedChanged, this, &HistoryWindow::fill);
    // It may hold something else now.
    connect(&session_.road(), &WriteRoad::ended, this, [this] {
        list_->nameAttached();
        if (other_->currentData() == TheTracker)
            compare();
    });
    vlk::guardFromWheel(this);
    resizeWithin(this, kHistorySize);
    fill();
    list_->setFocus();
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
    dressTable(table_, TableUse::Read);
    elideInTheMiddle(table_, SettingChangeModel::Setting);
    table_->setIconSize({kMarkSize, kMarkSize});
    columns_ = new SettingColumns(table_, {{SettingChangeModel::Before}, {SettingChangeModel::After}});
    wrapTexts(table_);
    empty_ = new EmptyNote(table_);
    connect(&model_, &QAbstractItemModel::dataChanged, this, &HistoryWindow::updateButtons);

    auto* line = new QHBoxLayout;
    line->setSpacing(vlk::grid::kColumn);
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
    for (const KeepRow& row : kKeepRows)
        keep_->addItem(text(row.key), row.days);
    keep_->setCurrentIndex(std::max(0, keep_->findData(settings_.backupDays())));
    auto* label = texts_.bind(new QLabel(this), "wb_history_keep");
    label->setBuddy(keep_);
    texts_.bind([this] {
        for (int row = 0; row < keep_->count(); ++row)
            keep_->setItemText(row, text(kKeepRows[row].key));
    });
    connect(keep_, QOverload<int>::of(&QComboBox::activated), this, &HistoryWindow::chooseKeeping);
    line->addWidget(label);
    line->addWidget(keep_);
    line->addStretch(1);
    chosen_ =
        addButton(line, "pushButton_BringChosen", "wb_history_bring_chosen", &HistoryWindow::bringChosen);
    whole_ = addButton(line, "pushButton_BringWhole", "wb_history_bring", &HistoryWindow::bringBack);
    setTabOrder(note_, keep_);
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

// What is dropped here is gone: the number is told before, and no stays as it was.
void HistoryWindow::chooseKeeping()
{
    const int days = keep_->currentData().toInt();
    const Backups::Expired old = session_.backups().expired(days, QDateTime::currentDateTimeUtc());
    if (!old.dropped.isEmpty() &&
        !agrees(text("wb_history_drop").arg(keep_->currentText(), number(old.dropped.size())) +
                    QLatin1String("\n\n") + text("wb_history_drop_not").arg(number(old.noted)),
                text("wb_history_drop_verb"), QStringLiteral("messageBox_Keep"), this)) {
        keep_->setCurrentIndex(std::max(0, keep_->findData(settings_.backupDays())));
        return;
    }
    settings_.setBackupDays(days);
    session_.keepFor(days);
}

void HistoryWindow::fill()
{
    const int before = selected();
    const QVariant against = other_->currentData();
    one_->clear();
    for (const Backup& backup : session_.backups().all())
        one_->addItem(backupName(backup.number), backup.number);
    list_->fill();
    if (!session_.backups().find(before)) {
        select(list_->newest());
        return;
    }
    select(before);
    // What was chosen stays, as long as it is there.
    const int chosen = against.isValid() ? other_->findData(against) : -1;
    if (chosen >= 0 && chosen != other_->currentIndex()) {
        other_->setCurrentIndex(chosen);
        compare();
    }
}

int HistoryWindow::selected() const
{
    return one_->currentData().toInt();
}

void HistoryWindow::select(int backup)
{
    one_->setCurrentIndex(one_->findData(backup));
    list_->select(backup);
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
    for (const Backup& each : session_.backups().all()) {
        if (each.number != backup->number)
            other_->addItem(backupName(each.number), each.number);
    }
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
        const QString chosen = QFileDialog::getOpenFileName(this, text("wb_open_caption"),
                                                            settings_.openingFolder(DataKind::Configuration),
                                                            text("wb_history_file_filter"));
        if (chosen.isEmpty() && file_.isEmpty()) {
            other_->setCurrentIndex(other_->findData(compared_.other));
            return;
        }
        if (!chosen.isEmpty()) {
            file_ = chosen;
            settings_.setOpenedFrom(DataKind::Configuration, chosen);
        }
        other_->setItemText(index, file_.isEmpty() ? text("wb_history_file") : QFileInfo(file_).fileName());
    }
    compare();
}

std::optional<QByteArray> HistoryWindow::other(Sentence& why)
{
    const int wanted = other_->currentIndex() < 0 ? 0 : other_->currentData().toInt();
    if (wanted == TheTracker) {
        Sentence silence;
        std::optional<QByteArray> document = session_.present(silence);
        if (silence)
            why = [silence] { return sentences({text("wb_history_unreadable"), silence()}); };
        return document;
    }
    if (wanted != AFile) {
        why = whyUnreadable(wanted);
        return why ? std::nullopt : std::optional(session_.backups().document(wanted));
    }
    QFile file(file_);
    const QByteArray document =
        file.open(QIODevice::ReadOnly) ? file.read(kLargestConfiguration + 1) : QByteArray();
    if (const auto problem = checkConfiguration(document, session_.tracker().model())) {
        why = [problem] { return sentences({text("wb_history_unreadable"), reasonOf(*problem)}); };
        return {};
    }
    return document;
}

Sentence HistoryWindow::whyUnreadable(int backup) const
{
    if (damageOf(session_.backups(), backup, session_.tracker().model()).isEmpty())
        return {};
    return [this, backup] { return damageOf(session_.backups(), backup, session_.tracker().model()); };
}

void HistoryWindow::compare()
{
    std::optional<SettingChanges> changes;
    const int backup = selected();
    const bool any = backup != 0 && other_->currentIndex() >= 0;
    Sentence why = any ? whyUnreadable(backup) : Sentence();
    const std::optional<QByteArray> before = any && !why ? other(why) : std::nullopt;
    if (before)
        changes = session_.comparer().compare(*before, session_.backups().document(backup));
    // What was chosen comes back with the same two, however long one of them cannot be read.
    const int against = other_->currentIndex() < 0 ? 0 : other_->currentData().toInt();
    const Sides sides{backup, against, against == AFile ? file_ : QString()};
    if (isCompared_)
        chosenOf(compared_) = model_.chosen();
    compared_ = sides;
    isCompared_ = changes.has_value();
    model_.setChanges(changes.value_or(SettingChanges()), chosenOf(sides));
    model_.retranslate();
    columns_->fit();
    empty_->tell(backup == 0 ? text(one_->count() > 0 ? "wb_history_choose" : "wb_history_alone")
                 : !any      ? text("wb_history_alone")
                 : changes   ? text("wb_review_none")
                 : why       ? why()
                             : text("wb_history_unreadable"));
    updateButtons();
}

QStringList& HistoryWindow::chosenOf(const Sides& sides)
{
    const auto found = std::ranges::find(chosenOf_, sides, &std::pair<Sides, QStringList>::first);
    return found != chosenOf_.end() ? found->second : chosenOf_.emplace_back(sides, QStringList()).second;
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
    // Two columns are compared, and one of them goes into the tracker.
    whole_->setText(any ? text("wb_report_bring_back").arg(number(selected())) : text("wb_history_bring"));
    chosen_->setText(any ? text("wb_history_bring_chosen_of").arg(number(selected()))
                         : text("wb_history_bring_chosen"));
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
    constexpr int widthOfNote = 400;
    QInputDialog dialog(this);
    dialog.setWindowTitle(backupName(backup->number));
    dialog.setLabelText(text("wb_history_note_label"));
    dialog.setTextValue(backup->note);
    dialog.setOkButtonText(text("wrd_028"));
    dialog.setCancelButtonText(text("wrd_031"));
    dialog.resize(widthOfNote, dialog.sizeHint().height());
    if (dialog.exec() == QDialog::Accepted &&
        !session_.backups().setNote(backup->number, dialog.textValue().trimmed()))
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

// Enter is for the button that has the keyboard, and for nothing else.
void HistoryWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()); button && !event->isAutoRepeat())
        button->click();
}

// Whoever opens it again comes for what was written since.
void HistoryWindow::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    list_->clearFilter();
    select(list_->newest());
}

void HistoryWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        texts_.apply();
        list_->retranslate();
        fill();
    }
}

} // namespace workbench
