#pragma once

namespace bench {

// In a process that was started to open one dialog: opens it and tells its time or its memory. Otherwise
// false.
bool openedAlone();

} // namespace bench
