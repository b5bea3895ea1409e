#pragma once

// Makes the widgets of forms that come from the rows of a table. The binder gives them texts, ranges and
// items.

#include "settings/settings_table.h"

#include <QGridLayout>

#include <vector>

namespace vlk {

// The rows whose widgets stand in a form, in the order of the table: those of one repetition where a number
// is given.
std::vector<const Setting*> rowsOfForm(const SettingsTable& table, std::string_view form,
                                       Numbers numbers = {});

// The input by the kind of the row, named as the row says.
QWidget* makeInput(const Setting& setting);

// Puts rows one below the other into a grid, each as a label and an input: label_Type and comboBox_Type.
class RowLines
{
public:
    enum class Look {
        Simple, // flags are check boxes that carry their text
        Paired, // lists take a line, everything else half of one; flags have labels, too
    };

    RowLines(QGridLayout* grid, Look look) : grid_(grid), look_(look) {}

    void add(const Setting& setting);

private:
    void addPaired(const Setting& setting, QWidget* label, QWidget* input);

    QGridLayout* const grid_;
    const Look look_;
    int line_ = 0;
    int half_ = 0;
};

} // namespace vlk
