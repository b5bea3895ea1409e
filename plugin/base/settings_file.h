#pragma once

// Where windows keep what they remember of their looks: in a folder of its own within the host's folder of
// files, so that it stands among none of the user's. Empty where the host has no folder: none is made for
// this.

#include <QString>

namespace vlk {

QString settingsFile(const QString& folder, const char* name);

} // namespace vlk
