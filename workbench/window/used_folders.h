#pragma once

// The folders of telemetry and configurations that a run uses: those that were chosen, the workbench's own
// where none was, and for this run alone where the chosen one cannot be written.

#include "window/sentence.h"

#include <vector>

namespace workbench {

class DataFolder;
class PluginLink;
class Settings;

// Hands them to the plug-in. A sentence for each that was chosen in vain.
std::vector<Sentence> useFolders(Settings& settings, const DataFolder& own, PluginLink& link);

} // namespace workbench
