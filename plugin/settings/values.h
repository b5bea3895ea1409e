#pragma once

// The values of all settings of some tables, known without a window. A value is the text that the file holds.
// A new configuration holds what a reset gives.
//
// Values come from documents (read), from the user (edit) or from a reset, and go to documents (write). A
// read takes what it finds as the windows would: a missing key is worth its load default, a number outside
// its range is limited, an unknown code is replaced or leaves the value as it stands. Rules between settings
// run on edits; the few that the file cannot break run always (rule.h).
//
// A path is "TRACK/POINTS/angle"; an index counts the rows of all tables in order.

#include "settings/normalise.h"
#include "settings/table_layout.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

struct CXmlSection;

namespace vlk {

// A value that a read made of something else, or something in the file that no setting reads.
struct ReadNote
{
    enum class What { value, foreignKey, foreignElement, doubledElement };

    What what = What::value;
    QString path;
    int index = -1;
    QString text;  // in the file
    QString value; // taken
    Change change = Change::none;
};

struct Difference
{
    int index;
    QString before;
    QString after;
};

class Configuration
{
public:
    explicit Configuration(const std::vector<const SettingsTable*>& tables);

    int count() const { return static_cast<int>(values_.size()); }
    // -1 for a path that no table has.
    int indexOf(const QString& path) const { return byPath_.value(path, -1); }
    const TableLayout::Row& row(int index) const;
    const TableLayout& layout(int index) const { return *partOf(index).layout; }
    const Setting& setting(int index) const { return *row(index).setting; }
    const QString& path(int index) const { return row(index).path; }

    // The row that holds the value: of a link its target, else the row itself.
    int holder(int index) const;
    // The value that counts.
    const QString& value(int index) const;
    QString value(const QString& path) const { return value(indexOf(path)); }
    // Whether a file of this state has the key, and what it holds there.
    bool isWritten(int index) const;
    QString written(int index) const { return written(index, value(index)); }
    // Range in units of the widget, and unit, as the rules have them now.
    Limits limits(int index) const;
    const char* unitKey(int index) const;

    void reset();
    void reset(const SettingsTable& table);
    // `root` is the element DEVICE. A document that could not be read changes nothing.
    // Whoever wants to know what it made of the document gives room for the notes.
    void read(const CXmlSection& root, std::vector<ReadNote>* notes = nullptr);
    void read(const CXmlSection& root, const SettingsTable& table, std::vector<ReadNote>* notes = nullptr);
    void write(CXmlSection& root) const;
    void write(CXmlSection& root, const SettingsTable& table) const;

    // Read, reset and write for no more than the elements that stand in a file while the value at `owner` is
    // `code`, as though it were: an element that no list of this tracker offers a way to. `section` is that
    // of the table.
    void readUnder(const CXmlSection& section, const SettingsTable& table, const QString& owner,
                   const QString& code);
    void resetUnder(const SettingsTable& table, const QString& owner, const QString& code);
    void writeUnder(CXmlSection& section, const SettingsTable& table, const QString& owner,
                    const QString& code) const;

    // Takes an edit and runs the rules. Gives the rows whose values changed, this one first where it did.
    std::vector<int> edit(int index, const QString& text);

    // Values that this configuration and another one of the same tables write differently; a key that is not
    // written counts as empty.
    std::vector<Difference> differences(const Configuration& other) const;

    // Whether the conditions of a rule of `table` hold.
    bool holds(const SettingsTable& table, const TableLayout::Enable& rule) const;
    bool holds(const SettingsTable& table, const TableLayout::Doubt& rule) const;
    // The least distance that a rule of `table` keeps now, in units of the widget.
    double gapOf(const SettingsTable& table, const TableLayout::Distance& rule) const;
    // Index of a table's first row.
    int firstOf(const SettingsTable& table) const;

private:
    struct Part
    {
        const TableLayout* layout;
        int first;
    };

    const Part& partOf(int index) const;
    const Part& partOf(const SettingsTable& table) const;
    static bool isOneOf(const QString& value, const TableLayout::Condition& condition);
    bool holds(const Part& part, const TableLayout::Condition& condition) const;
    bool isWritten(const Part& part, const TableLayout::Group& group) const;
    Limits ownLimits(const Part& part, int row) const;
    bool counts(const Part& part, const TableLayout::Sole& sole) const;
    bool takes(const Part& part, const TableLayout::Sole& other, const TableLayout::Sole& sole) const;
    QStringList takenFrom(const Part& part, const TableLayout::SoleList& list,
                          const TableLayout::Sole& sole) const;
    bool holds(const Part& part, const std::vector<TableLayout::Condition>& all) const;
    QString written(int index, const QString& value) const;
    double gapOf(const Part& part, const TableLayout::Distance& rule) const;
    void resetPart(const Part& part);
    void resetRow(const Part& part, int row);
    void readPart(const Part& part, const CXmlSection& root, std::vector<ReadNote>* notes);
    void readGroups(const Part& part, const CXmlSection& section, int owner, std::vector<ReadNote>* notes);
    void writeGroups(const Part& part, CXmlSection& section, int owner) const;
    // `isThere`: the file has the element.
    void readRow(const Part& part, int row, const CXmlSection& element, bool isThere,
                 std::vector<ReadNote>* notes);
    void writePart(const Part& part, CXmlSection& root) const;

    void put(int index, const QString& value, std::vector<int>* changed);
    void assign(const Part& part, int row, const QString& value, std::vector<int>* changed);
    void keepDistances(const Part& part, int row, std::vector<int>* changed);
    void startOver(const Part& part, int row, std::vector<int>* changed);
    // After the row, which was worth `before`, has another value; -1: after a reset of all.
    void keepSoles(const Part& part, const TableLayout::SoleList& list, int row, const QString& before,
                   std::vector<int>* changed);
    // The code that a setting without a claim gets for one that is taken: the next one that is free now and
    // was before, else the one that has just been given back.
    QString yielded(const Part& part, const TableLayout::SoleList& list, const TableLayout::Sole& sole,
                    int row, const QString& before);
    void keepBounds(const Part& part, std::vector<int>* changed);
    void change(const Part& part, int row, const QString& text, std::vector<int>* changed);
    void pull(const Part& part, int row, bool onRead, const QString& before, std::vector<int>* changed);
    void derive(const Part& part);
    void settle(const Part& part, const TableLayout::Presets& presets);

    std::vector<Part> parts_;
    std::vector<int> partOfIndex_;
    std::vector<int>
        editing_; // rows whose edits have not ended: a rule that comes back to one is no endless one
    std::vector<QString> values_;
    QHash<QString, int> byPath_;
};

} // namespace vlk
