#pragma once

// A word that a value can be shown as: the key of a translated text, or a text that is the same in every
// language. The key families tell them apart, so that a table names both alike:
//
//     Word("tmizta_012")        translated at every call, so that a change of language shows at once
//     Word("GPRS (2G)")         stands as it is; ASCII only
//     Word("tmizta_052", " 1")  the translated text and what follows it
//     Word("")                  an empty text; Word() is no word at all

#include "base/translated.h"

#include <string_view>

namespace vlk {

class Word
{
public:
    constexpr Word() = default;
    constexpr Word(const char* text, const char* suffix = "")
        : text_(text), suffix_(suffix), keyNumber_(keyNumberOf(text))
    {
    }

    constexpr explicit operator bool() const { return text_.data() != nullptr; }

    // Which of the kKeyNumbers keys that there can be, for tables of translated texts; -1 for what is no key.
    static constexpr int kKeyNumbers = 3000;
    constexpr int keyNumber() const { return keyNumber_; }

    // The key, or the text that stands as it is.
    constexpr std::string_view source() const { return text_; }
    constexpr std::string_view suffix() const { return suffix_; }

    // Without the suffix.
    QString translated() const { return keyNumber_ >= 0 ? vlk::translated(text_.data()) : latin1(text_); }

    QString text() const { return suffix_.empty() ? translated() : translated() + latin1(suffix_); }

private:
    static constexpr int keyNumberOf(std::string_view text)
    {
        int first = 0;
        for (const std::string_view family : {"tmizta_", "wrd_", "abbr_"}) {
            if (text.starts_with(family)) {
                text.remove_prefix(family.size());
                if (text.size() != 3)
                    throw "a key has three digits";
                return first + 100 * (text[0] - '0') + 10 * (text[1] - '0') + (text[2] - '0');
            }
            first += kKeyNumbers / 3;
        }
        return -1;
    }

    static QLatin1String latin1(std::string_view text)
    {
        return QLatin1String(text.data(), static_cast<int>(text.size()));
    }

    std::string_view text_;
    std::string_view suffix_;
    int keyNumber_ = -1;
};

} // namespace vlk
