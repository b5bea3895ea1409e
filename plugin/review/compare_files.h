#pragma once

// The differences of two configuration files on disk, in words.

#include "review/difference_text.h"

#include <functional>

namespace vlk::review {

// What a configuration file holds, empty where it is none. A document that is opened by its path would be
// made where there is none.
QByteArray configurationText(const QString& path);

enum class Comparison { Done, BeforeUnreadable, AfterUnreadable };

struct ComparedFiles
{
    Comparison outcome;
    Configuration after; // as a load takes it
    Differences differences{};
};

// A null path stands for the defaults: what the keys of the other file would read as if they were missing.
ComparedFiles comparedFiles(const QString& before, const QString& after);

// Compares two files in words: `take` gets each difference in turn.
Comparison compareFiles(const QString& before, const QString& after, Secrets secrets,
                        const std::function<void(const Difference&, const DifferenceText&)>& take);

} // namespace vlk::review
