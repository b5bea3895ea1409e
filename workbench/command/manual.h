#pragma once

// The command line as other programs want it, out of the parser's own tree: the manual page and what bash
// completes. Installed with the program; made by `r7106 --print`.

#include <string>

namespace CLI {
class App;
} // namespace CLI

namespace workbench::command {

// For `man`, in the language on show.
std::string manualPage(const CLI::App& app);
// For `complete`: commands, options, and the words of options that take one of a few; else names of files.
std::string bashCompletion(const CLI::App& app);

} // namespace workbench::command
