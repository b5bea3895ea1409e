#pragma once

// The windows of the write road: the review before a write, its progress, and over the configuration window
// the report of what became of it.

#include "road/road_report.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

class QDialog;

namespace workbench {

class HostSession;
class Settings;

class RoadWindows : public QObject
{
    Q_OBJECT

public:
    RoadWindows(HostSession& session, Settings& settings, QWidget* mainWindow);
    ~RoadWindows() override;

    // The report as a dialog, where the one in the main window would not be seen.
    void showReport(const RoadReport& report);

private:
    void follow(RoadReport::Step step);
    void review(const WriteReview& review);
    void showProgress();
    void hideProgress();

    HostSession& session_;
    Settings& settings_;
    QWidget* mainWindow_;
    QTimer notice_; // until progress is worth a window
    QPointer<QDialog> progress_;
};

} // namespace workbench
