#pragma once

// The text of a translation key: in the language on show, or in another one for a while. A library has no
// translations of its own; whoever has those of another language wraps them in a function.

#include <QString>

#include <functional>

namespace vlk {

// Gives the text of a key, or the key where it has none.
using TextSource = std::function<QString(const char* key)>;

// While it lives, the texts of this thread come from there.
class TextsFrom
{
public:
    explicit TextsFrom(const TextSource& source);
    explicit TextsFrom(TextSource&& source) = delete; // it has to stay
    ~TextsFrom();
    Q_DISABLE_COPY_MOVE(TextsFrom)

private:
    const TextSource* const before_;
};

// Empty for no key.
QString translated(const char* key);

} // namespace vlk
