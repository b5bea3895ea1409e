#pragma once

// Edits of a configuration file that no window has open. The file's text keeps everything that it holds,
// keys that nobody knows and their order too; a new key comes last in its element. Values are checked as a
// window would check them, but refused where a window would limit them, and what an edit pulls along in a
// window it pulls along here.

#include "review/preset.h"

namespace vlk::review {

struct KeyEdit
{
    QString path;
    QString value; // as a save spells it, or otherwise with the same meaning
};

struct EditedFile
{
    bool isReadable = true;                // the text is a configuration
    QByteArray text{};                     // the same where nothing had to change
    std::vector<PresetProblem> problems{}; // edits that do not fit
};

// The edits in the order that they need: a value of a device may stand in front of the device. With a
// problem, nothing is changed.
EditedFile withEdits(const QByteArray& text, const std::vector<KeyEdit>& edits);

// What becomes of the file with those keys of the preset that fit; whoever refuses the others asks for
// problems.
EditedFile withPreset(const QByteArray& text, CXmlSection& preset);

// The file of which a load makes the configuration; `keys` are in it as a save would write them.
EditedFile withConfiguration(const QByteArray& text, const Configuration& configuration,
                             const std::vector<int>& keys);

} // namespace vlk::review
