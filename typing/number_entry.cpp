#include "typing/number_entry.h"

#include "plugin/base/thousands.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>
#include <QValidator>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

// Lets everything be typed: what is no number is refused as a whole when typing ends, since a number without
// the sign that was dropped from it is another number.
class Completion : public QValidator
{
public:
    explicit Completion(const NumberEntry& entry, QObject* parent) : QValidator(parent), entry_(entry) {}

    State validate(QString& text, int& place) const override
    {
        entry_.complete(&text, &place);
        return Acceptable;
    }

private:
    const NumberEntry& entry_;
};

bool isDecimalSign(QChar sign)
{
    return sign == QLatin1Char('.') || sign == QLatin1Char(',');
}

QString translated(const char* key)
{
    return QCoreApplication::translate("vlk", key);
}

} // namespace

NumberEntry* NumberEntry::join(QAbstractSpinBox* box)
{
    if (auto* known = qobject_cast<NumberEntry*>(of(box)))
        return known;
    auto* whole = qobject_cast<QSpinBox*>(box);
    auto* real = qobject_cast<QDoubleSpinBox*>(box);
    return whole || real ? new NumberEntry(box, whole, real) : nullptr;
}

NumberEntry::NumberEntry(QAbstractSpinBox* box, QSpinBox* whole, QDoubleSpinBox* real)
    : TypedEntry(box), whole_(whole), real_(real)
{
    box->setKeyboardTracking(false);
    line()->setValidator(new Completion(*this, this));
    connect(line(), &QLineEdit::textEdited, this, &NumberEntry::typedOn);
    if (whole)
        connect(whole, qOverload<int>(&QSpinBox::valueChanged), this, &NumberEntry::valueChanged);
    else
        connect(real, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &NumberEntry::valueChanged);
}

QString NumberEntry::prefix() const
{
    return real_ ? real_->prefix() : whole_->prefix();
}

QString NumberEntry::suffix() const
{
    return real_ ? real_->suffix() : whole_->suffix();
}

double NumberEntry::least() const
{
    return real_ ? real_->minimum() : whole_->minimum();
}

double NumberEntry::most() const
{
    return real_ ? real_->maximum() : whole_->maximum();
}

int NumberEntry::decimals() const
{
    return real_ ? real_->decimals() : 0;
}

bool NumberEntry::isHexadecimal() const
{
    return whole_ && whole_->displayIntegerBase() == 16;
}

QString NumberEntry::typed() const
{
    QString text = line()->text();
    text.chop(text.endsWith(suffix()) ? suffix().size() : 0);
    return text.startsWith(prefix()) ? text.mid(prefix().size()) : text;
}

void NumberEntry::complete(QString* text, int* place) const
{
    if (!text->isEmpty() && *text == box()->specialValueText())
        return;
    if (!text->startsWith(prefix())) {
        text->prepend(prefix());
        *place += prefix().size();
    }
    if (!text->endsWith(suffix()))
        text->append(suffix());
    const int end = text->size() - suffix().size();
    for (int i = prefix().size(); decimals() > 0 && i < end; ++i) {
        if (isDecimalSign(text->at(i)))
            (*text)[i] = box()->locale().decimalPoint();
    }
}

NumberEntry::Reading NumberEntry::read(QString text) const
{
    // A pasted number may bring its unit along.
    const QString unit = suffix().trimmed();
    text = text.trimmed();
    if (!unit.isEmpty() && text.endsWith(unit))
        text.chop(unit.size());
    text = text.trimmed();
    const QString told = text;
    if (text.isEmpty())
        return {{}, translated("typed_empty"), true};
    const bool isMinus = text.startsWith(QLatin1Char('-')) || text.startsWith(QChar(0x2212));
    if (isMinus || text.startsWith(QLatin1Char('+')))
        text.remove(0, 1);
    bool isRight = false;
    if (isHexadecimal()) {
        const qulonglong number = text.toULongLong(&isRight, 16);
        const bool isPlain = isRight && !isMinus && text.at(0).isLetterOrNumber();
        return isPlain ? Reading{static_cast<double>(number), {}, false}
                       : Reading{{}, translated("typed_number").arg(told), false};
    }
    if (isMinus && least() >= 0)
        return {{}, translated("typed_negative").arg(told), false};
    text = withoutThousandsBlanks(text);
    const int point = static_cast<int>(std::ranges::find_if(text, isDecimalSign) - text.cbegin());
    const QString whole = text.left(point);
    QString fraction = text.mid(point + 1);
    const auto isDigit = [](QChar sign) { return sign >= QLatin1Char('0') && sign <= QLatin1Char('9'); };
    const bool isAllDigits = std::ranges::all_of(whole, isDigit) && std::ranges::all_of(fraction, isDigit);
    if (!isAllDigits)
        return {{}, translated("typed_number").arg(told), false};
    if (point < text.size() && decimals() == 0)
        return {{}, translated("typed_whole").arg(told), false};
    if (whole.isEmpty() && fraction.isEmpty())
        return {{}, translated("typed_number").arg(told), true};
    while (fraction.endsWith(QLatin1Char('0')))
        fraction.chop(1);
    if (fraction.size() > decimals())
        return {{}, translated("typed_decimals").arg(told).arg(decimals()), false};
    const double number = (whole + QLatin1Char('.') + fraction + QLatin1Char('0')).toDouble();
    return {isMinus ? -number : number, {}, false};
}

QString NumberEntry::spelled(double number) const
{
    if (isHexadecimal())
        return QString::number(static_cast<qint64>(number), 16).toUpper();
    QLocale plain = box()->locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    return plain.toString(number, 'f', decimals());
}

std::optional<TypedEntry::News> NumberEntry::take(const QString& typed)
{
    const Reading reading = read(typed);
    if (!reading.number)
        return News{Mark::Invalid, reading.complaint};
    const double taken = std::clamp(*reading.number, least(), most());
    if (real_)
        real_->setValue(taken);
    else
        whole_->setValue(static_cast<int>(taken));
    const double held = real_ ? real_->value() : whole_->value();
    if (spelled(held) != spelled(taken))
        return News{Mark::Advice, translated("typed_beside").arg(typed.trimmed(), spelled(held) + suffix())};
    if (taken == *reading.number)
        return {};
    return News{Mark::Advice, translated("typed_range")
                                  .arg(typed.trimmed(), spelled(least()), spelled(most()) + suffix(),
                                       spelled(taken) + suffix())};
}

QString NumberEntry::complaint(const QString& typed) const
{
    const Reading reading = read(typed);
    return reading.isBeginning ? QString() : reading.complaint;
}

// Setting the value or the unit that it has makes a spin box write its line anew; the value does so only
// where the line reads otherwise.
void NumberEntry::restore()
{
    if (real_)
        real_->setSuffix(real_->suffix());
    else
        whole_->setSuffix(whole_->suffix());
}

void NumberEntry::stayInTheNumber()
{
    if (line()->text() == box()->specialValueText())
        return;
    const int first = prefix().size();
    const int end = std::max(first, line()->text().size() - suffix().size());
    if (line()->hasSelectedText()) {
        const int from = line()->selectionStart();
        const int to = from + line()->selectedText().size();
        const int inside = std::clamp(from, first, end);
        line()->setSelection(inside, std::clamp(to, first, end) - inside);
    } else {
        const int place = std::clamp(line()->cursorPosition(), first, end);
        if (place != line()->cursorPosition())
            line()->setCursorPosition(place);
    }
}

bool NumberEntry::keyPressed(QKeyEvent* event)
{
    const bool changes = (!event->text().isEmpty() && event->text().at(0).isPrint()) ||
                         event->matches(QKeySequence::Paste) || event->key() == Qt::Key_Backspace ||
                         event->key() == Qt::Key_Delete;
    if (changes)
        stayInTheNumber();
    return false;
}

} // namespace vlk
