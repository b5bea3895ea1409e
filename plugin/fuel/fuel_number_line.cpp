#include "fuel/fuel_number_line.h"

#include "fuel/table/fuel_rows.h"
#include "typing/text_entry.h"

#include <QCoreApplication>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>

namespace vlk {

namespace {

// A validator of numbers that refuses no sign.
template <class Validator>
class Lenient : public Validator
{
public:
    using Validator::Validator;

    QValidator::State validate(QString& input, int& position) const override
    {
        input = withDecimalPoint(input);
        const QValidator::State state = Validator::validate(input, position);
        return state == QValidator::Invalid ? QValidator::Intermediate : state;
    }
};

} // namespace

void takeNumbers(QLineEdit* line, double top, int decimals)
{
    if (decimals > 0) {
        auto* numbers = new Lenient<QDoubleValidator>(0, top, decimals, line);
        numbers->setNotation(QDoubleValidator::StandardNotation);
        numbers->setLocale(QLocale::c());
        line->setValidator(numbers);
    } else {
        auto* numbers = new Lenient<QIntValidator>(0, static_cast<int>(top), line);
        numbers->setLocale(QLocale::c());
        line->setValidator(numbers);
    }
    TextEntry::join(line)->doubt([line, top, decimals](const QString& text) {
        if (text.isEmpty() || !isUnfit(line))
            return QString();
        return QCoreApplication::translate("vlk", "typed_unfit").arg(0).arg(top).arg(decimals);
    });
}

bool isUnfit(const QLineEdit* line)
{
    return !line->isReadOnly() && !line->hasAcceptableInput();
}

} // namespace vlk
