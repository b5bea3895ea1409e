#include "telemetry/view/table_export.h"

#include "link/device.h"
#include "link/requests.h"
#include "telemetry/shown/record_cell.h"
#include "telemetry/shown/records_notices.h"
#include "telemetry/shown/shown_records.h"
#include "telemetry/view/records_export.h"
#include "telemetry/view/records_model.h"
#include "telemetry/view/records_table.h"
#include "typing/file_error.h"
#include "typing/notice_bar.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <numeric>

namespace vlk {

TableExport::TableExport(ShownRecords* shown, RecordsModel* model, RecordsTable* table, NoticeBar* notices,
                         WorkProgress* progress, QWidget* window)
    : QObject(window), shown_(shown), model_(model), table_(table), notices_(notices),
      export_(new RecordsExport(progress)), window_(window)
{
    connect(export_, &RecordsExport::written, this, &TableExport::tellWritten);
    connect(export_, &RecordsExport::failed, this, &TableExport::tellFailed);
    connect(export_, &RecordsExport::cancelled, this, [this] {
        notices_->tell(HandedOverNotice, [] { return Notice{Mark::Advice, tr("rec_097"), {}}; });
    });
}

void TableExport::ask()
{
    const ExportDialog::Counts counts{model_->rowCount(), static_cast<int>(table_->selectedRecords().size()),
                                      shown_->records().size()};
    ExportDialog dialog(choice_, counts, window_);
    if (dialog.exec() != QDialog::Accepted)
        return;
    choice_ = dialog.choice();
    const QString path = ExportDialog::askPath(choice_.form, QFileInfo(name_).completeBaseName(), window_);
    if (!path.isEmpty())
        start(path);
}

bool TableExport::endBeforeClosing()
{
    if (!export_->isRunning())
        return true;
    QMessageBox box(QMessageBox::Question, window_->windowTitle(), tr("rec_490"), QMessageBox::NoButton,
                    window_);
    box.setObjectName(QStringLiteral("messageBox_EndExport"));
    const auto* const end = box.addButton(tr("rec_491"), QMessageBox::AcceptRole);
    auto* const cancel = box.addButton(tr("wrd_031"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() != end || !export_->isRunning())
        return false;
    export_->stop();
    return true;
}

void TableExport::start(const QString& path)
{
    const ExportForm form = formOfEnding(path, choice_.form);
    isFormOfEnding_ = form != choice_.form;
    choice_.form = form;
    notices_->end(HandedOverNotice);
    std::vector<int> records(shown_->records().size());
    if (choice_.what == ExportChoice::Whole)
        std::iota(records.begin(), records.end(), 0);
    else
        records = choice_.what == ExportChoice::Selected ? table_->selectedRecords() : model_->records();
    // As the command line does.
    leftOut_ =
        static_cast<int>(std::erase_if(records, [this](int record) { return model_->isDamaged(record); }));
    exported_ = static_cast<int>(records.size());
    export_->start(path, shown_->contents(), std::move(records), form, options());
}

ExportOptions TableExport::options() const
{
    ExportOptions options;
    options.origin = shown_->contents()->origin;
    if (options.origin.model.isEmpty() && vlkDevice) {
        options.origin.model = vlkDevice->model();
        options.origin.vendor = vlkDevice->vendor();
    }
    options.title = QFileInfo(name_).completeBaseName();
    options.utcOffset = shown_->records().utcOffset();
    options.decimalComma = choice_.decimalComma;
    options.isMarked = true;
    options.eventText = &requests::eventText;
    options.heading = [titles = shown_->titles()](const CsvColumn& column) {
        return headText(column, titles);
    };
    if (!choice_.onlyShownColumns || !rowOf(choice_.form).hasDecimalSign)
        return options;
    for (const int column : table_->shownColumns()) {
        if (const CsvColumn* const known = model_->columnAt(column))
            options.columns.emplace_back(known->item);
    }
    return options;
}

void TableExport::tellWritten(const QString& path, qint64 withoutPlace)
{
    const bool holdsAll = choice_.form == ExportForm::Xml || choice_.form == ExportForm::Tmi;
    if (holdsAll && exported_ == shown_->records().size())
        Q_EMIT allKept();
    notices_->tellNews(HandedOverNotice, [path, withoutPlace, count = exported_ - withoutPlace,
                                          leftOut = leftOut_, form = choice_.form,
                                          isFormOfEnding = isFormOfEnding_] {
        const QString ending = QFileInfo(path).suffix();
        QStringList told{tr("rec_096").arg(QLocale().toString(count), QDir::toNativeSeparators(path))};
        if (isFormOfEnding)
            told << tr("rec_470").arg(tr(rowOf(form).key));
        else if (!ending.isEmpty() &&
                 ending.compare(QLatin1String(rowOf(form).suffix), Qt::CaseInsensitive) != 0)
            told << tr("rec_510").arg(ending, tr(rowOf(form).key));
        if (leftOut > 0)
            told << tr("rec_461").arg(QLocale().toString(leftOut));
        if (withoutPlace > 0)
            told << tr("rec_651").arg(QLocale().toString(withoutPlace));
        if (told.size() > 1) // more sentences behind the name of the file
            told.front() += QLatin1Char('.');
        return Notice{told.size() > 1 ? Mark::Advice : Mark::Right, told.join(QLatin1Char(' ')), {}};
    });
}

void TableExport::tellFailed(const QString& path, const QString& reason)
{
    notices_->tell(HandedOverNotice, [this, path, reason] {
        return Notice{Mark::Invalid,
                      tr("tmiw_187").arg(QDir::toNativeSeparators(path), fileErrorText(reason)),
                      // The button of the window has the letter.
                      {{tr("rec_007").remove(QLatin1Char('&')), [this] { ask(); }}}};
    });
}

void TableExport::retranslate()
{
    choice_.decimalComma = QLocale().decimalPoint() == QLatin1Char(',');
}

} // namespace vlk
