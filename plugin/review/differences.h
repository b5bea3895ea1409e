#pragma once

// Where two states of a configuration file differ, key by key, in the order of a save. A window keeps it:
// each edit compares the keys of its table anew, in time that grows with the table alone, and nothing is
// copied for what is equal.

#include "review/file_state.h"

#include <vector>

namespace vlk::review {

struct Difference
{
    int key = -1; // -1: no setting knows the path
    int row = -1; // of the setting; the table is that of the key
    QString path;
    // Null where the side lacks the key.
    QString before;
    QString after;
    // Differences::isByLoad(). `change` says why; none where the load has no place for the key.
    bool byLoad = false;
    Change change = Change::None;
    bool isAlong = false; // Differences::isAlong()
    // A file lacks the key, and is read as the one before held it (compareFiles()).
    bool readsAlike = false;
};

class Differences
{
public:
    Differences() : Differences(FileState(), FileState()) {}
    Differences(FileState before, FileState after);

    const FileState& before() const { return before_; }
    const FileState& after() const { return after_; }

    int count() const;
    // That differ, in any table.
    std::vector<int> keys() const;
    bool isDifferent(int key) const { return !(before_.at(key) == after_.at(key)); }
    // Goes or comes with another setting that differs and decides whether the file has the key, as it stands
    // in a new configuration: nobody has edited this one.
    bool isAlong(int key) const;
    // Made by the load alone of what stood before, nobody has edited it; isFilledIn: of nothing, the load has
    // given a key that was not there its default.
    bool isByLoad(int key) const;
    bool isFilledIn(int key) const { return !before_.at(key).isThere && isByLoad(key); }
    // Whether it would come along with some of these keys.
    bool isWith(int key, const std::vector<int>& keys) const;
    // What a person would count: keys of a table, or of all, that differ and do not come along.
    const std::vector<int>& ownKeys(int table) const { return ownKeys_[table]; }
    std::vector<int> ownKeys() const;
    // What no setting reads, and differs.
    std::vector<Difference> strangers() const;
    // Whether the sides differ in that setting.
    bool isDifferent(int table, int row) const;
    Difference differenceAt(int key) const;
    std::vector<Difference> all() const;
    // All differences, those first whose sections the quick window builds anew.
    std::vector<Difference> allForQuick() const;

    // An edit has changed values of one of the configuration's tables.
    void update(const Values& values);
    // An edit has changed values, and the side before moves along with the other, all but some keys.
    void updateBoth(const Values& values, const std::vector<int>& fixed);
    // The quick window's values over those of the full one.
    void update(const FileState& full, const Values& quick);

private:
    // The settings on which it depends that a file has the key.
    std::vector<int> decidersOf(int key) const;
    void compare(int table);
    void compareStrangers();

    FileState before_;
    FileState after_;
    std::vector<std::vector<int>> keys_; // that differ, by table
    std::vector<std::vector<int>> ownKeys_;
    std::vector<std::vector<Difference>> strangers_; // by the table of their section, others last
};

} // namespace vlk::review
