#pragma once

namespace bench {

// In a process that was started to open one dialog: opens it and tells the seconds. Otherwise false.
bool openedAlone();

} // namespace bench
