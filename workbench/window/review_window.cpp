#include "window/review_window.h"

#include "check/plugin_names.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/table_look.h"
#include "window/languages.h"
#include "window/scrolling.h"
#include "window/setting_change_model.h"
#include "window/setting_columns.h"
#include "window/settings.h"
#include "window/trouble_text.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace workbench {

namespace {

// Nobody has read anything before.
constexpr int kUnseenMs = 300;
constexpr QSize kUsualSize(760, 420);
constexpr int kWidthWithNotes = 980;
constexpr int kWidestNote = 30;   // letters
constexpr int kLongestNote = 240; // signs; all of it is in the tool tip
constexpr int kRoomAround = 130;  // what stands above and below the table

QString titleOf(const TrackerIdentity& tracker)
{
    return tracker.name.isEmpty() ? text("wb_review_title").arg(tracker.number)
                                  : text("wb_review_title_name").arg(tracker.number, tracker.name);
}

QString originOf(const WriteReview& review)
{
    using Origin = WriteRequest::Origin;
    const WriteRequest& request = review.request;
    switch (request.origin) {
    case Origin::Backup:
        if (!request.chosen.isEmpty())
            return text("wb_review_chosen").arg(request.name);
        return review.isOfThisTracker ? text("wb_review_backup").arg(request.name)
                                      : text("wb_review_backup_other").arg(request.name, request.readFrom);
    case Origin::Previous:
        return text("wb_review_previous");
    case Origin::Fresh:
        return review.isOfThisTracker ? QString() : text("wb_review_new");
    case Origin::File:
        return review.isOfThisTracker ? QString() : text("wb_review_file").arg(request.name);
    case Origin::Tracker:
        return review.isOfThisTracker ? QString() : text("wb_review_other").arg(request.readFrom);
    }
    return {};
}

struct WhyRow
{
    WriteReview::Why why;
    const char* key;
};

constexpr WhyRow kWhyRows[] = {
    {WriteReview::Why::Removes, "wb_review_why_removes"},
    {WriteReview::Why::HasErrors, "wb_review_why_error"},
    {WriteReview::Why::HasTyped, "wb_780"},
    {WriteReview::Why::IsUnchecked, "wb_review_why_unchecked"},
    {WriteReview::Why::IsOfAnother, "wb_review_why_other"},
    {WriteReview::Why::IsKnownNoMore, "wb_review_why_known"},
    {WriteReview::Why::IsBroughtBack, "wb_831"},
    {WriteReview::Why::LosesKeys, "wb_review_why_lost"},
    {WriteReview::Why::BringsMore, "wb_review_why_more"},
    {WriteReview::Why::BringsBack, "wb_review_why_back"},
};

// Why it is shown to somebody who has asked for no such window.
QString whyShown(const WriteReview& review)
{
    QStringList reasons;
    for (const WhyRow& row : kWhyRows) {
        if (review.reasons().contains(row.why))
            reasons.append(text(row.key));
    }
    return text("wb_review_why").arg(reasons.join(QStringLiteral("; ")));
}

// With the reason for each change that nobody has edited. As it was opened is one only beside others: where
// all of it stands as it was opened, its origin is told above.
SettingChanges shownChanges(const WriteReview& review)
{
    using Cause = SettingChange::Cause;
    SettingChanges changes = review.changes;
    const bool isOpened = std::ranges::all_of(
        changes, [](Cause cause) { return cause == Cause::Opened; }, &SettingChange::cause);
    for (SettingChange& change : changes) {
        if (change.cause == Cause::Opened && !isOpened)
            change.note = text("wb_790");
    }
    return changes;
}

// What the numbers in the counts do not tell.
QStringList notesOf(const WriteReview& review, bool isUnasked)
{
    QStringList notes{originOf(review)};
    QStringList alongside;
    for (const SettingChange& change : review.alongside())
        alongside.append(settingName(change));
    const auto add = [&notes](const char* key, const QStringList& names) {
        if (!names.isEmpty())
            notes.append(text(key).arg(names.join(QStringLiteral("; "))));
    };
    add("wb_review_alongside", alongside);
    add("wb_review_lost", review.request.lost);
    add("wb_report_kept_sections", review.keptSections);
    if (review.isKnownNoMore && !isUnasked) // else it is the reason below
        notes.append(text(review.isBroughtBack ? "wb_830" : "wb_review_known"));
    if (review.isUnchecked)
        notes.append(text("wb_review_unchecked"));
    if (isUnasked)
        notes.append(whyShown(review));
    notes.removeAll(QString());
    return notes;
}

} // namespace

ReviewWindow::ReviewWindow(const WriteReview& review, Settings& settings, QWidget* parent)
    : QDialog(parent), review_(review), settings_(settings)
{
    setObjectName(QStringLiteral("dialog_Review"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(titleOf(review.tracker));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(vlk::grid::kAroundPage);
    column->setSpacing(vlk::grid::kRow);
    addOrigin(column);
    addCounts(column);
    addTable(column);
    addAdvice(column);
    addButtons(column);
    const auto* table = findChild<QTableView*>(QStringLiteral("tableView_Review"));
    const bool hasNotes = table->model()->columnCount() > SettingChangeModel::Note;
    resizeWithin(this, {hasNotes ? kWidthWithNotes : kUsualSize.width(),
                        std::min(kUsualSize.height(), kRoomAround + heightOfRows(*table))});
}

void ReviewWindow::addOrigin(QVBoxLayout* column)
{
    const QStringList notes = notesOf(review_, !settings_.reviewAlways());
    if (notes.isEmpty())
        return;
    auto* label = new QLabel(this);
    label->setObjectName(QStringLiteral("label_Origin"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QStringList shown = notes;
    for (QString& note : shown) {
        if (note.size() > kLongestNote)
            note = note.left(kLongestNote) + QChar(0x2026);
    }
    label->setText(shown.join(QLatin1Char('\n')));
    if (shown != notes)
        label->setToolTip(
            QStringLiteral("<p>") +
            notes.join(QLatin1Char('\n')).toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>")) +
            QStringLiteral("</p>"));
    column->addWidget(label);
}

void ReviewWindow::addCount(QHBoxLayout* line, int mark, const QString& text, const char* name)
{
    if (mark >= 0) {
        auto* symbol = new QLabel(this);
        symbol->setPixmap(markPixmap(Mark(mark), palette(), kMarkSize, devicePixelRatioF()));
        line->addWidget(symbol);
    }
    auto* label = new QLabel(text, this);
    label->setObjectName(QLatin1String(name));
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    line->addWidget(label);
}

void ReviewWindow::addCounts(QVBoxLayout* column)
{
    auto* line = new QHBoxLayout;
    line->setSpacing(vlk::grid::kColumn);
    addCount(line, -1,
             review_.changes.isEmpty()
                 ? text("wb_review_same")
                 : text("wb_review_counts").arg(number(review_.changed()), number(review_.added)),
             "label_Counts");
    if (review_.removed > 0)
        addCount(line, static_cast<int>(Mark::Invalid),
                 text("wb_review_removed").arg(number(review_.removed)), "label_Removed");
    line->addStretch(1);
    // The window that is open counts the advice on what it holds, and so does this one.
    if (const int advice = static_cast<int>(review_.advice.size()) - review_.typed; advice > 0)
        addCount(line, static_cast<int>(review_.errors > 0 ? Mark::Invalid : Mark::Advice),
                 text("wb_review_advice").arg(number(advice)), "label_Advice");
    if (review_.typed > 0)
        addCount(line, static_cast<int>(Mark::Advice), text("wb_781").arg(number(review_.typed)),
                 "label_Typed");
    if (!review_.advice.isEmpty()) {
        auto* show = new QPushButton(text("wb_review_show"), this);
        show->setObjectName(QStringLiteral("pushButton_Advice"));
        show->setCheckable(true);
        show->installEventFilter(this);
        connect(show, &QPushButton::toggled, this, [this](bool on) { advice_->setVisible(on); });
        line->addWidget(show);
    }
    column->addLayout(line);
}

void ReviewWindow::addTable(QVBoxLayout* column)
{
    auto* model = new SettingChangeModel(
        [](int column) {
            static constexpr const char* keys[] = {"wb_review_setting", "wb_review_before", "wb_review_after",
                                                   "rev_105"};
            return text(keys[column]);
        },
        false, this);
    model->setChanges(shownChanges(review_));
    auto* table = new QTableView(this);
    table->setObjectName(QStringLiteral("tableView_Review"));
    table->setAccessibleName(text("wb_review_table"));
    table->setModel(model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    dressTable(table, TableUse::Read);
    elideInTheMiddle(table, SettingChangeModel::Setting);
    table->setIconSize({kMarkSize, kMarkSize});
    auto* empty = new EmptyNote(table);
    empty->tell(text("wb_review_none"));
    std::vector<SettingColumns::Column> columns{{SettingChangeModel::Before}, {SettingChangeModel::After}};
    if (model->columnCount() > SettingChangeModel::Note)
        columns.push_back({SettingChangeModel::Note, kWidestNote});
    new SettingColumns(table, columns);
    wrapTexts(table);
    addOwnAlone(column, table);
    column->addWidget(table, 1);
}

// Many may go along with a few that were edited.
void ReviewWindow::addOwnAlone(QVBoxLayout* column, QTableView* table)
{
    const int edited = review_.edited();
    if (edited == 0 || edited == review_.changes.size())
        return;
    auto* box = new QCheckBox(text("wb_791").arg(number(edited)), this);
    box->setObjectName(QStringLiteral("checkBox_OwnAlone"));
    connect(box, &QCheckBox::toggled, this, [this, table](bool on) {
        for (int row = 0; row < review_.changes.size(); ++row)
            table->setRowHidden(row, on && review_.changes[row].cause != SettingChange::Cause::Edited);
    });
    column->addWidget(box);
}

void ReviewWindow::addAdvice(QVBoxLayout* column)
{
    auto* list = new QListWidget(this);
    list->setObjectName(QStringLiteral("listWidget_Advice"));
    list->setAccessibleName(text("wb_review_advice_list"));
    list->setWordWrap(true);
    list->setIconSize({kMarkSize, kMarkSize});
    for (const SettingAdvice& advice : review_.advice) {
        const Mark mark = advice.isError ? Mark::Invalid : Mark::Advice;
        new QListWidgetItem(QIcon(markPixmap(mark, palette(), kMarkSize, devicePixelRatioF())), advice.line(),
                            list);
    }
    list->hide();
    advice_ = list;
    column->addWidget(list, 1);
}

void ReviewWindow::addButtons(QVBoxLayout* column)
{
    auto* always = new QCheckBox(text("wb_review_always"), this);
    always->setObjectName(QStringLiteral("checkBox_ReviewAlways"));
    always->setChecked(settings_.reviewAlways());
    always->setToolTip(text("wb_review_always_tip"));
    connect(always, &QCheckBox::toggled, this, [this](bool on) { settings_.setReviewAlways(on); });

    write_ = new QPushButton(text("wb_review_write"), this);
    write_->setObjectName(QStringLiteral("pushButton_Write"));
    cancel_ = new QPushButton(text("wrd_031"), this);
    cancel_->setObjectName(QStringLiteral("pushButton_Cancel"));
    connect(write_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
    // There is no reason to write what is there already.
    QPushButton* first = review_.mustBeSeen() || review_.changes.isEmpty() ? cancel_ : write_;
    for (QPushButton* button : {write_, cancel_}) {
        button->setMinimumWidth(80);
        button->installEventFilter(this);
    }
    // Enter is for the button that has the keyboard, but not yet.
    const QList<QPushButton*> buttons = findChildren<QPushButton*>();
    for (QPushButton* button : buttons)
        button->setAutoDefault(false);
    first->setDefault(true);
    write_->setEnabled(false);
    cancel_->setFocus();
    QTimer::singleShot(kUnseenMs, this, [this, first, buttons] {
        write_->setEnabled(true);
        for (QPushButton* button : buttons)
            button->setAutoDefault(true);
        if (QWidget* focus = focusWidget(); !focus || focus == cancel_)
            first->setFocus();
    });

    auto* line = new QHBoxLayout;
    line->addWidget(always);
    line->addStretch(1);
    line->addWidget(write_);
    line->addWidget(cancel_);
    column->addLayout(line);
}

// A key that is held down since before comes as a repetition.
void ReviewWindow::keyPressEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat())
        QDialog::keyPressEvent(event);
}

bool ReviewWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (isKey && static_cast<QKeyEvent*>(event)->isAutoRepeat())
        return true;
    return QDialog::eventFilter(watched, event);
}

} // namespace workbench
