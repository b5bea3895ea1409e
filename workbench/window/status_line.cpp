#include "window/status_line.h"

#include "typing/grid.h"
#include "window/languages.h"

#include <QLabel>
#include <QPainter>
#include <QStatusBar>
#include <QStyle>

namespace workbench {

namespace {

// Shows as much of its text as there is room for, and never widens the window.
class ElidedLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        style()->drawItemText(
            &painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()), foregroundRole());
    }
};

} // namespace

StatusLine::StatusLine(QStatusBar* bar, const Sentence& lasting)
    : QObject(bar), lasting_(lasting), time_(new QLabel(bar)), label_(new ElidedLabel(bar)),
      lastingLabel_(new QLabel(bar))
{
    time_->setObjectName(QStringLiteral("label_StatusTime"));
    lastingLabel_->setObjectName(QStringLiteral("label_StatusLasting"));
    label_->setObjectName(QStringLiteral("label_Status"));
    label_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label_->setTextFormat(Qt::PlainText);
    bar->setSizeGripEnabled(false);
    // As far from the edges as the words of the window above.
    bar->setContentsMargins(vlk::grid::kWindow, 0, vlk::grid::kWindow, 0);
    bar->addWidget(time_);
    bar->addWidget(label_, 1);
    bar->addPermanentWidget(lastingLabel_);
}

void StatusLine::tell(Topic topic, const Sentence& text)
{
    clear(topic);
    held_.push_back({topic, text, QTime::currentTime()});
    refresh();
}

void StatusLine::clear(Topic topic)
{
    std::erase_if(held_, [topic](const Held& held) { return held.topic == topic; });
    refresh();
}

void StatusLine::refresh()
{
    time_->setHidden(held_.empty());
    if (!held_.empty())
        time_->setText(held_.back().time.toString(QStringLiteral("HH:mm:ss")));
    lastingLabel_->setText(lasting_());
    const QString text = held_.empty() ? workbench::text("wb_ready") : held_.back().text();
    label_->setText(QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    label_->setToolTip(held_.empty() ? QString() : text);
}

} // namespace workbench
