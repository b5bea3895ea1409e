#pragma once

// How a list goes to others: "Copy", and "CSV…", which asks for a file.

#include <QWidget>

#include <functional>

class QPushButton;
class QTableView;

namespace vlk {

class HandOver;

class ListButtons : public QWidget
{
    Q_OBJECT

public:
    // The buttons are called "pushButton_Copy" and "pushButton_Save" with the name behind it.
    ListButtons(const char* name, HandOver* handOver, QWidget* parent);

    // `csv`: with a heading, as a spreadsheet takes it.
    void setList(const QTableView* table, std::function<QString()> csv);
    // What a file is called by: the records and the list.
    void setTitle(const QString& title) { title_ = title; }
    // `list`: what it is called, as translated.
    void retranslate(const QString& list);
    // There is nothing to give of a list without lines.
    void refresh();

private:
    void copy() const;
    void save();

    HandOver* handOver_;
    QPushButton* copy_;
    QPushButton* save_;
    const QTableView* table_ = nullptr;
    std::function<QString()> csv_;
    QString title_;
    QString list_;
};

} // namespace vlk
