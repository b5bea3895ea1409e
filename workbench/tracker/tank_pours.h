#pragma once

// What a user has poured into the tanks and drained from them, in a file of the store's folder. A tank into
// which nobody has poured is not known here: it holds what the drive leaves in it.

#include "tracker/tank.h"

#include <QString>

#include <optional>
#include <vector>

namespace tracker {

// A value a tank, none for the tanks that nobody has touched by then.
using TankValues = std::array<std::optional<double>, kTanks.size()>;

class TankPours
{
public:
    explicit TankPours(const QString& folder);

    // From this second on the tank holds so many litres.
    void set(std::size_t tank, qint64 time, double before, double after);

    TankValues litresAt(qint64 time) const;
    // How high the fuel seems to stand, from 0 to 1: sensors follow it within some seconds, and with noise.
    TankValues heightsAt(qint64 time) const;

private:
    struct Pour
    {
        qint64 time;
        std::size_t tank;
        double before; // litres
        double after;
    };

    void load();
    void save() const;

    QString file_;
    std::vector<Pour> pours_; // by time
};

} // namespace tracker
