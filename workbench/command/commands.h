#pragma once

// The commands. Each writes to the output and gives its status.

#include "command/call.h"

namespace workbench::command {

class Output;

int check(const Call& call, Output& output);
int diff(const Call& call, Output& output);
int compare(const Call& call, Output& output);
int get(const Call& call, Output& output);
int set(const Call& call, Output& output);
int apply(const Call& call, Output& output);
int info(const Call& call, Output& output);
int convert(const Call& call, Output& output);
int fuel(const Call& call, Output& output);

// The report of the one file as HTML; null with a status where there is none.
QString reportHtml(const Call& call, int* status);

} // namespace workbench::command
