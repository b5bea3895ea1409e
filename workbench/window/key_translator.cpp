#include "window/key_translator.h"

namespace workbench {

QString KeyTranslator::translate(const char* /*context*/, const char* key, const char* /*disambiguation*/,
                                 int n) const
{
    return QTranslator::translate(nullptr, key, nullptr, n);
}

} // namespace workbench
