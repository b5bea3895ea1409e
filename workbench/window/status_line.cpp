#include "window/status_line.h"

#include "window/languages.h"

#include <QLabel>
#include <QStatusBar>

StatusLine::StatusLine(QStatusBar* bar) : QObject(bar), label_(new QLabel(bar))
{
    label_->setObjectName(QStringLiteral("label_Status"));
    // A long sentence must not widen the window; the tool tip holds the whole of it.
    label_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label_->setTextFormat(Qt::PlainText);
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    bar->setSizeGripEnabled(false);
    bar->addWidget(label_, 1);
    retranslate();
}

void StatusLine::tell(Topic topic, const std::function<QString()>& text)
{
    clear(topic);
    held_.push_back({topic, text});
    retranslate();
}

void StatusLine::clear(Topic topic)
{
    std::erase_if(held_, [topic](const Held& held) { return held.topic == topic; });
    retranslate();
}

void StatusLine::retranslate()
{
    const QString text = held_.empty() ? vlk::text("wb_ready") : held_.back().text();
    label_->setText(QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    label_->setToolTip(held_.empty() ? QString() : text);
}
