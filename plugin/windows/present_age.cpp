#include "windows/present_age.h"

#include "base/clock.h"

#include <QLabel>

#include <utility>

namespace vlk {

namespace {
constexpr int kPatienceMs = 3000;
}

PresentAge::PresentAge()
{
    awaited_.setInterval(kPatienceMs);
    for (QTimer* timer : {&due_, &awaited_}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, [this] { setOld(true); });
    }
}

void PresentAge::setPeriod(int periodMs)
{
    due_.stop();
    awaited_.stop();
    isPaused_ = false;
    due_.setInterval(2 * periodMs);
    if (periodMs > 0) {
        due_.start();
        retranslate();
    } else {
        setOld(true);
    }
}

void PresentAge::setPaused(bool isPaused)
{
    isPaused_ = isPaused;
    retranslate();
}

void PresentAge::await(bool isAwaited)
{
    if (!isAwaited)
        awaited_.stop();
    else if (due_.interval() == 0 && !awaited_.isActive())
        awaited_.start();
}

void PresentAge::answered()
{
    awaited_.stop();
    last_ = now().time();
    if (due_.interval() > 0)
        due_.start();
    setOld(false);
}

void PresentAge::letBe()
{
    due_.stop();
    due_.setInterval(0);
    awaited_.stop();
    setOld(false);
}

void PresentAge::clear()
{
    awaited_.stop();
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
    QStringList told;
    if (isOld_)
        told << QObject::tr("cfgt6_451").arg(last_.toString(QStringLiteral("HH:mm:ss")));
    if (isPaused_)
        told << QObject::tr("cfgt6_481");
    since_->setText(told.join(QLatin1String(", ")));
}

} // namespace vlk
