#pragma once

// A configuration of all settings and the text of its file, for whoever carries one on as bytes.

#include "document/configuration.h"

#include <QByteArray>

namespace vlk {

// What a load makes of a document; of one that could not be read a new configuration.
Configuration configurationIn(const QByteArray& document);
// What a save writes.
QByteArray documentOf(const Configuration& configuration);

} // namespace vlk
