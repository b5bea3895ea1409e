#pragma once

// One element of a configuration section, declared once: each row says which key lives in which widget, what
// it is worth when the file lacks it, and what a reset puts there. Loading, saving and resetting follow from
// the rows. The order of rows is the order of the keys in the file.
//
//     KeyGroup("RULES")
//         .flag("noPriorMsg", ui->checkBox_NoToGprs, 1)
//         .number("pingTimer", ui->spinBox_Period, 90)
//         .number("port", ui->spinBox_Port, 4000).resetTo(0)
//
// A key without a reset value of its own is reset to its load default. Values outside a widget's range are
// limited by the widget. Numbers travel as decimal integers, texts as they stand.

#include "windows/choices.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <initializer_list>
#include <vector>

struct CXmlSection;
class QAbstractButton;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QGroupBox;
class QLineEdit;
class QSpinBox;
class QWidget;

namespace vlk {

class KeyGroup
{
public:
    struct RadioValue
    {
        QAbstractButton* button;
        int value;
    };

    // A row in its general form: the value as the file holds it, in and out of widgets.
    struct Row
    {
        QString key;
        bool isNumber = false;
        std::function<QString()> loadDefault; // what a missing key is worth
        std::function<void()> reset;          // empty: a reset leaves the widgets alone
        std::function<void(const QString& value)> show;
        std::function<QString()> value;
        QVector<QWidget*> widgets;
        // Values of the file that the widgets can hold and give back unchanged, for checks of whole pages.
        QStringList samples;
    };

    explicit KeyGroup(const char* element);

    // 0 or 1; any other number loads as 1.
    KeyGroup& flag(const char* key, QAbstractButton* button, int loadDefault);
    KeyGroup& flag(const char* key, QGroupBox* box, int loadDefault);
    // A whole number; the widget shows value / unit, so that 60 shows seconds as minutes.
    KeyGroup& number(const char* key, QSpinBox* box, int loadDefault, int unit = 1);
    KeyGroup& number(const char* key, QDoubleSpinBox* box, int loadDefault);
    // A period in seconds over several spin boxes from the largest unit down, `units` giving each one's
    // seconds. A period is split without the time beyond `wrap` seconds, where that is not 0.
    KeyGroup& period(const char* key, std::initializer_list<QSpinBox*> boxes,
                     std::initializer_list<int> units, int loadDefault, int wrap = 0);
    // A text written with a fixed number of decimals.
    KeyGroup& real(const char* key, QDoubleSpinBox* box, int decimals, double loadDefault);
    // Volts in the widget, whole millivolts in the file, cut towards zero.
    KeyGroup& millivolts(const char* key, QDoubleSpinBox* box, int loadDefault);
    KeyGroup& text(const char* key, QLineEdit* edit, const QString& loadDefault);
    KeyGroup& text(const char* key, QLineEdit* edit, std::function<QString()> loadDefault);
    // Item codes of the combo box (choices.h). An unknown code selects `fallback`, or no item when that is
    // empty, and no current item is saved as `none`.
    KeyGroup& choice(const char* key, QComboBox* box, std::span<const Choice> choices,
                     const char* loadDefault, const char* fallback = "", const char* none = "");
    // Index of the combo box's item; an index that it does not have leaves the box alone.
    KeyGroup& index(const char* key, QComboBox* box, int count, int loadDefault);
    // One of several radio buttons; a value that none has leaves them alone. None checked is saved as the
    // first.
    KeyGroup& radio(const char* key, std::initializer_list<RadioValue> buttons, int loadDefault);
    // A string with one digit a position, of `length` characters; null stands for a position without a
    // widget, which is written 0. A character that is missing or no digit counts as 0.
    KeyGroup& digits(const char* key, std::initializer_list<QCheckBox*> boxes, const QString& loadDefault);
    // A number, 0 for off, behind a check box that says whether it is on.
    KeyGroup& optional(const char* key, QCheckBox* box, QSpinBox* value, int loadDefault);
    // Whatever is not of one widget. `samples` as in Row.
    KeyGroup& custom(const char* key, int loadDefault, std::function<void(int)> show,
                     std::function<int()> value, QVector<QWidget*> widgets, QStringList samples);
    KeyGroup& customText(const char* key, const QString& loadDefault,
                         std::function<void(const QString&)> show, std::function<QString()> value,
                         QVector<QWidget*> widgets, QStringList samples);

    // Of the row before: another value at a reset; none at all; or another action.
    KeyGroup& resetTo(int value);
    KeyGroup& resetTo(const QString& value);
    KeyGroup& keepOnReset();
    KeyGroup& resetBy(std::function<void()> action);

    const QString& element() const { return element_; }
    const std::vector<Row>& rows() const { return rows_; }

    // Reads the element of that name below `page`; a missing element gives every row its default.
    void load(CXmlSection& page) const;
    // Writes a new element of that name.
    void save(CXmlSection& page) const;
    void reset() const;

    // Mistakes in the declaration, in words: a key bound twice, a row without a widget, a default that the
    // widgets cannot hold. Empty when all is well.
    QStringList problems() const;

private:
    KeyGroup& addNumber(const char* key, int loadDefault, QVector<QWidget*> widgets,
                        std::function<void(int)> show, std::function<int()> value, QStringList samples);
    KeyGroup& addText(const char* key, std::function<QString()> loadDefault, QVector<QWidget*> widgets,
                      std::function<void(const QString&)> show, std::function<QString()> value,
                      QStringList samples);

    QString element_;
    std::vector<Row> rows_;
};

} // namespace vlk
