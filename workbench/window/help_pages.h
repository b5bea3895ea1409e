#pragma once

// The help pages: help/<language>/<page>, HTML. A page that does not exist is answered with a few friendly
// words that name it.

#include <QStringList>

namespace workbench {

class HelpPages
{
public:
    static QString indexPage() { return QStringLiteral("index.html"); }

    // The folder that holds the folders of the languages.
    explicit HelpPages(const QString& folder);

    // The names of all pages of a language, the contents first.
    QStringList names(const QString& language) const;
    bool exists(const QString& language, const QString& page) const;
    // HTML; of the name only the file name counts.
    QString html(const QString& language, const QString& page) const;

private:
    QString path(const QString& language, const QString& page) const;

    QString folder_;
};

} // namespace workbench
