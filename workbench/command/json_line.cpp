#include "command/json_line.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace workbench::command {

QByteArray JsonLine::quoted(const QString& text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

JsonLine& JsonLine::add(const char* name, const QString& text)
{
    return addRaw(name, text.isNull() ? QByteArrayLiteral("null") : quoted(text));
}

JsonLine& JsonLine::add(const char* name, const QStringList& texts)
{
    return addRaw(name, QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact));
}

JsonLine& JsonLine::addRaw(const char* name, const QByteArray& json)
{
    members_ += (members_.isEmpty() ? "" : ",") + quoted(QString::fromUtf8(name)) + ':' + json;
    return *this;
}

} // namespace workbench::command
