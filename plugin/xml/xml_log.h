#pragma once

// Where the document layer tells of files that it could not read or write; its callers are told nothing.

#include <QLoggingCategory>

namespace vlk {

Q_DECLARE_LOGGING_CATEGORY(lcXml)

} // namespace vlk
