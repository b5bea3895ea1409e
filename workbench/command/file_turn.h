#pragma once

// The turn to change a file. Of several threads and calls of the program that want the same one, under
// whatever name, each reads what the one before has written.

#include <QtGlobal>

class QString;

namespace workbench::command {

class FileTurn
{
public:
    // Waits for the others, but not for ever. What is no plain file needs no turn, and where the system has
    // no locks there is none.
    explicit FileTurn(const QString& name);
    ~FileTurn();
    Q_DISABLE_COPY_MOVE(FileTurn)

    bool has() const { return has_; }

private:
    int file_ = -1;
    bool has_ = true;
};

} // namespace workbench::command
