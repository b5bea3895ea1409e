#pragma once

// What a call asks for, and what it comes to.

#include <QStringList>

#include <functional>

namespace workbench::command {

// What telemetry is converted into.
struct Conversion
{
    QString form;
    QString columns;
    QString from;
    QString to;
    QString where;
    QString tracker;
    bool raw = false;
    bool merge = false;
    bool strict = false;
    bool decimalComma = false;
};

struct Call
{
    QString command;
    QStringList files;
    QStringList settings; // of get and set: a path, or "PATH=VALUE"
    QString preset;
    QString output; // empty: standard output
    bool json = false;
    bool secrets = false;
    bool againstDefaults = false;
    bool changedOnly = false;
    bool dryRun = false;
    bool csv = false;
    Conversion conversion;
    // Options of the command fuel.
    QStringList tables;
    QStringList sensors;
    double rise = 20; // litres
    double fall = 10;
    bool isOneVehicle = false;
};

// The greater one counts.
enum Status { Nothing = 0, Found = 1, Failed = 2 };

// What one file gives. Lines of `told` go to the output, those of `complaints` to standard error; `inTurn`
// runs in the order of the files, one at a time.
struct Outcome
{
    QByteArray told{};
    QByteArray complaints{};
    int status = Nothing;
    std::function<void()> inTurn{};
    bool isPassedOver = false; // it is not what the command is for
};

} // namespace workbench::command
