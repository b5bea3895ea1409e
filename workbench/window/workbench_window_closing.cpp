// How the main window closes: what it asks before, and what becomes of what is under way.

#include "window/workbench_window.h"

#include "typing/notice_bar.h"
#include "window/faults_at_hand.h"
#include "window/link_notices.h"
#include "window/message_box.h"
#include "window/save_notices.h"
#include "window/trouble_text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QSplitter>

namespace workbench {

void WorkbenchWindow::closeEvent(QCloseEvent* event)
{
    if (!mayClose()) {
        event->ignore();
        return;
    }
    closeWindows();
    event->accept();
}

void WorkbenchWindow::closeWindows()
{
    settings_.setLayout(objectName(), saveGeometry());
    settings_.setLayout(splitter_->objectName(), splitter_->saveState());
    settings_.setLayout(QLatin1String(FaultsWindow::kName), faults_->layout());
    session_.link().send(vlk::Message::CloseWindows);
    // One that stays would keep the program, and with it the folder of data, for nobody.
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != this && window->isVisible())
            window->close();
    }
}

void WorkbenchWindow::endSave()
{
    if (session_.link().runningWork().saving)
        linkNotices_->endSave();
}

void WorkbenchWindow::leave()
{
    // First, so that a box or a dialog that comes up from here on goes at once.
    QCoreApplication::quit();
    connect(saveNotices_.get(), &SaveNotices::partSaved, this,
            [this](const QString& path, const SavedPart& part) {
                settings_.setCutShort(
                    {path, QString::number(part.records), QString::number(part.all), part.until});
            });
    endSave();
    // What became of it comes from the event loop, which has an end now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    closeWindows();
}

void WorkbenchWindow::tellCutShort()
{
    constexpr int kCutShort = 2;
    const QStringList parts = settings_.takeCutShort();
    if (parts.size() < 4)
        return;
    bar_->tell(kCutShort, [path = parts[0],
                           part = SavedPart{parts[1].toLongLong(), parts[2].toLongLong(), parts[3]}] {
        return vlk::Notice{vlk::Mark::Advice, sentences({text("wb_620"), savedPartText(path, part)}), {}};
    });
}

// Asked before anything goes, so that all stays as it is on Cancel.
bool WorkbenchWindow::mayClose()
{
    // It asks over rows that are not saved.
    QWidget* calibration = PluginWindows::calibration();
    if (calibration && !calibration->close())
        return false;
    // Its report would go unseen.
    if (session_.road().isBusy()) {
        tellOpened([] { return text("wb_close_writing"); });
        return false;
    }
    if (session_.link().runningWork().saving &&
        !agrees(text("wb_close_saving"), text("wb_close_verb"), QStringLiteral("messageBox_Close"), this))
        return false;
    // It asks over an export.
    QWidget* records = PluginWindows::records();
    return !records || records->close();
}

} // namespace workbench
