#pragma once

// Clears the unsent data of the servers that the user checked, one after the other: the next server's turn
// comes with the answer for the one before it, whose box is unchecked then. A box that is checked behind its
// turn waits for the next start. An answer that nobody waits for does nothing.

#include <array>

class QCheckBox;

namespace vlk {

class ClearingSequence
{
public:
    static constexpr int kIdle = 30; // the steps for the servers follow

    // The boxes of servers 1 to 3.
    explicit ClearingSequence(std::array<QCheckBox*, 3> servers) : servers_(servers) {}

    // False where no server is checked.
    bool start();
    void answered();
    // A bit for each server from that on whose answer is awaited; 0 where none is.
    unsigned awaited() const;
    // Forgets an answer that is still to come.
    void stop() { step_ = kIdle; }
    // Unchecks all: the next tracker may be another one.
    void forget();

private:
    void next();

    std::array<QCheckBox*, 3> servers_;
    int step_ = kIdle;
};

} // namespace vlk
