#pragma once

// Reading configuration files, and saying why one cannot be handled.

#include "command/call.h"
#include "command/file_walk.h"

#include <functional>

class QFile;

namespace vlk {
class XmlDocument;
} // namespace vlk

namespace workbench::command {

// Why a file could not be opened, or read to its end.
QString whyUnreadable(const QFile& file);

// What is wrong with bytes that begin as a configuration; empty for a whole one.
QString whyDamaged(const QByteArray& bytes);

Outcome refusal(const Call& call, const QString& name, const QString& reason);

// Opens the file as a configuration and hands it on. What is no configuration is a refusal; below a folder,
// files of other kinds are passed over, and so are presets.
using TakeConfiguration = std::function<Outcome(const QByteArray& text, vlk::XmlDocument& document)>;
Outcome withConfiguration(const Call& call, const File& file, const TakeConfiguration& take);

} // namespace workbench::command
