#pragma once

// The languages of the product and the one in use. Setting one installs its texts by key and the texts of
// Qt's own dialogs, and thereby sends every widget a LanguageChange event.

#include "window/key_translator.h"

#include <QStringList>
#include <QTranslator>

#include <map>
#include <memory>

namespace workbench {

class Languages
{
public:
    static QStringList codes() { return {QStringLiteral("ru"), QStringLiteral("en")}; }
    static bool isKnown(const QString& code) { return codes().contains(code); }
    // Russian on a Russian system, else English.
    static QString ofSystem();

    Languages();
    ~Languages();
    Languages(const Languages&) = delete;
    Languages& operator=(const Languages&) = delete;

    QString current() const { return current_; }
    // False when the texts of that language are missing; then nothing changes.
    bool set(const QString& code);
    // The text of a key in any language, also one that is not in use; null where it has none.
    QString textIn(const QString& code, const char* key);

private:
    std::unique_ptr<KeyTranslator> texts_;
    std::unique_ptr<QTranslator> dialogs_;
    QString current_;
    std::map<QString, KeyTranslator> others_; // made when they are asked for
};

// The text of a key in the language in use.
QString text(const char* key);
// The text without the sign of a mnemonic, for where there is none.
QString plainText(const char* key);

} // namespace workbench
