#pragma once

// Whole files for tests.

#include <QFile>

// Gives the path. A test without its file is none, so it ends here.
inline QString writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot prepare %s", qPrintable(path));
    return path;
}

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}
