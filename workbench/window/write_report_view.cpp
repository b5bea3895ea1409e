#include "window/write_report_view.h"

#include "check/plugin_names.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/table_look.h"
#include "window/file_comparer.h"
#include "window/host_session.h"
#include "window/line_icon.h"
#include "window/message_box.h"
#include "window/scrolling.h"
#include "window/setting_change_model.h"
#include "window/setting_columns.h"
#include "window/trouble_text.h"
#include "window/write_report_text.h"

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <tuple>

namespace workbench {

namespace {

constexpr QSize kSizeWithSettings(860, 420);
constexpr int kWidthOfWords = 560;
constexpr int kRoomAround = 140; // what stands above and below the table

} // namespace

WriteReportView::WriteReportView(HostSession& session, QWidget* parent)
    : QWidget(parent), session_(session), symbol_(new QLabel(this)), summary_(new QLabel(this)),
      time_(new QLabel(this)), copy_(new QToolButton(this)), table_(new QTableView(this)),
      backup_(new QLabel(this)), buttons_(new QHBoxLayout)
{
    summary_->setObjectName(QStringLiteral("label_Report"));
    summary_->setWordWrap(true);
    summary_->setTextFormat(Qt::PlainText);
    summary_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    symbol_->setContentsMargins(0, (fontMetrics().height() - kMarkSize) / 2, 0, 0);
    copy_->setIcon(lineIcon(QStringLiteral("copy")));
    copy_->setAutoRaise(true);
    texts_.bind([this] {
        copy_->setToolTip(text("wb_report_copy"));
        copy_->setAccessibleName(text("wb_report_copy"));
        table_->setAccessibleName(plainText("wb_tab_report"));
    });
    connect(copy_, &QToolButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(plainText(report_)); });
    buildTable();

    backup_->setObjectName(QStringLiteral("label_Backup"));
    buttons_->addWidget(backup_);
    buttons_->addStretch(1);
    otherReport_ = addButton("pushButton_OtherReport", &WriteReportView::showOther);
    again_ = addButton("pushButton_Again", &WriteReportView::tryAgain);
    back_ = addButton("pushButton_BringBack", &WriteReportView::bringBack);

    auto* line = new QHBoxLayout;
    for (QHBoxLayout* row : {line, buttons_})
        row->setSpacing(vlk::grid::kColumn);
    line->addWidget(symbol_, 0, Qt::AlignTop);
    line->addWidget(summary_, 1, Qt::AlignTop);
    line->addWidget(time_, 0, Qt::AlignTop);
    line->addWidget(copy_, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(vlk::grid::kAroundWindow);
    column->setSpacing(vlk::grid::kRow);
    column->addLayout(line);
    column->addWidget(table_, 1);
    column->addLayout(buttons_);
    showSummary();
}

void WriteReportView::buildTable()
{
    table_->setObjectName(QStringLiteral("tableView_Report"));
    table_->setModel(&model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    dressTable(table_, TableUse::Read);
    elideInTheMiddle(table_, WriteReportModel::Setting);
    elideInTheMiddle(table_, WriteReportModel::Key);
    table_->setIconSize({kMarkSize, kMarkSize});
    // A key is whole as long as it can be: people look for it in the file.
    constexpr int mostOfKey = 34;
    columns_ =
        new SettingColumns(table_, {{.number = WriteReportModel::Key, .most = mostOfKey, .isLast = true},
                                    {.number = WriteReportModel::Sent},
                                    {.number = WriteReportModel::ReadBack}});
    wrapTexts(table_);
    auto* empty = new EmptyNote(table_);
    texts_.bind([this, empty] {
        // What is not known is said above.
        empty->tell(report_.time.isValid() && report_.outcome == RoadReport::Outcome::Unknown
                        ? QString()
                        : text(report_.time.isValid() ? "wb_report_nothing" : "wb_report_none"));
    });
}

QPushButton* WriteReportView::addButton(const char* name, Sentence (WriteReportView::*act)())
{
    auto* button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    button->setMinimumWidth(80);
    button->setAutoDefault(true); // Enter is for the button that has the keyboard
    connect(button, &QPushButton::clicked, this, [this, act] {
        Q_EMIT leaving();
        if (const Sentence why = (this->*act)())
            showWarning(why(), this);
    });
    buttons_->addWidget(button);
    return button;
}

Sentence WriteReportView::tryAgain()
{
    return session_.writeAgain(report_.request);
}

Sentence WriteReportView::bringBack()
{
    return session_.bringBack(report_.toBringBack());
}

void WriteReportView::setReport(const RoadReport& report)
{
    const auto isOfWrite = [](const RoadReport& each) {
        return each.time.isValid() && (each.isSeenLater || each.outcome != RoadReport::Outcome::NotWritten);
    };
    if (isOfWrite(report))
        other_.reset();
    else if (isOfWrite(report_))
        other_ = report_;
    show(report);
}

Sentence WriteReportView::showOther()
{
    const RoadReport other = *other_;
    other_ = report_;
    show(other);
    return {};
}

void WriteReportView::show(const RoadReport& report)
{
    report_ = report;
    model_.setReport(report);
    columns_->fit();
    texts_.apply();
    showSummary();
}

void WriteReportView::showSummary()
{
    using Outcome = RoadReport::Outcome;
    const bool any = report_.time.isValid();
    copy_->setVisible(any);
    symbol_->setVisible(any);
    summary_->setVisible(any);
    time_->setVisible(any);
    backup_->setVisible(any && report_.backup > 0);
    backup_->setText(text("wb_report_backup").arg(number(report_.backup)));
    // What was never saved for the tracker is written again from its window.
    again_->setVisible(any && report_.outcome != Outcome::Confirmed &&
                       report_.fault != RoadReport::Fault::Unsaved &&
                       report_.fault != RoadReport::Fault::BadRequest);
    again_->setText(text("wb_report_again"));
    otherReport_->setVisible(other_.has_value());
    if (other_)
        otherReport_->setText(text("wb_report_other").arg(timeOfDay(other_->time)));
    back_->setVisible(any && report_.toBringBack() > 0);
    back_->setText(text("wb_report_bring_back").arg(number(report_.toBringBack())));
    if (!any)
        return;
    const Mark mark = report_.outcome == Outcome::Confirmed
                          ? (lookAgainText(report_).isEmpty() ? Mark::Right : Mark::Advice)
                      : report_.outcome == Outcome::Cancelled ? Mark::Advice
                                                              : Mark::Invalid;
    symbol_->setPixmap(markPixmap(mark, palette(), kMarkSize, devicePixelRatioF()));
    summary_->setText(summary(report_));
    time_->setText(timeOfDay(report_.time));
}

// What was written is told in the words of the plug-in, which has those of one language at a time.
void WriteReportView::tellAnew(RoadReport& report) const
{
    const auto find = [&report](const QString& path) {
        return std::ranges::find_if(
            report.settings, [&path](const WrittenSetting& setting) { return setting.change.path == path; });
    };
    const FileComparer& comparer = session_.comparer();
    if (!report.toLookAt.isEmpty()) {
        if (auto advice = comparer.advise(report.request.document)) {
            addRefused(&*advice, report.request.typed);
            report.toLookAt = toLookAt(*advice);
        }
    }
    // Those that came back otherwise first: of the others the one comparison tells all.
    for (const SettingChange& missed :
         comparer.compare(report.request.document, report.readBack).value_or(SettingChanges())) {
        const auto found = find(missed.path);
        if (found == report.settings.end() || found->isTaken)
            continue;
        SettingChange& change = found->change;
        std::tie(change.page, change.group, change.caption, change.afterText, found->readBackText) =
            std::tie(missed.page, missed.group, missed.caption, missed.beforeText, missed.afterText);
    }
    for (const SettingChange& sent :
         comparer.compare(session_.backups().document(report.backup), report.request.document)
             .value_or(SettingChanges())) {
        const auto found = find(sent.path);
        if (found == report.settings.end() || found->change.before != sent.before ||
            found->change.after != sent.after)
            continue;
        found->change = sent;
        if (found->isTaken)
            found->readBackText = sent.afterText;
    }
}

void WriteReportView::retranslate()
{
    tellAnew(report_);
    if (other_)
        tellAnew(*other_);
    model_.setReport(report_);
    texts_.apply();
    model_.retranslate();
    columns_->fit();
    showSummary();
}

void WriteReportView::showDialog(HostSession& session, const RoadReport& report, QWidget* parent)
{
    auto* dialog = new QDialog(parent);
    dialog->setObjectName(QStringLiteral("dialog_Report"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(plainText("wb_tab_report"));
    auto* view = new WriteReportView(session, dialog);
    view->setReport(report);
    auto* close = new QPushButton(plainText("wb_report_close"), dialog);
    close->setObjectName(QStringLiteral("pushButton_Close"));
    close->setMinimumWidth(80);
    close->setDefault(true);
    view->buttons_->addWidget(close);
    connect(close, &QPushButton::clicked, dialog, &QDialog::reject);
    // What comes next stands over the window below.
    connect(view, &WriteReportView::leaving, dialog, &QWidget::hide);
    connect(view, &WriteReportView::leaving, dialog, &QObject::deleteLater);
    auto* column = new QVBoxLayout(dialog);
    column->setContentsMargins({});
    column->addWidget(view, 1);
    const bool keys = !report.settings.isEmpty();
    view->table_->setVisible(keys);
    resizeWithin(dialog,
                 keys ? QSize(kSizeWithSettings.width(),
                              std::min(kSizeWithSettings.height(), kRoomAround + heightOfRows(*view->table_)))
                      : QSize(kWidthOfWords, dialog->heightForWidth(kWidthOfWords)));
    dialog->open();
    dialog->activateWindow();
    close->setFocus();
}

} // namespace workbench
