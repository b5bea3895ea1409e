#pragma once

// A table of settings with its repetitions written out: paths, object names and rules as numbers of rows,
// made once a table. Configuration and the binder of windows walk it.

#include "settings/settings_table.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace vlk {

struct TableLayout
{
    struct Condition
    {
        int row = -1; // -1: always holds
        QStringList codes;
        bool negated = false;
        int other = -1; // row whose value it has to be
    };

    // A value; rows of kind `group` have none.
    struct Row
    {
        const Setting* setting = nullptr;
        QString path;     // "TRACK/POINTS/angle"; of its own, also where two rows share a place
        QString filePath; // where it stands in the file
        QString key;
        int group = -1;
        int target = -1; // row of the value: of a link another one, else this one
        std::vector<Condition> present;
        Condition free;
        std::vector<int> ranges;    // rules that say what the row can be
        std::vector<int> startOver; // rules by which another row begins its list anew when this one changes
        std::vector<int> pulls;     // rules that the row's edits run
        std::vector<int> distances; // in which the row is a value or the gap
    };

    struct Group
    {
        QStringList path; // element names below the section
        QString name;     // in the paths of its rows
        std::vector<Condition> present;
        std::vector<Condition> readable;
        bool kept = false;
        bool unlessEmpty = false;
        bool nested = false; // another group lies in it
        int parent = -1;     // the group that it lies in
        bool stored = true;  // false: all its rows live in the window alone, the file has no such element
        int number = 0;      // of the repetition, 0: of none
        int firstRow = 0;
        int endRow = 0;
    };

    struct Pull
    {
        Condition when;
        int set = -1;
        QString to;
        bool onRead = false;
        Condition also;
        bool onset = false;
    };
    struct Bound
    {
        Condition when;
        int row = -1;
        QString to;
    };
    struct Distance
    {
        int first = -1;
        int second = -1;
        double gap = 0;
        int gapFrom = -1;
        QString slider;
    };
    struct RangeWhen
    {
        Condition when;
        int row = -1;
        const vlk::RangeWhen* rule = nullptr;
    };
    struct Sole
    {
        int row = -1;
        Condition when;
        Condition also;
        QString holder;
        int split = -1;
    };
    // The settings that share a list.
    struct SoleList
    {
        QString name;
        std::vector<Sole> soles;
        std::vector<bool> triggers; // by row: whether its value counts for who holds what
    };
    struct Presets
    {
        int trigger = -1;
        std::vector<int> fields;
        const vlk::Presets* rule = nullptr;
    };
    struct Derived
    {
        int row = -1;
        std::vector<Condition> any;
    };
    struct MaskPositions
    {
        int row = -1;
        std::vector<Condition> when;
        const vlk::MaskPositions* rule = nullptr;
    };
    struct Doubt
    {
        int row = -1;
        std::vector<Condition> when;
        const vlk::Doubt* rule = nullptr;
    };
    struct Enable
    {
        QStringList targets;
        std::vector<Condition> when;
        bool any = false;
        bool shows = false;
        int number = 0;
    };

    const SettingsTable* table = nullptr;
    QString section;
    std::vector<Row> rows;
    std::vector<int> anew; // rows that a read starts anew, before it comes to what the file has
    std::vector<Group> groups;
    std::vector<Pull> pulls;
    std::vector<Bound> bounds;
    std::vector<Distance> distances;
    std::vector<RangeWhen> ranges;
    std::vector<SoleList> soleLists;
    std::vector<Presets> presets;
    std::vector<Derived> derived;
    std::vector<MaskPositions> masks;
    std::vector<Doubt> doubts;
    std::vector<Enable> enables;
    QHash<QString, int> byPath; // below the section

    // What stands in front of the paths of the rules: nothing, where they begin with a section themselves.
    QString prefix() const { return section.isEmpty() ? QString() : section + QLatin1Char('/'); }
    // -1 where the table has no such path.
    int rowAt(const QString& pathBelowSection) const { return byPath.value(pathBelowSection, -1); }

    // What the rules name and the table lacks, in words; empty when all is well.
    QStringList problems;
};

// The layout of a table, made on first use.
const TableLayout& layoutOf(const SettingsTable& table);

// A name of a repeated row with its numbers in.
QString numberedName(const char* name, int number, int inner);

} // namespace vlk
