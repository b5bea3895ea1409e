#pragma once

// Bringing single keys of one state into another: taking back edits, taking values over from the defaults or
// from another file, applying a preset. It goes the way of a file, as the switch from the quick window does:
// what a configuration would save, the keys laid over it, and that is read. So what follows from a value
// follows from it here too, and nothing else moves.

#include "review/differences.h"

namespace vlk::review {

// The keys and those without which they could not be taken: to take back the address of a sensor whose device
// owns the serial line no longer is to take back the device too, and a type that several elements share goes
// back in all of them.
std::vector<int> withNeeded(const Differences& differences, std::vector<int> keys);

// The settings that decide whether a file has the one.
std::vector<int> decidersOf(const TableLayout& layout, int row);

// Gives a key of a document a text, an element made for it where there is none.
void setKey(CXmlSection& root, int key, const QString& text);

// Lays what a load of `from` makes of the keys, or an edit alone would (Held::isOfEdit), over a document that
// a save has written; keys that it lacks go. Sections that are open on the document lose their sight of it,
// but for the root.
void layOver(CXmlSection& root, const FileState& from, const std::vector<int>& keys);

using KeyTexts = std::vector<std::pair<int, QString>>; // by key

// What comes with these texts is in the document as `from` holds it, else as a window would write it, not as
// a file that lacks it is read: a line that is used again claims no ignition. `before`: what the document
// held without them.
void addWhatComes(CXmlSection& root, const Configuration& before, const KeyTexts& texts,
                  const FileState* from = nullptr);

// Reads what windows would save, with that which edits alone can give them.
void readAsEdited(Configuration& configuration, CXmlSection& root);

// What reading moves that nothing was laid over stays as it was: of a new configuration the empty address of
// a server that is off. `unchanged` is what the state before reads as.
void keepTheRest(Values& read, const Values& before, const Values& unchanged);
void keepTheRest(Configuration& read, const Configuration& before, const Configuration& unchanged);

// What a file of this state does not hold, of a line that is not used its times, stays as it was: a read
// alone would start it anew.
void keepUnwritten(Configuration& configuration, const Configuration& before);

void takeOver(Configuration& configuration, const FileState& from, const std::vector<int>& keys);

// Takes keys over from the side before, with those that are needed; where a rule of a load stands against one
// of the keys, what the rule ties to it comes along: of two lines that both claim the ignition the other one.
// Gives all keys that were taken over.
std::vector<int> takeOver(Configuration& configuration, const Differences& differences,
                          std::vector<int> keys);

} // namespace vlk::review
