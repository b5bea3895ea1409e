#include "telemetry/view/automatic_requests.h"

#include "link/device.h"
#include "link/requests.h"
#include "windows/present_age.h"

#include <chrono>

namespace vlk {

namespace {
constexpr int kRecordsBeforeWaitStep = 5;
}

AutomaticRequests::AutomaticRequests(PresentAge& age, QObject* parent) : QObject(parent), age_(age)
{
    autoTimer_.setSingleShot(true);
    connect(&autoTimer_, &QTimer::timeout, this, &AutomaticRequests::timeout);
}

void AutomaticRequests::start(int seconds)
{
    autoCount_ = 1;
    expectIn(seconds);
    wait(seconds);
    vlk::requests::currentRecord();
}

void AutomaticRequests::next(int seconds)
{
    const bool production = vlkDevice && vlkDevice->isProduction();
    const bool waitStep = production && autoCount_ == kRecordsBeforeWaitStep;
    if (production)
        autoCount_ = waitStep ? 1 : autoCount_ + 1;
    // A wait step brings no record.
    if (waitStep || seconds != seconds_)
        expectIn(seconds);
    wait(seconds);
    if (waitStep)
        vlk::requests::waitStepEnd();
    else
        vlk::requests::currentRecord();
}

// What is on show then is a record like any other, with a time of its own.
void AutomaticRequests::stop()
{
    autoTimer_.stop();
    age_.letBe();
}

void AutomaticRequests::expectIn(int seconds)
{
    seconds_ = seconds;
    age_.setPeriod(seconds * 1000);
}

void AutomaticRequests::wait(int seconds)
{
    autoTimer_.start(std::chrono::seconds(seconds));
}

} // namespace vlk
