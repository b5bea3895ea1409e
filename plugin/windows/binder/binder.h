#pragma once

// Joins the settings of a table to the widgets of a window by their object names. It dresses the widgets from
// the rows (texts, range, step, suffix, validator, items, accessible name), shows the values, takes edits,
// and enables what the table's rules allow.
//
// A caption goes to the label whose buddy the widget is, else to the one named label_<widget>; buttons and
// group boxes without such a label carry it themselves. What stands behind the mark "<val>" of a caption goes
// to the label named <widget>_After.

#include "windows/binder/bound_forms.h"
#include "windows/binder/edits.h"
#include "windows/binder/ruled_widgets.h"

#include <QObject>

#include <map>
#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace vlk {

class Adapter;
class HandlesAdapter;

class Binder : public QObject, public Edits
{
    Q_OBJECT

public:
    explicit Binder(Values& values);
    ~Binder() override;

    // With a number: the form holds the widgets of the rows that have the number.
    void addForm(QWidget* form, int number = 0) { forms_.add(form, number); }
    // Joins what is not joined yet; to be called when all forms are there. Rows whose form is named and is
    // not there yet wait for it.
    void bind();
    // Adds a form for which rows wait, and shows their values in it.
    void join(QWidget* form);

    // Texts and ranges anew, the values stay.
    void dress();
    void show();
    void evaluateRules();
    // Takes what is being typed.
    void finishTyping();
    // By row: what could not be taken as it was typed and stands so, and what is doubtful about the value.
    std::map<int, QStringList> news() const;
    // Logs what could not be taken as it was typed and stands so, and values that are doubtful; before that
    // of which fields what was logged earlier holds no longer.
    void logNews();
    // Logs that of all fields.
    void takeBackNews();
    // Other values come: what the widgets remember of those before goes.
    void forget();
    // Shows other values, row by row. What is told of how a value was typed stays as long as it does, and
    // comes back with it.
    void putBack(const std::vector<QString>& held);
    // Takes the first item of every combo box as an edit.
    void selectFirstItems();

    // The widgets that show a setting, each with the part of it that it shows, counted as in review::Hit; -1
    // for the whole. Those whose forms are not there are left out.
    struct Place
    {
        QWidget* widget;
        int part;
    };
    std::vector<Place> placesOf(int row) const;
    // The first one of the part, else the first one. Null where there is none.
    QWidget* widgetOf(int row, int part = -1) const;
    // The rule that disables the widget, in words; its tool tip where no rule does.
    QString whyDisabled(const QWidget* widget) const { return ruled_.whyDisabled(widget); }

    // What does not hold of the rule that hides the widget; null where none does.
    const When* hiddenBy(const QWidget* widget) const { return ruled_.hiddenBy(widget); }

    const Values& values() const override { return values_; }
    const BoundForms& forms() const override { return forms_; }
    bool isShowing() const override { return showing_ > 0; }
    void edited(int row, const QString& value) override;
    void set(int row, const QString& value) override;

Q_SIGNALS:
    // A value changed by an edit of the user or by a rule that it ran. The path is that below the section.
    void changed(const QString& path);
    // Forms have come: settings have widgets that had none.
    void joined();

private:
    // Whether a name of the row tells a form that is not there yet.
    bool isLate(const Setting& setting) const;
    // What a widget was dressed with: rules may give it another range.
    struct Range
    {
        Limits limits;
        const char* unit;

        bool operator==(const Range&) const = default;
    };

    std::unique_ptr<Adapter> makeAdapter(int row);
    Range rangeOf(int row) const;
    void dressRanged(int row);
    void showRow(int row);

    Values& values_;
    const TableLayout& layout_;
    BoundForms forms_;
    std::vector<std::unique_ptr<Adapter>> adapters_; // one a row, null where a row has no widget
    std::vector<std::unique_ptr<HandlesAdapter>> handles_;
    RuledWidgets ruled_;
    std::map<int, Range> ranges_; // of the rows that rules give ranges
    std::map<int, QString> told_; // rows of which something was logged, with their names
    std::vector<int> stay_;       // rows that are not shown anew
    int showing_ = 0;
};

} // namespace vlk
