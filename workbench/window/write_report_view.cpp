#include "window/write_report_view.h"

#include "plugin_names.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "typing/table_look.h"
#include "window/line_icon.h"
#include "window/scrolling.h"
#include "window/write_report_text.h"

#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace workbench {

WriteReportView::WriteReportView(QWidget* parent)
    : QWidget(parent), symbol_(new QLabel(this)), summary_(new QLabel(this)), copy_(new QToolButton(this)),
      table_(new QTableView(this))
{
    summary_->setObjectName(QStringLiteral("label_Report"));
    summary_->setWordWrap(true);
    summary_->setTextFormat(Qt::PlainText);
    summary_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    copy_->setIcon(lineIcon(QStringLiteral("copy")));
    copy_->setAutoRaise(true);
    texts_.bind([this] {
        copy_->setToolTip(text("wb_report_copy"));
        copy_->setAccessibleName(text("wb_report_copy"));
        table_->setAccessibleName(plainText("wb_tab_report"));
    });
    connect(copy_, &QToolButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(plainText(report_, typed_)); });

    table_->setObjectName(QStringLiteral("tableView_Report"));
    table_->setModel(&model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    vlk::dressTable(table_, TableUse::read);
    vlk::elideInTheMiddle(table_, WriteReportModel::Key);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->setColumnWidth(WriteReportModel::Kind, fontMetrics().averageCharWidth() * 11);
    table_->setColumnWidth(WriteReportModel::Key, fontMetrics().averageCharWidth() * 25);
    table_->setColumnWidth(WriteReportModel::Before, fontMetrics().averageCharWidth() * 23);

    auto* empty = new EmptyNote(table_);
    texts_.bind([empty] { empty->tell(text("wb_report_none")); });

    auto* line = new QHBoxLayout;
    line->addWidget(symbol_);
    line->addWidget(summary_, 1);
    line->addWidget(copy_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addLayout(line);
    column->addWidget(table_, 1);
    showSummary();
}

void WriteReportView::setReport(const tracker::WriteReport& report, const QString& typed)
{
    report_ = report;
    typed_ = typed;
    time_ = QDateTime::currentDateTime();
    model_.setReport(report);
    showSummary();
}

void WriteReportView::showSummary()
{
    const bool any = time_.isValid();
    copy_->setVisible(any);
    symbol_->setVisible(any);
    summary_->setVisible(any);
    if (!any)
        return;
    const bool asTyped = report_.accepted && typed_.isEmpty();
    const Mark mark = asTyped ? Mark::right : Mark::advice;
    symbol_->setPixmap(vlk::markPixmap(mark, palette(), vlk::markSize, devicePixelRatioF()));
    summary_->setText(
        QStringLiteral("%1 %2").arg(time_.toString(QStringLiteral("HH:mm:ss")), summary(report_, typed_)));
}

void WriteReportView::retranslate()
{
    texts_.apply();
    model_.retranslate();
    showSummary();
}

void WriteReportView::showDialog(const tracker::WriteReport& report, const QString& typed, QWidget* parent)
{
    auto* dialog = new QDialog(parent);
    dialog->setObjectName(QStringLiteral("dialog_Report"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(plainText("wb_tab_report"));
    auto* view = new WriteReportView(dialog);
    view->setReport(report, typed);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto* column = new QVBoxLayout(dialog);
    column->addWidget(view, 1);
    column->addWidget(buttons);
    // A refusal has no keys to show.
    const bool keys = !report.sameAsBefore();
    view->table_->setVisible(keys);
    resizeWithin(dialog, keys ? QSize(860, 380) : QSize(560, dialog->heightForWidth(560)));
    dialog->open();
}

} // namespace workbench
