#pragma once

// What the user reads, as it stands in the sources: the texts of both languages and the help pages.

#include <QDir>
#include <QDomDocument>
#include <QMap>

using Texts = QMap<QString, QString>; // key or page, text

inline const QStringList kLanguages = {QStringLiteral("ru"), QStringLiteral("en")};

// The texts of a language by key. A key that stands twice goes to `repeated`; a file that cannot be read
// gives none.
inline Texts readTexts(const QString& language, QStringList* repeated = nullptr)
{
    QFile file(QStringLiteral(VLK_SOURCE "/translations/%1.ts").arg(language));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return {};
    Texts texts;
    const QDomNodeList messages = document.elementsByTagName(QStringLiteral("message"));
    for (int i = 0; i < messages.size(); ++i) {
        const QDomElement message = messages.at(i).toElement();
        const QString id = message.attribute(QStringLiteral("id"));
        if (repeated && texts.contains(id))
            *repeated << QStringLiteral("%1 in %2").arg(id, language);
        texts[id] = message.firstChildElement(QStringLiteral("translation")).text();
    }
    return texts;
}

// The help pages of a language by file name, with their mark-up.
inline Texts readHelp(const QString& language)
{
    Texts pages;
    const QDir folder(QStringLiteral(VLK_SOURCE "/help/%1").arg(language));
    for (const QString& name : folder.entryList({QStringLiteral("*.html")}, QDir::Files)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            pages[name] = QString::fromUtf8(file.readAll());
    }
    return pages;
}
