#pragma once

// The telemetry window as the steps of a tour drive it.

#include "window/tour.h"

namespace workbench::live {

void open(Tour& tour);
void close(Tour& tour);

QWidget* window();
// The number of the record on show.
QString number();
// The text of a label in the form on show, or beside it; the forms share names.
QString textOf(const char* label);
// Object name of the content form on show: "page_Zeta3" and so on.
QString page();

// Asks for a record and waits until one with another number, or on another form, is there.
void ask(Tour& tour, const char* button);
// The row of functions at the bottom.
void showFunctions();

} // namespace workbench::live
