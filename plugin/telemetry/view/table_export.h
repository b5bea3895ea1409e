#pragma once

// The export of the window of records: asks what is to go out, in which form and under which name, and tells
// in the window's bar what became of it.

#include "telemetry/view/export_dialog.h"

#include <QObject>

namespace vlk {

class NoticeBar;
class RecordsExport;
class RecordsModel;
class RecordsTable;
class ShownRecords;
class WorkProgress;

class TableExport : public QObject
{
    Q_OBJECT

public:
    // `window`: over which it asks; the parent.
    TableExport(ShownRecords* shown, RecordsModel* model, RecordsTable* table, NoticeBar* notices,
                WorkProgress* progress, QWidget* window);

    // What the records are called: the title of an export, and the name that is proposed for its file.
    void setName(const QString& name) { name_ = name; }
    void ask();
    // Before the window closes: ends an export that is under way, if the user agrees. False where the window
    // is to stay, also since the export ended meanwhile and its bar tells how.
    bool endBeforeClosing();
    // Takes the decimal sign of the language.
    void retranslate();

Q_SIGNALS:
    // All that is on show is in a file now.
    void allKept();

private:
    void start(const QString& path);
    ExportOptions options() const;
    void tellWritten(const QString& path, qint64 withoutPlace);
    void tellFailed(const QString& path, const QString& reason);

    ShownRecords* shown_;
    RecordsModel* model_;
    RecordsTable* table_;
    NoticeBar* notices_;
    RecordsExport* export_;
    QWidget* window_;
    QString name_;
    ExportChoice choice_;
    // What the latest export counted.
    int exported_ = 0; // records
    int leftOut_ = 0;  // damaged ones of those that were to be exported
    bool isFormOfEnding_ = false;
};

} // namespace vlk
