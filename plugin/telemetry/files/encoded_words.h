#pragma once

// The words of an export as the bytes of its encoding. Each is looked up and encoded once, when it is first
// needed; a change of language after that does not show.

#include "telemetry/text/word.h"

#include <array>

namespace vlk {

// Gives the bytes of a text.
using TextEncoder = QByteArray (*)(const QString& text);

class EncodedWords
{
public:
    explicit EncodedWords(TextEncoder encode) : encode_(encode) {}

    // Without the suffix. Stays as long as this object.
    std::string_view of(const Word& word)
    {
        if (word.keyNumber() < 0)
            return word.source();
        QByteArray& text = texts_[word.keyNumber()];
        if (text.isNull()) {
            text = encode_(word.translated());
            if (text.isEmpty())
                text = ""; // not null any more
        }
        return {text.constData(), static_cast<std::size_t>(text.size())};
    }

private:
    TextEncoder encode_;
    // By the number of the key; null while it was not needed.
    std::array<QByteArray, Word::kKeyNumbers> texts_;
};

} // namespace vlk
