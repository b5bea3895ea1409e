#pragma once

// Stored telemetry as a table: a row a record, a column a value, sorted by a click on a heading.

#include <QDialog>

class QTableView;
namespace vlk {
class EmptyNote;
class NoticeBar;
class RecordsModel;
} // namespace vlk

class VLK_Widget_Tmi_Table : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Widget_Tmi_Table(QWidget* parent = nullptr);

    using QDialog::open;
    // Shows an XML or binary file in place of what was on show; an empty table if it holds no record.
    void open(const QString& path);
    void retranslate();

private:
    void showTitle();
    void showRecord(int record);
    void fitColumns();

    vlk::NoticeBar* damageNotice_;
    vlk::RecordsModel* model_;
    QTableView* table_;
    vlk::EmptyNote* empty_ = nullptr;
    QString fileName_;
};
