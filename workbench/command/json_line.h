#pragma once

// One object of JSON on a line of its own, its members in the order in which they are added.

#include <QStringList>

namespace workbench::command {

class JsonLine
{
public:
    // A null text is null.
    JsonLine& add(const char* name, const QString& text);
    JsonLine& add(const char* name, const QStringList& texts);
    // Adds JSON as it stands.
    JsonLine& addRaw(const char* name, const QByteArray& json);

    QByteArray object() const { return '{' + members_ + '}'; }
    QByteArray line() const { return object() + '\n'; }

    static QByteArray quoted(const QString& text);

private:
    QByteArray members_;
};

} // namespace workbench::command
