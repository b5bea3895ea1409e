#include "base/save_log.h"

namespace vlk {

Q_LOGGING_CATEGORY(lcSave, "vlk.save")
Q_LOGGING_CATEGORY(lcCut, "vlk.save.volumes")

} // namespace vlk
