#pragma once

// Where the parts of the product lie: beside the executable in a build folder, or in the folders of an
// installation (../lib, ../share).

#include <QString>

namespace workbench {

// The plug-in library; where it is missing, the place where it should have been.
QString pluginPath();

// A folder of data such as "help" or "translations"; where it is missing, its place beside the executable.
QString sharedFolder(const QString& name);

} // namespace workbench
