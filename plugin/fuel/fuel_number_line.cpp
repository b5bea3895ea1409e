#include "fuel/fuel_number_line.h"

#include "fuel/table/fuel_rows.h"
#include "typing/text_entry.h"

#include <QAbstractItemModel>
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

    // The line keeps what was typed: a text that a validator puts into it counts as set by the program, and
    // Escape would give back that one.
    QValidator::State validate(QString& input, int& position) const override
    {
        QString number = withDecimalPoint(input);
        const QValidator::State state = Validator::validate(number, position);
        return state == QValidator::Invalid ? QValidator::Intermediate : state;
    }

    // Qt would take a comma for one between thousands and make 25 of "2,5".
    void fixup(QString& /*input*/) const override {}
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

QString typedNumber(const QLineEdit* line)
{
    QString number = withDecimalPoint(line->text());
    if (number.endsWith(QLatin1Char('.')))
        number.chop(1);
    return number;
}

void setToTyped(QAbstractItemModel* model, const QModelIndex& index, const QWidget* editor)
{
    const auto* line = qobject_cast<const QLineEdit*>(editor);
    if (line && !isUnfit(line))
        model->setData(index, typedNumber(line));
}

} // namespace vlk
