#include "base/save_log.h"

namespace vlk {

Q_LOGGING_CATEGORY(lcSave, "vlk.save")

} // namespace vlk
