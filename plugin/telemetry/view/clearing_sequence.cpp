#include "telemetry/view/clearing_sequence.h"

#include "link/requests.h"

#include <QCheckBox>

#include <algorithm>

namespace vlk {

void ClearingSequence::start()
{
    stop();
    next();
}

void ClearingSequence::answered()
{
    if (step_ == kIdle)
        return;
    servers_[step_ - kIdle - 1]->setChecked(false);
    next();
}

void ClearingSequence::next()
{
    const auto checked = std::find_if(servers_.begin() + (step_ - kIdle), servers_.end(),
                                      [](const QCheckBox* server) { return server->isChecked(); });
    if (checked == servers_.end()) {
        step_ = kIdle;
        return;
    }
    const int server = static_cast<int>(checked - servers_.begin()) + 1;
    step_ = kIdle + server;
    vlk::requests::clearServerData(server);
}

} // namespace vlk
