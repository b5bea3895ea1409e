#include "window/languages.h"

#include "window/installed_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

namespace workbench {

QString Languages::ofSystem()
{
    return QLocale::system().language() == QLocale::Russian ? QStringLiteral("ru") : QStringLiteral("en");
}

Languages::Languages() = default;
Languages::~Languages() = default;

bool Languages::set(const QString& code)
{
    auto texts = std::make_unique<KeyTranslator>();
    if (!texts->load(code, sharedFolder(QStringLiteral("translations"))))
        return false;
    auto dialogs = std::make_unique<QTranslator>();
    const bool hasDialogs = dialogs->load(QStringLiteral("qtbase_") + code,
                                          QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    QLocale::setDefault(QLocale(code));
    current_ = code;
    // The old translators go only when the new ones serve, so that no text falls back to its key between.
    if (hasDialogs)
        QCoreApplication::installTranslator(dialogs.get());
    QCoreApplication::installTranslator(texts.get());
    texts_ = std::move(texts);
    dialogs_ = std::move(dialogs);
    return true;
}

QString Languages::textIn(const QString& code, const char* key)
{
    const auto [texts, isNew] = others_.try_emplace(code);
    if (isNew && isKnown(code))
        texts->second.load(code, sharedFolder(QStringLiteral("translations")));
    return texts->second.translate("", key);
}

QString text(const char* key)
{
    return QCoreApplication::translate("", key);
}

QString plainText(const char* key)
{
    return text(key).remove(QLatin1Char('&'));
}

} // namespace workbench
