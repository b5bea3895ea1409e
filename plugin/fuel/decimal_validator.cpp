#include "fuel/decimal_validator.h"

#include "fuel/table/fuel_rows.h"

namespace vlk {

DecimalValidator::DecimalValidator(double top, int decimals, QObject* parent)
    : QDoubleValidator(0, top, decimals, parent)
{
    setLocale(QLocale::c());
    setNotation(StandardNotation);
}

QValidator::State DecimalValidator::validate(QString& input, int& position) const
{
    input = vlk::withDecimalPoint(input);
    return QDoubleValidator::validate(input, position);
}

} // namespace vlk
