#pragma once

// The text of a translation key in the present language.

#include <QCoreApplication>

namespace vlk {

// Empty for no key.
inline QString translated(const char* key)
{
    return key && *key ? QCoreApplication::translate("vlk", key) : QString();
}

} // namespace vlk
