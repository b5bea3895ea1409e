#pragma once

// What is about to be written, in words, before it is: how many settings change, are added and removed, each
// with what the tracker holds and what it will hold. Accepted, it may be written.
//
// A key or a click that was meant for the window before counts for nothing.

#include "road/road_report.h"

#include <QDialog>

class QCheckBox;
class QHBoxLayout;
class QPushButton;
class QTableView;
class QVBoxLayout;

namespace workbench {

class Settings;

class ReviewWindow : public QDialog
{
    Q_OBJECT

public:
    ReviewWindow(const WriteReview& review, Settings& settings, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addOrigin(QVBoxLayout* column);
    void addCounts(QVBoxLayout* column);
    void addCount(QHBoxLayout* line, int mark, const QString& text, const char* name);
    void addTable(QVBoxLayout* column);
    void addOwnAlone(QVBoxLayout* column, QTableView* table);
    void addAdvice(QVBoxLayout* column);
    void addButtons(QVBoxLayout* column);

    const WriteReview review_;
    Settings& settings_;
    QWidget* advice_ = nullptr;
    QPushButton* write_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace workbench
