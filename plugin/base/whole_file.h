#pragma once

// Files that are saved whole or not at all: what was there before stays until the new one is complete.

#include <QSaveFile>

namespace vlk {

// `write` puts the content into the file and says whether it could. On failure the file tells the error.
template <class Write>
bool saveWhole(QSaveFile& file, Write write)
{
    // The commit alone does not notice that the last buffer went out in part; the flush does.
    return file.open(QIODevice::WriteOnly) && write(file) && file.flush() && file.commit();
}

inline bool saveWhole(QSaveFile& file, const QByteArray& content)
{
    return saveWhole(file, [&content](QIODevice& device) { return device.write(content) == content.size(); });
}

} // namespace vlk
