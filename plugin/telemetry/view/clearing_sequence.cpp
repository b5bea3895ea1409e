#include "telemetry/view/clearing_sequence.h"

#include "link/requests.h"

#include <QCheckBox>

#include <algorithm>

namespace vlk {

bool ClearingSequence::start()
{
    stop();
    next();
    return step_ != kIdle;
}

void ClearingSequence::answered()
{
    if (step_ == kIdle)
        return;
    servers_[step_ - kIdle - 1]->setChecked(false);
    next();
}

unsigned ClearingSequence::awaited() const
{
    unsigned servers = 0;
    for (int server = step_ - kIdle - 1; server >= 0 && server < static_cast<int>(servers_.size()); ++server)
        servers |= unsigned{servers_[server]->isChecked()} << server;
    return servers;
}

void ClearingSequence::forget()
{
    stop();
    for (QCheckBox* server : servers_)
        server->setChecked(false);
}

void ClearingSequence::next()
{
    const auto checked = std::ranges::find_if(servers_.begin() + (step_ - kIdle), servers_.end(),
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
