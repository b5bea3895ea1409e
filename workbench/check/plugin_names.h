#pragma once

// Names of the plug-in's boundary and of the widgets that plug-in and workbench share stand in the namespace
// vlk; the workbench's own do not.

namespace vlk {
}

namespace workbench {

using namespace vlk;

} // namespace workbench
