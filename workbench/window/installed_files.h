#pragma once

// Where the parts of the product lie: beside the executable in a build folder, or in the folders of an
// installation (../lib, ../share).

#include <QString>

namespace workbench {

// A library that a program loads; where it is missing, the place where it should have been.
QString libraryPath(const QString& file);
// That of the plug-in.
QString pluginPath();

// A folder of data such as "help" or "translations"; where it is missing, its place beside the executable.
QString sharedFolder(const QString& name);

} // namespace workbench
