#pragma once

// Lets a number from 0 up be typed, with a point as decimal sign on every system; a comma becomes one.

#include <QDoubleValidator>

namespace vlk {

class DecimalValidator : public QDoubleValidator
{
    Q_OBJECT

public:
    DecimalValidator(double top, int decimals, QObject* parent);

    State validate(QString& input, int& position) const override;
};

} // namespace vlk
