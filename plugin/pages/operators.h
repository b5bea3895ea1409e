#pragma once

// The mobile operators that the windows know: whose access data a preset of the operator lists fills in, and
// which rows the table of access points starts with. The data are those that the operators publish.

#include <array>
#include <cstddef>

class QString;
class QStringList;

namespace vlk {

struct MobileOperator
{
    const char* code;   // mobile country code and network code; empty: no row in the table of access points
    const char* preset; // text or translation key in the operator lists; empty: no preset
    const char* apn;
    const char* login;
    const char* password;
};

// Items of an operator list: the presets, then the choice by the SIM's network, then data of one's own.
inline constexpr int kOperatorPresets = 5;
inline constexpr int kAutomaticOperator = kOperatorPresets;
inline constexpr int kOtherOperator = kAutomaticOperator + 1;

inline constexpr int kApnRows = 10;

// Row 0 to 9 of the table of access points as it comes from the factory.
const MobileOperator& defaultApnRow(int row);

// The texts of an operator list's items in the present language.
QStringList operatorLabels();

// Preset behind an item of an operator list, null for the last two.
const MobileOperator* operatorPreset(int item);

// Item of the first preset with these three texts, -1 when there is none.
int presetWith(const QString& apn, const QString& login, const QString& password);

} // namespace vlk
