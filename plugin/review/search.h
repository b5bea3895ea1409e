#pragma once

// Finds settings by words: of their caption, the titles above it, their value, their key and what else they
// could be, in the language on show and in another one. Case, "ё" and the order of words do not count.

#include "base/translated.h"
#include "settings/values.h"

#include <QString>

#include <array>
#include <vector>

namespace vlk::review {

// A setting; of one with many parts (the fields of a record, events) the part.
struct Hit
{
    int table = -1;
    int row = -1;
    int part = -1; // index of the field or position, -1: the whole setting
};

class Search
{
public:
    // The tables stay where they are. Without the texts of another language it searches in one.
    explicit Search(std::vector<const Values*> tables, TextSource other = {});

    // The language on show has changed.
    void retranslate() { entries_.clear(); }

    // Those in which every word is found, best first; all of them, in the order of pages, for no word.
    std::vector<Hit> find(const QString& query);

private:
    enum Field { Caption, Group, Page, Choices, Names, Value, FieldCount };
    using Words = std::array<QString, FieldCount>; // folded

    struct Word
    {
        QString text;
        int stem; // letters of it that other endings leave
    };
    struct Query
    {
        QString text;
        std::vector<Word> words;
    };

    struct Entry
    {
        Hit hit;
        QString key;
        QString held; // value that the words tell
        std::array<Words, 2> words;
    };

    void build();
    void add(int table, int row, int part);
    void tell(Entry& entry, int language) const;
    void refresh(Entry& entry) const;
    int score(const Entry& entry, const Query& query) const;
    int languages() const { return other_ ? 2 : 1; }

    std::vector<const Values*> tables_;
    TextSource other_;
    std::vector<Entry> entries_;
};

} // namespace vlk::review
