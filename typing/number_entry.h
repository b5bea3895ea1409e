#pragma once

// Typing a number into a spin box. Point and comma are both the decimal sign, in either language and also in
// a paste, and never a group sign; blanks may stand between thousands.

#include "typing/typed_entry.h"

class QDoubleSpinBox;
class QSpinBox;

namespace vlk {

class NumberEntry : public TypedEntry
{
    Q_OBJECT

public:
    // Joins it to a QSpinBox or a QDoubleSpinBox, once.
    static NumberEntry* join(QAbstractSpinBox* box);

    // Completes what the line holds with what stands round every value, and spells the decimal sign as the
    // box does.
    void complete(QString* text, int* place) const;

protected:
    QString typed() const override;
    std::optional<News> take(const QString& typed) override;
    QString complaint(const QString& typed) const override;
    void restore() override;
    bool keyPressed(QKeyEvent* event) override;

private:
    // What a text is for the box.
    struct Reading
    {
        std::optional<double> number;
        QString complaint;        // where it is no number for this box
        bool isBeginning = false; // but it may become one
    };

    NumberEntry(QAbstractSpinBox* box, QSpinBox* whole, QDoubleSpinBox* real);

    Reading read(QString text) const;
    QString prefix() const;
    QString suffix() const;
    QString spelled(double number) const;
    double least() const;
    double most() const;
    int decimals() const;
    bool isHexadecimal() const;
    // Keeps cursor and selection off the unit.
    void stayInTheNumber();

    // One of them is null.
    QSpinBox* whole_;
    QDoubleSpinBox* real_;
};

} // namespace vlk
