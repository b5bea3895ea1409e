#include "window/road_windows.h"

#include "window/active_windows.h"
#include "window/host_session.h"
#include "window/message_box.h"
#include "window/progress_window.h"
#include "window/review_window.h"
#include "window/settings.h"
#include "window/write_report_view.h"

namespace workbench {

namespace {

constexpr int kNoticeMs = 200;

} // namespace

RoadWindows::RoadWindows(HostSession& session, Settings& settings, QWidget* mainWindow)
    : QObject(mainWindow), session_(session), settings_(settings), mainWindow_(mainWindow)
{
    notice_.setSingleShot(true);
    notice_.setInterval(kNoticeMs);
    connect(&notice_, &QTimer::timeout, this, &RoadWindows::showProgress);
    connect(&session_.road(), &WriteRoad::stepChanged, this, &RoadWindows::follow);
    connect(&session_.road(), &WriteRoad::reviewReady, this, &RoadWindows::review);
    connect(&session_.road(), &WriteRoad::ended, this, &RoadWindows::hideProgress);
}

// The window that it lies over may outlive the road that it would cancel.
RoadWindows::~RoadWindows()
{
    delete progress_;
}

void RoadWindows::follow(RoadReport::Step step)
{
    if (step == RoadReport::Step::Review) {
        hideProgress();
    } else if (!progress_ && !notice_.isActive()) {
        notice_.start();
    }
}

// Its own button may be what ends it.
void RoadWindows::hideProgress()
{
    notice_.stop();
    if (!progress_)
        return;
    progress_->hide();
    progress_->deleteLater();
    progress_.clear();
}

void RoadWindows::showProgress()
{
    if (!session_.road().isBusy())
        return;
    progress_ = new ProgressWindow(session_.road(), windowInFront(mainWindow_));
    progress_->show();
}

void RoadWindows::review(const WriteReview& review)
{
    WriteRoad* road = &session_.road();
    if (!settings_.reviewAlways() && !review.isAlwaysAsked()) {
        road->approve();
        return;
    }
    auto* window = new ReviewWindow(review, settings_, windowInFront(mainWindow_));
    connect(window, &QDialog::accepted, road, &WriteRoad::approve);
    connect(window, &QDialog::rejected, road, &WriteRoad::cancel);
    // The window below may take it away. One that was answered may go after the next one has come.
    const auto taken = connect(window, &QObject::destroyed, road, [road] {
        if (road->isInReview())
            road->cancel();
    });
    connect(window, &QDialog::finished, road, [taken] { disconnect(taken); });
    if (QWidget* below = window->parentWidget())
        connect(window, &QDialog::finished, below, &QWidget::activateWindow);
    window->open();
}

void RoadWindows::showReport(const RoadReport& report)
{
    QWidget* front = windowInFront(mainWindow_);
    if (front != mainWindow_)
        WriteReportView::showDialog(session_, report, front);
}

} // namespace workbench
