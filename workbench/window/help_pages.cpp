#include "window/help_pages.h"

#include "window/languages.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace workbench {

HelpPages::HelpPages(const QString& folder) : folder_(folder) {}

QString HelpPages::path(const QString& language, const QString& page) const
{
    return QDir(folder_).filePath(language + QLatin1Char('/') + QFileInfo(page).fileName());
}

QStringList HelpPages::names(const QString& language) const
{
    QStringList names =
        QDir(QDir(folder_).filePath(language)).entryList({QStringLiteral("*.html")}, QDir::Files);
    names.move(std::max(names.indexOf(indexPage()), 0), 0);
    return names;
}

bool HelpPages::exists(const QString& language, const QString& page) const
{
    return QFileInfo(path(language, page)).isFile();
}

QString HelpPages::html(const QString& language, const QString& page) const
{
    QFile file(path(language, page));
    if (QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly))
        return QString::fromUtf8(file.readAll());
    return QStringLiteral("<h1>%1</h1><p>%2</p><p><a href=\"%3\">%4</a></p>")
        .arg(text("wb_help_missing_title"),
             text("wb_help_missing").arg(QFileInfo(page).fileName().toHtmlEscaped()), indexPage(),
             text("wb_help_contents"));
}

} // namespace workbench
