#pragma once

// The keys of a configuration file that settings know, each once, in the order of a save. Several settings
// may share a key, of which a file holds one at a time: a key is told by its number here, a setting by its
// table and row.

#include "settings/table_layout.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace vlk::review {

struct FileKey
{
    QString path; // "TRACK/POINTS/angle"
    int table = -1;
    std::vector<int> rows;
};

class FileKeys
{
public:
    // Those of allSettings().
    static const FileKeys& all();

    int count() const { return static_cast<int>(keys_.size()); }
    const FileKey& operator[](int key) const { return keys_[key]; }
    // -1 for a path that no setting has.
    int at(const QString& path) const { return byPath_.value(path, -1); }
    // Whether keys stand in the element, or in one below it.
    bool hasElement(const QString& path) const { return elements_.contains(path); }
    // Whether the path ends in a name that secrets have.
    bool looksSecret(const QString& path) const;
    // The key of a setting; -1 for one that files do not hold.
    int of(int table, int row) const { return byRow_[table][row]; }
    // Those that hold the value of a setting: its own, and of one that several elements repeat all of them.
    const std::vector<int>& heldBy(int table, int row) const { return byHolder_[table][row]; }
    const TableLayout& layout(int table) const { return *layouts_[table]; }
    int tables() const { return static_cast<int>(layouts_.size()); }
    // The place of a table among all; -1 for another one.
    int tableOf(const SettingsTable& table) const;
    // That of the section that a path begins with, known or not; tables() where no table has it.
    int tableOfSection(const QString& path) const;
    // The keys of a table, from here on up to those of the next one.
    int firstOf(int table) const { return first_[table]; }

private:
    FileKeys();

    std::vector<FileKey> keys_;
    std::vector<const TableLayout*> layouts_;
    std::vector<std::vector<int>> byRow_;
    std::vector<std::vector<std::vector<int>>> byHolder_;
    std::vector<int> first_; // and behind the last one
    QHash<QString, int> byPath_;
    QSet<QString> elements_;
    QSet<QString> secretNames_;
};

} // namespace vlk::review
