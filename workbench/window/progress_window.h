#pragma once

// A configuration on its way to the tracker: which step, how much of it, since when nothing was heard, and
// Cancel until the tracker has all of it. It comes up when the way takes longer than a moment.

#include "road/road_report.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace workbench {

class WriteRoad;

class ProgressWindow : public QDialog
{
    Q_OBJECT

public:
    ProgressWindow(WriteRoad& road, QWidget* parent);

protected:
    // Esc and the window's cross: as Cancel.
    void reject() override;

private:
    void showStep(RoadReport::Step step);
    void showTaken();

    WriteRoad& road_;
    QLabel* what_;
    QProgressBar* bar_;
    QLabel* trouble_;
    QPushButton* cancel_;
};

} // namespace workbench
