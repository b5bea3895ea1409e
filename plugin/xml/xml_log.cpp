#include "xml/xml_log.h"

namespace vlk {

Q_LOGGING_CATEGORY(lcXml, "vlk.xml")

} // namespace vlk
