#include "telemetry/view/automatic_requests.h"

#include "link/device.h"
#include "link/requests.h"

#include <chrono>

namespace vlk {

namespace {
constexpr int kRecordsBeforeWaitStep = 5;
}

AutomaticRequests::AutomaticRequests(QObject* parent) : QObject(parent)
{
    autoTimer_.setSingleShot(true);
    connect(&autoTimer_, &QTimer::timeout, this, &AutomaticRequests::timeout);
}

void AutomaticRequests::start(int seconds)
{
    autoCount_ = 1;
    wait(seconds);
    vlk::requests::currentRecord();
}

void AutomaticRequests::next(int seconds)
{
    const bool production = vlkDevice != nullptr && vlkDevice->isProduction();
    const bool waitStep = production && autoCount_ == kRecordsBeforeWaitStep;
    if (production)
        autoCount_ = waitStep ? 1 : autoCount_ + 1;
    wait(seconds);
    if (waitStep)
        vlk::requests::waitStepEnd();
    else
        vlk::requests::currentRecord();
}

void AutomaticRequests::wait(int seconds)
{
    autoTimer_.start(std::chrono::seconds(seconds));
}

} // namespace vlk
