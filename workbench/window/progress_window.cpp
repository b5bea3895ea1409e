#include "window/progress_window.h"

#include "check/plugin_names.h"
#include "road/write_road.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/progress_look.h"
#include "window/languages.h"
#include "window/trouble_text.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace workbench {

ProgressWindow::ProgressWindow(WriteRoad& road, QWidget* parent)
    : QDialog(parent), road_(road), what_(new QLabel(this)), bar_(new QProgressBar(this)),
      trouble_(new QLabel(this)), cancel_(new QPushButton(text("wrd_031"), this))
{
    setObjectName(QStringLiteral("dialog_Progress"));
    setWindowTitle(text("wb_progress_title"));
    setWindowModality(Qt::ApplicationModal);
    what_->setObjectName(QStringLiteral("label_Step"));
    what_->setMinimumWidth(fontMetrics().averageCharWidth() * 54);
    bar_->setObjectName(QStringLiteral("progressBar_Write"));
    bar_->setAccessibleName(windowTitle());
    trouble_->setObjectName(QStringLiteral("label_Silence"));
    QPalette amber = trouble_->palette();
    amber.setColor(QPalette::WindowText, markColor(Mark::Advice, amber));
    trouble_->setPalette(amber);
    cancel_->setObjectName(QStringLiteral("pushButton_Cancel"));
    cancel_->setMinimumWidth(80);
    connect(cancel_, &QPushButton::clicked, this, &ProgressWindow::reject);

    auto* line = new QHBoxLayout;
    line->setSpacing(vlk::grid::kColumn);
    line->addWidget(trouble_, 1);
    line->addWidget(cancel_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(vlk::grid::kAroundPage);
    column->setSpacing(vlk::grid::kRow);
    column->addWidget(what_);
    column->addWidget(bar_);
    column->addLayout(line);

    connect(&road_, &WriteRoad::stepChanged, this, &ProgressWindow::showStep);
    connect(&road_, &WriteRoad::progressed, this, [this](qint64 bytes, qint64 all) {
        bar_->setRange(0, static_cast<int>(all));
        bar_->setValue(static_cast<int>(bytes));
        bar_->setFormat(text("wb_progress_bytes").arg(number(bytes), number(all)));
    });
    connect(&road_, &WriteRoad::taken, this, &ProgressWindow::showTaken);
    connect(&road_, &WriteRoad::silent, this, [this](const QDateTime& since) {
        trouble_->setText(text("wb_progress_silent").arg(timeOfDay(since)));
        vlk::showAsSilent(bar_, true);
    });
    connect(&road_, &WriteRoad::heard, this, [this] {
        trouble_->clear();
        vlk::showAsSilent(bar_, false);
    });
    // It comes up on the way.
    showStep(road_.step());
    if (road_.isTaken())
        showTaken();
}

void ProgressWindow::showStep(RoadReport::Step step)
{
    using Step = RoadReport::Step;
    what_->setText(text(step == Step::Reading       ? "wb_progress_reading"
                        : step == Step::ReadingBack ? "wb_progress_back"
                                                    : "wb_progress_writing"));
    bar_->setRange(0, 0);
    bar_->setFormat({});
    if (step == Step::Reading) {
        cancel_->setEnabled(true);
        cancel_->setToolTip({});
    }
}

void ProgressWindow::showTaken()
{
    cancel_->setEnabled(false);
    cancel_->setToolTip(text("wb_progress_late"));
}

void ProgressWindow::reject()
{
    if (!road_.cancel())
        trouble_->setText(text("wb_progress_late"));
}

} // namespace workbench
