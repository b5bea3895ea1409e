#include "base/file_name.h"

#include <QRegularExpression>

namespace vlk {

QString asFileName(QString text, const QString& instead)
{
    static const QRegularExpression forbidden(QStringLiteral("[\\\\/:*?\"<>|\\x00-\\x1f]"));
    return text.replace(forbidden, instead);
}

} // namespace vlk
