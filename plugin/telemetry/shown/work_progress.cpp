#include "telemetry/shown/work_progress.h"

#include "typing/grid.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include <cmath>

namespace vlk {

namespace {

constexpr int kSteps = 1000;
constexpr int kSureMs = 1000; // before that the time that is left is a guess

} // namespace

WorkProgress::WorkProgress(QWidget* parent)
    : QWidget(parent), text_(new QLabel(this)), bar_(new QProgressBar(this)), left_(new QLabel(this)),
      cancel_(new QPushButton(this))
{
    bar_->setRange(0, kSteps);
    bar_->setObjectName(QStringLiteral("progressBar_Work"));
    cancel_->setObjectName(QStringLiteral("pushButton_CancelWork"));
    cancel_->setAutoDefault(false);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(grid::kAroundWindow);
    row->setSpacing(grid::kColumn);
    row->addWidget(text_);
    row->addWidget(bar_, 1);
    row->addWidget(left_);
    row->addWidget(cancel_);
    connect(cancel_, &QPushButton::clicked, this, &WorkProgress::cancelled);
    hide();
}

void WorkProgress::start(const char* what)
{
    what_ = what;
    clock_.start();
    bar_->setValue(0);
    left_->clear();
    retranslate();
    hide();
}

void WorkProgress::setShare(double share)
{
    if (!isRunning())
        return;
    bar_->setValue(static_cast<int>(share * kSteps));
    const qint64 gone = clock_.elapsed();
    setVisible(gone >= kQuietMs);
    if (gone >= kSureMs && share > 0) {
        const double left = static_cast<double>(gone) * (1 - share) / share / 1000;
        left_->setText(tr("rec_071").arg(QLocale().toString(static_cast<int>(std::ceil(left)))));
    }
}

void WorkProgress::end()
{
    what_ = nullptr;
    if (isVisible())
        ended_.start();
    hide();
}

void WorkProgress::retranslate()
{
    text_->setText(what_ ? tr(what_) : QString());
    cancel_->setText(tr("wrd_031"));
}

} // namespace vlk
