#pragma once

// A preset: chosen settings in a configuration document of their own, whose root says creator="preset". To
// apply one is to take over what a configuration would be with its keys; what does not fit is told and left
// out.

#include "review/difference_text.h"
#include "review/take_over.h"

#include <optional>

namespace vlk::review {

// What belongs to one tracker or vehicle: secrets, the name of the object, its number on servers, and the
// addresses of its wireless sensors.
enum class Personal { LeftOut, Included };

// Writes the keys as `from` has them into an empty document.
void writePreset(CXmlSection& root, const FileState& from, std::vector<int> keys,
                 Personal personal = Personal::LeftOut);

bool isPersonal(int key);

// How many parts, such as the fields of a record, the text switches on in a setting that a preset sets as a
// whole. None for another key.
struct ChosenParts
{
    int count = 0;
    int all = 0;
    QString rest{}; // what the others become, where it has a word of its own; else they go off
};
std::optional<ChosenParts> chosenParts(int key, const QString& text);

// Whether a document says that it is a preset; others can be applied too.
bool saysPreset(const CXmlSection& root);
// Whether a document says that it is a whole configuration; applied, it sets every value that it has.
bool saysConfiguration(const CXmlSection& root);

// A key of a preset that cannot be applied.
struct PresetProblem
{
    enum class What {
        UnknownKey,
        Doubled,
        BadValue, // a load would make something else of it, or a window not take it: `change`
        NoPlace,  // neither the configuration nor the preset has what it belongs to
    };

    What what;
    QString path;
    QString text;
    Change change = Change::None;
    // The setting that has the bad value, and what it can be.
    const Setting* setting = nullptr;
    Limits limits{};
    // The row in the same table of the setting that forbids the value, and what that one is worth.
    int cause = -1;
    QString causeValue{};
    QString error{}; // a sentence, where the value is one that the window marks as an error (settable.h)
};

// In words: what the preset holds stands before, why it is left out is the note.
DifferenceText textOf(const PresetProblem& problem, Secrets secrets = Secrets::Masked);

struct AppliedPreset
{
    Configuration result;  // with all that fits
    FileState state;       // of it; to be taken over, all keys or some
    std::vector<int> keys; // of the preset, without those that do not fit
    std::vector<PresetProblem> problems;
};

AppliedPreset applied(CXmlSection& preset, const Configuration& configuration);

} // namespace vlk::review
