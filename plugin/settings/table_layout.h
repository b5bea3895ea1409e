#pragma once

// A table of settings with its names written out and its rules by rows, made once a table. Values and the
// binder of windows walk it.

#include "settings/settings_table.h"

#include <QHash>
#include <QStringList>

#include <vector>

namespace vlk {

struct TableLayout
{
    // A value; rows of elements have none.
    struct Row
    {
        const Setting* setting = nullptr;
        const RowBase* base = nullptr;
        QString path;     // below the section; of its own, also where two rows share a place
        QString filePath; // where it stands in the file, from the section on
        QString key;
        int group = -1;                           // its element
        int target = -1;                          // row of the value: of a link another one, else this one
        QString load{};                           // its load default; null where that follows the language
        std::vector<const Sets*> sets{};          // that its edits or reads run
        std::vector<const Sets*> saves{};         // that a save asks
        std::vector<const RangeWhen*> ranges{};   // that say what it can be
        std::vector<const RangeWhen*> follows{};  // whose ranges follow its value
        std::vector<const Distance*> distances{}; // in which it is a value or the gap
        std::vector<const Presets*> presets{};    // that it triggers
        std::vector<const ExclusiveChoice*> sharers{}; // of lists in which it counts for who holds what

        QString loadDefault() const { return load.isNull() ? vlk::loadDefault(*setting) : load; }
    };

    struct Element
    {
        const Group* group = nullptr;
        QStringList path;    // element names below the section
        bool stored = true;  // false: all its rows live in the window alone, the file has no such element
        bool nested = false; // another one lies in it
        int firstRow = 0;
        int endRow = 0;
    };

    const SettingsTable* table = nullptr;
    QString section;
    std::vector<Row> rows;
    std::vector<int> anew;      // rows that a read starts anew, before it comes to what the file has
    std::vector<int> following; // whose defaults follow the language or the model
    std::vector<Element> elements;
    std::vector<const Sets*> afterRead;
    std::vector<const Sets*> always;
    QHash<QString, int> byPath; // below the section

    // What stands in front of the paths of the rules: nothing, where they begin with a section themselves.
    QString prefix() const { return section.isEmpty() ? QString() : section + QLatin1Char('/'); }
    // -1 where the table has no such path.
    int rowAt(const QString& pathBelowSection) const { return byPath.value(pathBelowSection, -1); }
};

// The layout of a table, made on first use, in whatever thread.
const TableLayout& layoutOf(const SettingsTable& table);

} // namespace vlk
