#pragma once

// The command line of r7106.

#include "command/call.h"

#include <QByteArrayList>

#include <optional>

namespace workbench::command {

struct Arguments
{
    Call call;
    // Set when the program is to print this and end: help (status nothing) or what was wrong (failed).
    std::optional<Status> end;
    QByteArray message;
};

// The first argument is the program's name. Texts are in the language on show.
Arguments readArguments(const QByteArrayList& arguments);

// What `--language` asks for, before the rest is read; empty where it does not.
QString languageOf(const QByteArrayList& arguments);

} // namespace workbench::command
