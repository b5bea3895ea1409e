#include "tracker/event_code.h"

#include <QCoreApplication>

namespace tracker {

namespace {

QString translated(const QByteArray& key)
{
    return QCoreApplication::translate("tracker", key.constData());
}

} // namespace

QByteArray eventKey(quint16 code)
{
    return "wb_event_" + QByteArray::number(code).rightJustified(3, '0');
}

QString eventText(quint16 code)
{
    const QByteArray key = eventKey(code);
    QString text = translated(key);
    if (text != QLatin1String(key))
        return text;
    return QStringLiteral("%1 %2").arg(translated("wb_event_unknown")).arg(code);
}

} // namespace tracker
