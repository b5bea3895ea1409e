#pragma once

// Combo boxes whose items stand for fixed codes of the file: the item shows a translated text, its data is
// the code, so that a file never holds a translated text.

#include <QString>

#include <span>

class QComboBox;

namespace vlk {

struct Choice
{
    const char* code; // what the file holds
    const char* text; // a translation key, or a text that reads the same in every language
    const char* format = "%1";
};

// The text of a choice in the present language.
QString choiceText(const Choice& choice);

// Empties the combo box and fills it with the choices in order, which leaves its first item current.
void fillChoices(QComboBox* box, std::span<const Choice> choices);

// Selects the item of a code. A code without an item selects `fallback`; with an empty fallback the box is
// left with no current item.
void selectChoice(QComboBox* box, const QString& code, const QString& fallback = {});

// Code of the current item, `none` when there is no current item.
QString currentChoice(const QComboBox* box, const QString& none = {});

} // namespace vlk
