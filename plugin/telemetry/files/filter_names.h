#pragma once

// What may stand in a filter: names of columns, and words of their values with the codes behind them. Case
// and "ё" do not count, nor how many blanks stand between words.
//
//     FilterNames names;          elements and items by their own names
//     names.addTexts();           headings and words of the language on show
//     {
//         const TextsFrom other(source);
//         names.addTexts();       and of another one
//     }
//     names.addWord("Стоянка", item("Code"), {35, 35});

#include "telemetry/files/record_filter.h"

#include <QHash>
#include <QStringList>

#include <map>

namespace vlk {

// Lower case, "ё" as "е", Cyrillic letters that look like Latin ones as those, every blank a plain one; as
// many characters as before.
QString foldedForFilter(const QString& text);

// Codes from `first` to `last`.
struct CodeRange
{
    double first;
    double last;

    bool operator==(const CodeRange&) const = default;
};

// What the item shows for the code, in the language of the installed translator; empty without words for it.
QString wordOfCode(ItemIndex item, quint32 code);

class FilterNames
{
public:
    FilterNames();

    // The first of two columns with one name keeps it.
    void add(const QString& name, const FilterColumn& column);
    void addWord(const QString& word, const FilterColumn& column, CodeRange codes);
    // A heading names its column without the unit too, where no other heading is left the same.
    void addTexts();

    // The column whose name begins at the position of a folded text and ends where a word does; of several
    // the one with the longest name. `end`: behind the name.
    std::optional<FilterColumn> columnAt(const QString& folded, int position, int* end) const;
    std::optional<FilterColumn> column(const QString& name) const;

    // All codes that the word means in the column; none where it means nothing.
    std::vector<CodeRange> codesOf(const FilterColumn& column, const QString& word) const;
    std::vector<CodeRange> codesAt(const FilterColumn& column, const QString& folded, int position,
                                   int* end) const;
    bool hasWords(const FilterColumn& column) const { return words_.contains(column); }

    // Has these names, where they are known, offered before all others, in this order.
    void offerFirst(const QStringList& names);

    // All names in the order in which they are offered.
    const QStringList& names() const { return names_; }
    // The names, folded.
    const QStringList& foldedNames() const { return foldedNames_; }
    QStringList words(const FilterColumn& column) const;

private:
    struct Word
    {
        QString word;
        std::vector<CodeRange> codes;
    };
    using Words = QHash<QString, Word>; // by what is folded

    // False where another column has the name.
    bool know(const QString& key, const FilterColumn& column);
    void addWordsOf(ItemIndex item);

    QStringList names_;
    QStringList foldedNames_;
    QHash<QString, FilterColumn> columns_;
    std::map<FilterColumn, Words> words_;
    int longest_ = 0; // of names and words
};

} // namespace vlk
