#pragma once

// What can go wrong on the way from the tracker to the plug-in. Any of them may be switched on together.

namespace tracker {

struct Faults
{
    bool silence = false;        // requests are taken, no answer comes
    int delayMs = 0;             // added to the tracker's own answering time
    bool shortAnswers = false;   // byte arrays lose their second half, fixed records have it zeroed
    bool garbledAnswers = false; // every fifth byte is wrong
    bool badBoard = false;       // voltages out of their limits and no fix in the records from now on
    bool noBluetooth = false;    // a tracker without Bluetooth, as it says when it is attached
    bool skipsPage = false;      // takes a written file but for one section that changed
    bool powerLoss = false;      // goes in the middle of taking a written file; clears itself
    bool unplug = false;         // the cable goes while the next answer is under way; clears itself

    bool operator==(const Faults&) const = default;
};

} // namespace tracker
