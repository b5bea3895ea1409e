#include "absent/params/user_param.h"

#include <QStringList>

namespace vlk {

QString UserParam::display() const
{
    return QStringList({code, name, third}).mid(0, third.isEmpty() ? 2 : 3).join(QLatin1String(", "));
}

} // namespace vlk
