#pragma once

// A text in a line edit.

#include "settings/kinds/row.h"

namespace vlk {

// A text of the file, or one that follows the language or the host: `format` with the translation of `key`,
// or with the model as the host calls it, for its %1.
struct DefaultText
{
    const char* format = "";
    const char* key = nullptr;
    bool namesModel = false;
};

struct Text : ShownOf<Text>
{
    DefaultText load{};
    const char* reset = nullptr;
    const char* pattern = nullptr; // what can be typed
    const char* mask = nullptr;    // form of the text, for line edits with a mask
    // What the text should look like, and the translation key of what is wrong with it otherwise. Another one
    // is taken and saved as it is, and marked in the widget.
    const char* expectedPattern = nullptr;
    const char* unexpectedKey = nullptr;
    std::int16_t maxLength = 0; // characters; 0: no limit

    constexpr Text resetTo(const char* text) const { return resetting(text); }
    constexpr Text upTo(std::int16_t characters) const { return with(&Text::maxLength, characters); }
    constexpr Text typed(const char* expression) const { return with(&Text::pattern, expression); }
    constexpr Text expected(const char* expression, const char* complaint) const
    {
        return with(&Text::expectedPattern, expression).with(&Text::unexpectedKey, complaint);
    }
    constexpr Text masked(const char* form) const { return with(&Text::mask, form); }
    constexpr Text atSave(OnSave policy) const { return with(&Text::onSave, policy); }
    // In the line of a tree that the row's number tells.
    constexpr Text inCell(const char* tree, std::uint8_t number) const
    {
        return in(tree).with(&Text::column, number);
    }
    // A password or what else is not for every eye.
    constexpr Text secretly() const { return with(&Text::secret, true); }
};

constexpr Text text(const char* key, DefaultText loadDefault)
{
    return keyed<Text>(key, loadDefault);
}

constexpr Text text(const char* key, const char* loadDefault)
{
    return text(key, DefaultText{loadDefault});
}

QString fileText(const Text& row, const DefaultText& text);
Normalised normalised(const Text& row, const Reading& reading);
// Of an address without a digit nothing is told, although its signs stand in the file.
QString toldText(const Text& row, const QString& value, const char* unit);

} // namespace vlk
