#pragma once

// Shows what the tracker made of the last written configuration: a sentence and a table of keys. The same
// widget stands in the main window and in the dialog that comes up over the configuration window.

#include "tracker/write_report.h"
#include "window/key_texts.h"
#include "window/write_report_model.h"

#include <QDateTime>
#include <QWidget>

class QLabel;
class QTableView;
class QToolButton;

namespace workbench {

class WriteReportView : public QWidget
{
    Q_OBJECT

public:
    explicit WriteReportView(QWidget* parent = nullptr);

    // With what became of numbers that were still being typed, or nothing.
    void setReport(const tracker::WriteReport& report, const QString& typed);
    void retranslate();

    // The view in a dialog of its own that deletes itself when it is closed.
    static void showDialog(const tracker::WriteReport& report, const QString& typed, QWidget* parent);

private:
    void showSummary();

    WriteReportModel model_;
    KeyTexts texts_;
    tracker::WriteReport report_;
    QString typed_;
    QDateTime time_;
    QLabel* symbol_;
    QLabel* summary_;
    QToolButton* copy_;
    QTableView* table_;
};

} // namespace workbench
