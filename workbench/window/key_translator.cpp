#include "window/key_translator.h"

namespace vlk {

QString KeyTranslator::translate(const char* /*context*/, const char* key, const char* /*disambiguation*/,
                                 int n) const
{
    return QTranslator::translate(nullptr, key, nullptr, n);
}

} // namespace vlk
