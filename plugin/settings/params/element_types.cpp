#include "settings/params/element_types.h"

#include <QCoreApplication>

#include <algorithm>

namespace vlk {

const ElementType* elementType(const QString& code)
{
    const auto* found =
        std::find_if(kElementTypes.begin(), kElementTypes.end(),
                     [&](const ElementType& type) { return code == QLatin1String(type.code); });
    return found == kElementTypes.end() ? nullptr : found;
}

QString textOf(const ElementType& type)
{
    return QStringLiteral("%1 %2, %3")
        .arg(QString::number(type.bytes), QCoreApplication::translate("vlk", type.unit),
             QCoreApplication::translate("vlk", type.kind));
}

} // namespace vlk
