#include "absent/forms/form_config_ble_devtype_uni.h"

#include "absent/params/sensor_offers.h"
#include "typing/grid.h"
#include "windows/binder/page_settings.h"
#include "windows/binder/row_inputs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The columns of both tables: the head's text, and the stem of the widgets below it. Those of settings are
// made as their rows say, the others are check boxes.
struct UniversalColumn
{
    const char* title;
    const char* head;
    const char* widget;
    int from = 1; // first row that can be off
};
constexpr UniversalColumn kConditions[] = {
    {"label_Condition_Title_Use", "cfgt17_032", "checkBox_Condition_Use_%1", 2},
    {"label_Condition_Title_Group", "cfgt17_058", "spinBox_Condition_Group_%1"},
    {"label_Condition_Title_Operator", "cfgt17_059", "comboBox_Condition_Operator_%1"},
    {"label_Condition_Title_Type", "cfgt17_060", "spinBox_Condition_Type_%1"},
    {"label_Condition_Title_Displacement", "cfgt17_061", "spinBox_Condition_Displacement_%1"},
    {"label_Condition_Title_Mask", "cfgt17_062", "lineEdit_Condition_Mask_%1"},
};
constexpr UniversalColumn kValues[] = {
    {"label_Parameters_Title_Use", "cfgt17_032", "checkBox_Parameters_Use_%1"},
    {"label_Parameters_Title_Group", "cfgt17_058", "spinBox_Parameters_Group_%1"},
    {"label_Parameters_Title_Type", "cfgt17_060", "spinBox_Parameters_Type_%1"},
    {"label_Parameters_Title_Displacement", "cfgt17_061", "spinBox_Parameters_Displacement_%1"},
    {"label_Parameters_Title_Dimension", "cfgt17_033", "comboBox_Parameters_Dimension_%1"},
    {"label_Parameters_Title_ByteOrder", "cfgt17_067", "comboBox_Parameters_ByteOrder_%1"},
    {"label_Parameters_Title_SensorType", "cfgt17_040", "comboBox_Parameters_SensorType_%1"},
    {"label_Parameters_Title_Index", "cfgt17_068", "comboBox_Parameters_Index_%1"},
    {"label_Parameters_Title_Multiplier", "cfgt17_069", "spinBox_Parameters_Multiplier_%1"},
    {"label_Parameters_Title_Divider", "cfgt17_070", "spinBox_Parameters_Divider_%1"},
    {"label_Parameters_Title_Amendment", "cfgt17_071", "spinBox_Parameters_Amendment_%1"},
};
// The check against an example message: hidden, nothing fills its results.
constexpr UniversalColumn kConditionTests[] = {
    {"label_Condition_Test_Title_Use", "cfgt17_064", "checkBox_Condition_Test_Use_%1"}};
constexpr UniversalColumn kValueTests[] = {
    {"label_Parameters_Test_Title_Use", "cfgt17_064", "checkBox_Parameters_Test_Use_%1"}};

struct Table
{
    const char* group;
    const char* title;
    const char* numberTitle;
    std::span<const UniversalColumn> columns;
    int rows;
    const char* result = nullptr; // labels of a table of tests
};
constexpr Table kTables[] = {
    {"groupBox_Condition", "cfgt17_057", "label_Condition_Title_RowNum", kConditions,
     vlk::kUniversalConditions},
    {"groupBox_Parameters", "cfgt17_066", "label_Parameters_Title_RowNum", kValues, vlk::kUniversalValues},
    {"groupBox_Condition_Test", "cfgt17_063", "label_Condition_Test_Title_Rez", kConditionTests,
     vlk::kUniversalConditions, "label_Condition_Test_Rez_%1"},
    {"groupBox_Parameters_Test", "cfgt17_063", "label_Parameters_Test_Title_Rez", kValueTests,
     vlk::kUniversalValues, "label_Parameters_Test_Rez_%1"},
};

// Null where the setting has no widget in the line.
QWidget* makeCell(const std::vector<const vlk::Setting*>& rows, const UniversalColumn& column, int line)
{
    const QString stem = QString::fromLatin1(column.widget);
    const auto rowAt = [&](int number) {
        return std::ranges::find_if(rows, [name = stem.arg(number)](const vlk::Setting* row) {
            return vlk::numberedName(row->shown()->widget.tail, row->shown()->numbers) == name;
        });
    };
    if (const auto row = rowAt(line); row != rows.end()) {
        QWidget* input = vlk::makeInput(**row);
        if (auto* list = qobject_cast<QComboBox*>(input)) {
            list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
            list->setMinimumContentsLength(3);
            list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        }
        return input;
    }
    if (rowAt(2) != rows.end())
        return nullptr;
    auto* box = new QCheckBox;
    box->setObjectName(stem.arg(line));
    box->setChecked(line < column.from);
    box->setEnabled(line >= column.from);
    return box;
}

QLabel* makeLabel(const QString& name, const QString& text = {})
{
    auto* label = new QLabel(text);
    label->setObjectName(name);
    return label;
}

QGroupBox* makeTable(const Table& table, const std::vector<const vlk::Setting*>& rows)
{
    auto* box = new QGroupBox;
    box->setObjectName(QString::fromLatin1(table.group));
    auto* grid = new QGridLayout(box);
    grid->setHorizontalSpacing(vlk::grid::kColumn);
    grid->setVerticalSpacing(vlk::grid::kRow);
    grid->addWidget(makeLabel(QString::fromLatin1(table.numberTitle)), 0, 0);
    for (int row = 1; row <= table.rows; ++row)
        grid->addWidget(table.result ? makeLabel(QString::fromLatin1(table.result).arg(row))
                                     : new QLabel(QString::number(row)),
                        row, 0);
    int column = 0;
    for (const UniversalColumn& place : table.columns) {
        grid->addWidget(makeLabel(QString::fromLatin1(place.title)), 0, ++column);
        for (int line = 1; line <= table.rows; ++line) {
            QWidget* cell = makeCell(rows, place, line);
            if (!cell)
                continue;
            grid->addWidget(cell, line, column);
            grid->setColumnStretch(column, qobject_cast<QLineEdit*>(cell) ? 1 : 0);
        }
    }
    return box;
}

} // namespace

void VLK_Form_Config_Ble_DevType_Uni::makeWidgets()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto rows =
        vlk::rowsOfForm(settings().values().table(), type().section, {static_cast<std::uint8_t>(sensor())});
    for (const Table& table : kTables) {
        QGroupBox* box = makeTable(table, rows);
        layout->addWidget(box);
        if (!table.result)
            continue;
        box->hide();
        for (int row = 1; row <= table.rows; ++row) {
            auto* result = box->findChild<QLabel*>(QString::fromLatin1(table.result).arg(row));
            auto* use =
                box->findChild<QCheckBox*>(QString::fromLatin1(table.columns.front().widget).arg(row));
            result->setEnabled(false);
            connect(use, &QCheckBox::toggled, result, &QLabel::setEnabled);
        }
    }
    layout->addStretch();
}

void VLK_Form_Config_Ble_DevType_Uni::setDefaults()
{
    BleSensorForm::setDefaults();
    clearTests();
}

// The labels of the results follow their boxes.
void VLK_Form_Config_Ble_DevType_Uni::clearTests()
{
    for (const Table& table : kTables) {
        if (!isMade() || !table.result)
            continue;
        const auto* box = findChild<QGroupBox*>(QString::fromLatin1(table.group));
        for (QCheckBox* use : box->findChildren<QCheckBox*>())
            use->setChecked(false);
    }
}

// The heads of the columns stand for the texts of the boxes below them; screen readers get the row too.
void VLK_Form_Config_Ble_DevType_Uni::retranslate()
{
    if (!isMade())
        return;
    const auto setText = [this](const char* label, const char* key) {
        findChild<QLabel*>(QString::fromLatin1(label))->setText(tr(key));
    };
    for (const Table& table : kTables) {
        findChild<QGroupBox*>(QString::fromLatin1(table.group))->setTitle(tr(table.title));
        setText(table.numberTitle, table.result ? "cfgt17_065" : "abbr_047");
        for (const UniversalColumn& column : table.columns) {
            setText(column.title, column.head);
            for (int row = 1; row <= table.rows; ++row) {
                auto* cell = findChild<QWidget*>(QString::fromLatin1(column.widget).arg(row));
                if (!cell)
                    continue;
                cell->setAccessibleName(QStringLiteral("%1 %2").arg(tr(column.head)).arg(row));
                if (auto* box = qobject_cast<QCheckBox*>(cell))
                    box->setText({});
            }
        }
    }
}

QString VLK_Form_Config_Ble_DevType_Uni::keyToDisplay(const QString& key) const
{
    if (!key.startsWith(QLatin1String("up")))
        return {};
    const int number = key.mid(2).toInt();
    for (const auto& row : vlk::SensorOfferSource(settings().values(), sensor()).offers().rows) {
        if (!row.name.isEmpty() && !row.number.isEmpty() && row.number.toInt() == number)
            return row.name;
    }
    return {};
}
