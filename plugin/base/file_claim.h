#pragma once

// Says to other running programs that a file is in use, by a lock file beside it. What a program that was
// killed leaves of that counts no longer.

#include <QLockFile>

namespace vlk {

// For as long as it lives. Nothing where no file may be made.
class FileClaim
{
public:
    explicit FileClaim(const QString& path);

private:
    QLockFile lock_;
};

// By this program or another one.
bool isClaimed(const QString& path);

} // namespace vlk
