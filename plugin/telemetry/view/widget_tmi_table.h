#pragma once

// The window of records: stored telemetry, or a period that was just read, as a table whose records are
// filtered, found, copied and exported, and beside it the other views of the same records.

#include "telemetry/shown/shown_records.h"

#include <QDialog>

#include <memory>

class QLabel;
class QPushButton;
namespace vlk {
class ColumnChoice;
class EmptyNote;
class FileOpening;
class FilterField;
class FindBar;
class GrowingRecords;
class NoticeBar;
class RecordsModel;
class RecordsPlaces;
class RecordsTable;
class TableExport;
class WorkProgress;
} // namespace vlk

class VLK_Widget_Tmi_Table : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Widget_Tmi_Table(QWidget* parent = nullptr);

    using QDialog::open;
    // Shows an XML or binary file in place of what was on show; an empty table if it holds no record.
    void open(const QString& path);
    // Shows records that are there already, under that name. Records of a tracker that are still being made
    // grow, in a copy, by those that it sends; asked for again they stay on show as they have grown.
    enum class Growth { None, Live };
    void open(const std::shared_ptr<vlk::TelemetryContents>& contents, const QString& name,
              Growth growth = Growth::None);
    // From its type byte on; takes part where it is newer than all on show, until the growth ends.
    void takeLive(const QByteArray& record, quint32 number);
    // A present state, which came under the number of the latest record.
    void takePresent(const QByteArray& state, quint32 number);
    void endGrowth();
    // Goes to a record that another window shows, where these records are on show.
    void follow(const std::shared_ptr<const vlk::TelemetryContents>& contents, int record);
    void retranslate();

Q_SIGNALS:
    // A record is to be looked at closely; the contents are shared.
    void recordOpened(const std::shared_ptr<const vlk::TelemetryContents>& contents, const QString& name,
                      int record);
    // It is looked at now.
    void recordChosen(const std::shared_ptr<const vlk::TelemetryContents>& contents, int record);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    void append(const QByteArray& record);
    bool stepBack();
    void layOut();
    void addKeys();
    void read();
    void showContents(const std::shared_ptr<vlk::TelemetryContents>& contents);
    void takeColumns();
    void takeContents();
    void takeAdded();
    void takePassing();
    void showTitle();
    void showCount();
    void showSums();
    void showMenu(const QPoint& globalPlace);
    void copy();

    vlk::ShownRecords* shown_;
    vlk::RecordsModel* model_;
    vlk::RecordsTable* table_;
    vlk::ColumnChoice* columns_;
    vlk::FilterField* filter_;
    vlk::FindBar* findBar_;
    vlk::NoticeBar* notices_;
    vlk::RecordsPlaces* places_;
    vlk::WorkProgress* progress_;
    vlk::FileOpening* opening_;
    vlk::TableExport* export_;
    vlk::GrowingRecords* growing_;
    std::shared_ptr<vlk::TelemetryContents> growsFrom_; // what was opened to grow; or null
    std::shared_ptr<vlk::TelemetryContents> grown_;     // the copy of it that does
    vlk::EmptyNote* empty_;
    QPushButton* columnsButton_;
    QPushButton* exportButton_;
    QPushButton* helpButton_;
    QLabel* count_;
    QLabel* work_; // that is left to do of new contents
    QLabel* sums_;
    QString name_;
    QString path_; // of the file that was opened last
};
