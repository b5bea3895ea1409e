#pragma once

// What a message says, for people: its name and its parameters in words, and the bytes of those parameters
// that are bytes. Reads the parameters where they lie, so it must be asked while the message passes.

#include "check/plugin_names.h"
#include "plugin/host/host_interface.h"

#include <QByteArray>
#include <QString>

namespace workbench {

// The table's row for a number; null for a number that does not go this way.
const MessageInfo* findMessage(Direction direction, quint32 id);

struct MessageText
{
    QString words;    // strings, numbers and records by their fields
    QByteArray bytes; // of a byte parameter, whole
};

// A number that is not in the table shows its two words as they are and reads nothing behind them.
MessageText describeMessage(Direction direction, quint32 id, const void* p1, const void* p2);

// "[3] 01 02 FF"
QString hexText(const QByteArray& bytes);

} // namespace workbench
