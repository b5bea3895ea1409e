#pragma once

// The free slots of one width on the User tab: their combo boxes, and the values on offer to them. A value
// stands in one slot at a time: the one that takes it takes it away from the lists of the others, and gives
// it back. Each slot in use adds its width to the size of the record.

#include "absent/params/user_param_settings.h"

#include <QStringList>

#include <functional>
#include <vector>

class QGroupBox;

namespace vlk {

class ElidingComboBox;

// Choices that are there whatever is on offer.
struct FixedUserParam
{
    const char* key;  // in the file
    const char* text; // translation key
    int bytes;
};

inline constexpr std::array<FixedUserParam, 3> kFixedUserParams = {{
    {"tm1", "cfgt5_020", 8},
    {"rf1", "cfgt5_021", 8},
    {"ac214", "cfgt5_022", 8},
}};

class UserParamGroup
{
public:
    // Slots in columns, the first ones on the left. `chosen(slot)` is called when the choice of a slot
    // changes, counted from 1.
    UserParamGroup(const UserParamSlots& slots, const std::function<void(int slot)>& chosen);

    QGroupBox* box() const { return box_; }
    const UserParamSlots& slots() const { return slots_; }

    void retranslate();
    // A value comes on offer, and goes: its display text.
    void add(const QString& text);
    void remove(const QString& text);
    bool offers(const QString& text) const { return offered_.contains(text); }

    // The display text of the slot's choice, empty for none; and what stands in its list is chosen, else
    // nothing.
    QString text(int slot) const;
    void choose(int slot, const QString& text);
    // What the choice of a slot does to the others. Called by whoever `chosen` told.
    void takeChoice(int slot);
    int bytesInUse() const;

private:
    int itemOf(const ElidingComboBox* box, const QString& text) const;
    void append(const QString& text, const ElidingComboBox* except);
    void enable();
    bool isNone(const QString& text) const { return text.isEmpty() || text == none_; }

    const UserParamSlots slots_;
    QGroupBox* box_;
    std::vector<ElidingComboBox*> boxes_;
    QStringList offered_; // the choice of nothing among them
    QString none_;
    QString reserved_;
    std::array<QString, kFixedUserParams.size()> fixed_;
};

} // namespace vlk
