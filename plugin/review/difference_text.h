#pragma once

// Differences as a person reads them.

#include "review/differences.h"
#include "review/setting_words.h"

namespace vlk::review {

enum class Secrets { Masked, Shown };

struct DifferenceText : SettingWords
{
    // As a file holds them, null where the side lacks the key, and in words and units. Of a setting of many
    // parts (the fields of a record, events) the words tell those that differ.
    QString before;
    QString after;
    QString beforeText;
    QString afterText;
    QString note; // what the load did, or which side lacks the key; empty for a plain edit
};

// `values`: those of the difference's table, which know the units of now.
DifferenceText textOf(const Differences& differences, const Difference& difference, const Values& values,
                      Secrets secrets = Secrets::Masked);
// The key of its note, null where there is none.
const char* noteKey(const Difference& difference);
// The text of a difference whose key is -1.
DifferenceText textOf(const Difference& difference, Secrets secrets = Secrets::Masked);

// What a side holds, beside what others do: of a setting of many parts those that differ from any of them.
QString textBeside(const Setting& setting, const Held& held, const std::vector<Held>& others,
                   const char* unit);

// One line a difference below a heading, which names the sides as they are given; separated by semicolons,
// quoted where it has to be.
QString toCsv(const std::vector<DifferenceText>& texts, const QString& before, const QString& after);

} // namespace vlk::review
