#pragma once

// Columns of a store of records, each decoded once into plain numbers: what filters, sorting, curves, the
// track and sums work on. A column has one number a record, in the order of the store, in the unit that the
// texts of the item have (item_text.h); NaN where the record does not hold the item or holds its code for no
// value. A damaged record counts as measured nowhere: it has no numbers, and its head is 0, as that of a
// record without a time. As long as its columns are used the store may grow: what was asked for before is
// asked for again.

#include "telemetry/record/record_store.h"
#include "telemetry/text/item.h"

#include <algorithm>
#include <map>
#include <string>

namespace vlk {

using NumberColumn = std::vector<double>;

class RecordColumns
{
public:
    // `userTypes`: the letters of the user parameters, as of typeLetters().
    // `damaged`: records, rising.
    explicit RecordColumns(const RecordStore& store, std::string userTypes = {},
                           std::vector<int> damaged = {})
        : store_(store), userTypes_(std::move(userTypes)), damaged_(std::move(damaged))
    {
    }

    const RecordStore& store() const { return store_; }
    const std::string& userTypes() const { return userTypes_; }
    const std::vector<int>& damaged() const { return damaged_; }
    bool isDamaged(int record) const
    {
        return !damaged_.empty() && std::ranges::binary_search(damaged_, record);
    }

    const NumberColumn& numbers(ItemIndex item);
    // Whether any record can have a number of it; what asks first needs no column where none has.
    bool areAny(ElementIndex element) const;
    bool areAny(ItemIndex item) const { return areAny(kItems[item].element); }
    // The whole number of an element, whatever it means.
    const NumberColumn& numbers(ElementIndex element);
    // From the head of every record and packet, also where its mask does not tell it: seconds since 1970 in
    // UTC, the code of the event, the number of the record.
    const std::vector<quint32>& times();
    const std::vector<quint32>& codes();
    const std::vector<quint32>& recordNumbers();
    // How many records are missing in front of each one, all of them, by their numbers in the order of the
    // store. What the numbers skip is not missing if it stands elsewhere; a record without a number skips
    // nothing, and a tracker that counts on from elsewhere has lost nothing.
    const std::vector<quint32>& missingUpTo();

private:
    template <class ToNumber>
    const NumberColumn& filled(NumberColumn& column, ElementIndex element, ToNumber toNumber);
    template <class Number>
    void leaveOutDamaged(std::vector<Number>& column, int first, Number number) const;
    const std::vector<quint32>& headColumn(ElementIndex element);

    const RecordStore& store_;
    std::string userTypes_;
    std::vector<int> damaged_;
    std::map<ItemIndex, NumberColumn> numbers_;
    std::map<ElementIndex, NumberColumn> wholes_;
    NumberColumn absent_; // of what no record holds
    std::map<ElementIndex, std::vector<quint32>> heads_;
    std::vector<quint32> missing_;
    quint32 lastNumber_ = 0; // of those that missing_ is of
};

} // namespace vlk
