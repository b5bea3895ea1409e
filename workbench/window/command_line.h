#pragma once

// The workbench's command line.

#include <QString>
#include <QStringList>

#include <optional>

namespace workbench {

struct CommandLine
{
    std::optional<QString> language;
    std::optional<int> mode;
    // Absolute paths; empty when not given.
    QString open;
    QString tour;
    QString data;

    // Set when the program is to print this and end: help, version (code 0) or what was wrong (code 2).
    QString message;
    std::optional<int> exitCode;

    // The first argument is the program's name. Options of Qt itself, such as -platform, are let pass.
    static CommandLine parse(const QStringList& arguments);
    // The language that parse() would find, so that its messages can be in it.
    static std::optional<QString> languageOf(const QStringList& arguments);
};

} // namespace workbench
