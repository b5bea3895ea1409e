#include "road/secret_file.h"

#include "base/whole_file.h"

namespace workbench {

bool saveSecret(const QString& path, const QByteArray& content, QString* reason)
{
    QSaveFile file(path);
    return vlk::saveWhole(
        file,
        [&](QIODevice& device) {
            file.setPermissions(kOwnerOnly);
            return device.write(content) == content.size();
        },
        reason);
}

} // namespace workbench
