#pragma once

// What a fuel sensor says while its tank is filled, and whether the level has come to rest.

#include <QString>

#include <optional>

namespace vlk {

struct FuelKind;

class LiveReading
{
public:
    // An index into vlk::kFuelKinds.
    void setKind(int kind);
    // In millivolts or as a code.
    void take(int raw);
    // The sensor says nothing any more.
    void clear();

    QString text() const { return told(latest_); } // as cells hold it; empty for none
    bool isSteady() const { return !before_; }
    // The reading that it comes from, while it is not steady.
    QString before() const { return told(before_); }

private:
    QString told(const std::optional<int>& raw) const;

    const FuelKind* kind_ = nullptr;
    std::optional<int> latest_;
    std::optional<int> before_; // while it differs from the one after it
};

} // namespace vlk
