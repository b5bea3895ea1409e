#pragma once

// What a window would make of a text from a configuration file: limited to the range, rounded, cut, or
// replaced where the text is none of the known codes. The result is again a text of the file.

#include "settings/setting.h"

#include <QString>
#include <QStringList>

namespace vlk {

// Why a value differs from what the file holds.
enum class Change {
    none,
    missing,     // the key is not there, the load default counts
    notANumber,  // read as far as it is a number
    outOfRange,  // limited
    rounded,     // to what the widget can show
    tooLong,     // cut
    unknownCode, // replaced, or the value before stays
    notOffered,  // known, but this tracker's list lacks it
    otherForm,   // the same value, spelled otherwise
    byRule,      // another setting forbids it
};

// What a value can be: a range in units of the widget; of a choice and of a string of digits the codes of the
// list, "NU|NS+", null as the setting says; codes that other settings of a shared list hold.
struct Limits
{
    double least;
    double most;
    const char* offers = nullptr;
    QStringList taken{};

    bool operator==(const Limits&) const = default;
};

struct Normalised
{
    QString value;
    Change change = Change::none;
};

// Where a text comes from. A file is read as far as it is a number, "12abc" as 12, and its periods wrap
// around where the row says so. An edit means what it says: a text that is no whole number is 0.
enum class Source { file, edit };

// `before` is what stays where the text leaves the value alone.
Normalised normalise(const Setting& setting, const QString& text, const QString& before, const Limits& limits,
                     Source source = Source::file);

// Texts of the two defaults in the present language, as a file would hold them.
QString loadDefault(const Setting& setting);
QString resetValue(const Setting& setting);

// A number of the file in units of the widget, and back: rounded to the widget's decimals, not limited.
double shownNumber(const Setting& setting, const QString& value);
QString fileNumber(const Setting& setting, double shown);
// The digit at a position of a string, 0 where there is none.
int digitAt(const QString& text, std::size_t position);

// What the positions of a field hold in a mask, "01", and the other way round; a mask that is too short reads
// as 0. What that means for the widget: a check box is on or not, a list has an item for it, -1 for none.
QString maskPart(const MaskField& field, const QString& mask);
void setMaskPart(const MaskField& field, QString* mask, const QString& part);
bool isMaskOn(const MaskField& field, const QString& part);
int maskItem(const MaskField& field, const QString& part);

// Whether the list of a setting has the code; `offers` as in Limits.
bool offersCode(const Setting& setting, const Code& code, const char* offers = nullptr);
bool offersCode(const Setting& setting, const Code& code, const Limits& limits);
// The first code of the list, and the one that comes next behind `value`, else the last one; what stands for
// no item where the list is empty.
QString firstOffered(const Setting& setting, const Limits& limits);
QString nextOffered(const Setting& setting, const QString& value, const Limits& limits);

} // namespace vlk
