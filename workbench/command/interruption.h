#pragma once

// Ctrl+C while files are changed: what is begun is finished and told, nothing else is begun, and then the
// program ends as it would have at once. A second Ctrl+C does not wait.

namespace workbench::command {

// From here on; where whoever has started the program wants it to go on, it does.
void awaitInterruption();
bool isInterrupted();
// Once all is told.
void endIfInterrupted();

} // namespace workbench::command
