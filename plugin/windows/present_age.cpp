#include "windows/present_age.h"

#include "base/clock.h"

#include <QLabel>

#include <utility>

namespace vlk {

PresentAge::PresentAge()
{
    due_.setSingleShot(true);
    connect(&due_, &QTimer::timeout, this, [this] { setOld(true); });
}

void PresentAge::setPeriod(int periodMs)
{
    due_.stop();
    due_.setInterval(2 * periodMs);
    if (periodMs > 0)
        due_.start();
    else
        setOld(true);
}

void PresentAge::answered()
{
    last_ = now().time();
    if (due_.interval() > 0)
        due_.start();
    setOld(false);
}

void PresentAge::clear()
{
    last_ = {};
    setOld(false);
}

void PresentAge::setOld(bool isOld)
{
    const bool before = std::exchange(isOld_, isOld && last_.isValid());
    retranslate();
    if (isOld_ != before)
        Q_EMIT changed();
}

void PresentAge::retranslate()
{
    since_->setText(isOld_ ? QObject::tr("cfgt6_451").arg(last_.toString(QStringLiteral("HH:mm:ss")))
                           : QString());
}

} // namespace vlk
