#pragma once

// A configuration with some settings of another one, whatever they mean.

#include <QByteArray>
#include <QStringList>

namespace workbench {

// The document in which the keys of these paths are as in the other one: set, added with the elements above
// them, or taken away. Empty when one of the two cannot be read.
QByteArray withChosen(const QByteArray& document, const QByteArray& other, const QStringList& paths);

} // namespace workbench
