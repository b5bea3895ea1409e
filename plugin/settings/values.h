#pragma once

// One table of settings and what it holds, known without a window. A value is the text that the file holds. A
// new object holds what a reset gives.
//
// Values come from documents (document/values_document.h), from the user (edit) or from a reset. A read takes
// what it finds as the windows would: a missing key is worth its load default, a number outside its range is
// limited, an unknown code is replaced or leaves the value as it stands. Rules between settings run on edits;
// the few that the file cannot break run always (rule.h).
//
// A value is known by its row, counted from 0 in the order of the table, or by its path below the section:
// "POINTS/angle". All tables together are a Configuration (document/configuration.h).

#include "settings/table_layout.h"

#include <functional>
#include <optional>

namespace vlk {

class Values
{
public:
    explicit Values(const SettingsTable& table);

    const SettingsTable& table() const { return *layout_->table; }
    const TableLayout& layout() const { return *layout_; }
    int count() const { return static_cast<int>(layout_->rows.size()); }
    // -1 for a path that the table has not.
    int rowAt(const QString& path) const { return layout_->rowAt(path); }
    const TableLayout::Row& row(int row) const { return layout_->rows[row]; }
    const Setting& setting(int row) const { return *layout_->rows[row].setting; }
    // The row as a choice; null for another kind.
    const Choice* choice(int row) const { return setting(row).as<Choice>(); }
    // The row that holds the value: of a link its target, else the row itself.
    int holder(int row) const { return layout_->rows[row].target; }

    // The value that counts.
    const QString& value(int row) const;
    QString value(const QString& path) const { return value(rowAt(path)); }
    // Row by row, as putBack() takes it: no rule runs then.
    const std::vector<QString>& held() const { return values_; }
    void putBack(const std::vector<QString>& held) { values_ = held; }
    // Whether a file of this state has the key, and what it holds there.
    bool isWritten(int row) const;
    QString written(int row) const { return written(row, value(row)); }
    // What a file would hold for another value.
    QString written(int row, const QString& value) const;
    // Range in units of the widget, and unit, as the rules have them now.
    Limits limits(int row) const;
    const char* unitKey(int row) const;

    void reset();
    // A read begins, takes the keys in the order of the table, whatever the file holds there, and ends.
    void beginRead();
    void takeKey(int row, const std::optional<QString>& text, bool hasElement);
    void endRead();

    // Takes an edit and runs the rules. Gives the rows whose values changed, this one first where it did. An
    // edit of a row that there is not changes nothing.
    std::vector<int> edit(int row, const QString& text);
    std::vector<int> edit(const QString& path, const QString& text) { return edit(rowAt(path), text); }

    // Whether a condition of the table holds, all of several, and what a rule says of its own.
    bool holds(const When& condition) const;
    bool holds(std::span<const When> conditions) const;
    // Whether a file of this state has the element.
    bool isPresent(const Group& group) const { return holds(group.present) && holds(group.presentToo); }
    bool holds(const Enable& rule) const;
    // The least distance that a rule of the table keeps now, in units of the widget.
    double gapOf(const Distance& rule) const;
    // The code of the first preset that agrees with values of its fields, by row, and is offered; where there
    // is none the one that stands for others, null without one.
    QString presetFor(const Presets& presets, const std::function<QString(int)>& valueAt) const;

private:
    using Changes = std::vector<int>; // rows, each once

    bool holdsToo(const auto& rule) const { return holds(rule.when) && holds(rule.also); }
    // Whatever other settings of a shared list hold.
    Limits ownLimits(int row) const;
    QStringList takenFrom(const ExclusiveChoice& sharer) const;
    QString normalised(int row, const QString& text, const Limits& limits,
                       Source source = Source::File) const;

    // Whether that is another value.
    bool put(int row, const QString& value, Changes* changed);
    // Moves what has to keep its distance from the value or cannot have the same one, too.
    void assign(int row, const QString& value, Changes* changed);
    void keepDistances(int row, Changes* changed);
    // After the row, which was worth `before`, has another value; -1: after a reset of all.
    void keepShared(const ExclusiveChoice& sharer, int row, const QString& before, Changes* changed);
    // The code that a setting without a claim gets for one that is taken: the next one that is free now and
    // was before, else the one that has just been given back.
    QString yielded(const ExclusiveChoice& sharer, int row, const QString& before);
    void setAll(const std::vector<const Sets*>& rules, Changes* changed);
    // What the rules of the row, which was worth `before`, set.
    void setBy(int row, bool isRead, const QString& before, Changes* changed);
    void change(int row, const QString& text, Changes* changed);
    // Finds the preset that a read has come to.
    void settle(const Presets& presets);

    const TableLayout* layout_;
    std::vector<QString> values_;
    std::vector<int> editing_; // rows whose edits have not ended: a rule that comes back to one ends there
};

} // namespace vlk
