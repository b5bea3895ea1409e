#pragma once

// A word that a value can be shown as: the key of a translated text, or a text that is the same in every
// language. The key families tell them apart, so that a table names both alike:
//
//     Word("tmizta_012")        translated at every call, so that a change of language shows at once
//     Word("GPRS (2G)")         stands as it is
//     Word("tmizta_052", " 1")  the translated text and what follows it
//     Word("")                  an empty text; Word() is no word at all

#include <QCoreApplication>
#include <QString>

#include <string_view>

namespace vlk {

class Word
{
public:
    constexpr Word() = default;
    constexpr Word(const char* text, const char* suffix = "")
        : text_(text), suffix_(suffix),
          isKey_(isOf("tmizta_", text) || isOf("wrd_", text) || isOf("abbr_", text))
    {
    }

    constexpr explicit operator bool() const { return text_ != nullptr; }

    // The key, or null where there is none.
    constexpr const char* key() const { return isKey_ ? text_ : nullptr; }

    QString text() const
    {
        QString text = isKey_ ? QCoreApplication::translate("vlk", text_) : QString::fromLatin1(text_);
        if (*suffix_ != '\0')
            text += QLatin1String(suffix_);
        return text;
    }

private:
    static constexpr bool isOf(std::string_view family, std::string_view text)
    {
        return text.starts_with(family);
    }

    const char* text_ = nullptr;
    const char* suffix_ = "";
    bool isKey_ = false;
};

} // namespace vlk
