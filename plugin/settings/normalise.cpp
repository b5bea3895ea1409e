#include "settings/normalise.h"

#include "base/model_text.h"
#include "base/number_text.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace vlk {

namespace {

bool isWholeNumber(const QString& text)
{
    bool whole = false;
    text.trimmed().toLongLong(&whole);
    return whole;
}

double rounded(double number, int decimals)
{
    return number == std::trunc(number) ? number : QString::number(number, 'f', decimals).toDouble();
}

// Cut towards zero. A figure such as 2.01 lies below its decimal form in binary: without the small addition
// the cut would lose one.
qint64 cut(double number)
{
    return static_cast<qint64>(number + std::copysign(1e-6, number));
}

// Most values stand in the file as they are to: those are `text` itself.
QString spelled(QLatin1String value, const QString& text)
{
    return text == value ? text : QString(value);
}

QString spelled(qint64 number, const QString& text)
{
    std::array<char, 20> digits{}; // "-9223372036854775808"
    const char* const end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    return spelled(QLatin1String(digits.begin(), static_cast<int>(end - digits.begin())), text);
}

// fileNumber() of a number that the file holds as `text`.
QString spelled(const Setting& setting, double shown, const QString& text)
{
    if (setting.kind == Kind::real)
        return QString::number(shown, 'f', setting.decimals);
    const qint64 number = cut(rounded(shown, setting.decimals) * setting.factor);
    if (setting.hexadecimal)
        return QString::number(number, 16).toUpper().rightJustified(2, QLatin1Char('0'));
    return spelled(number, text);
}

Normalised noted(const QString& value, const QString& text, Change change)
{
    if (value == text)
        return {value, Change::none};
    return {value, change};
}

// Most values are what the file holds; `why` finds the reason for the others.
template <class Why>
Normalised notedBy(QString value, const QString& text, Why why)
{
    if (value == text)
        return {value, Change::none};
    return {value, why()};
}

int wholeNumber(const Setting& setting, const QString& text, Source source)
{
    if (setting.hexadecimal)
        return text.toInt(nullptr, 16);
    return source == Source::edit ? text.trimmed().toInt() : leadingInt(text);
}

bool isNumber(const Setting& setting, const QString& text)
{
    bool whole = false;
    if (setting.kind == Kind::real) {
        const double read = text.toDouble(&whole);
        return whole && std::isfinite(read);
    }
    if (!setting.hexadecimal)
        return isWholeNumber(text);
    text.toInt(&whole, 16);
    return whole;
}

Normalised number(const Setting& setting, const QString& text, const Limits& limits, Source source)
{
    double shown = 0;
    if (setting.kind == Kind::real) {
        const double read = leadingDouble(text);
        shown = rounded(setting.singleRead ? static_cast<float>(read) : read, setting.decimals);
    } else {
        const int read = wholeNumber(setting, text, source);
        if (setting.zeroIsOff && (setting.negativeIsOn ? read == 0 : read <= 0))
            return notedBy(QStringLiteral("0"), text,
                           [&] { return isNumber(setting, text) ? Change::outOfRange : Change::notANumber; });
        shown = setting.kind == Kind::scaled
                    ? rounded(static_cast<double>(read) / setting.factor, setting.decimals)
                    : std::trunc(static_cast<double>(read) / setting.factor);
    }
    const double held = std::clamp(shown, limits.least, limits.most);
    return notedBy(spelled(setting, held, text), text, [&] {
        return !isNumber(setting, text) ? Change::notANumber
               : held != shown          ? Change::outOfRange
                                        : Change::rounded;
    });
}

bool fits(const char* pattern, const QString& text)
{
    const std::string_view positions(pattern);
    for (std::size_t i = 0; i < positions.size(); ++i) {
        if (positions[i] != '*' && (positions[i] == '1') != (digitAt(text, i) != 0))
            return false;
    }
    return true;
}

const Code* find(const Setting& setting, const QString& text)
{
    const QString wanted = setting.numeric ? spelled(leadingInt(text), text) : text;
    const auto is = [&](const Code& code) {
        return code.pattern ? fits(code.pattern, text) : QLatin1String(code.code) == wanted;
    };
    const auto found = std::find_if(setting.codes.begin(), setting.codes.end(), is);
    if (found == setting.codes.end() || !found->means)
        return found == setting.codes.end() ? nullptr : &*found;
    return find(setting, QString::fromLatin1(found->means));
}

Normalised chosen(const Setting& setting, const QString& text, const QString& before, const Limits& limits)
{
    const Code* code = find(setting, text);
    if (code && offersCode(setting, *code, limits))
        return noted(spelled(QLatin1String(code->code), text), text, Change::otherForm);
    const QString fallback = setting.fallback ? QString::fromLatin1(setting.fallback) : before;
    if (!code)
        return noted(limits.taken.contains(fallback) ? before : fallback, text, Change::unknownCode);
    return noted(setting.unofferedStays ? before
                 : setting.none         ? QString::fromLatin1(setting.none)
                                        : fallback,
                 text, Change::notOffered);
}

Normalised spread(const Setting& setting, const QString& text, Source source)
{
    const int read = leadingInt(text);
    int rest = read;
    if (setting.wrap > 0 && source == Source::file)
        rest = ((rest % setting.wrap) + setting.wrap) % setting.wrap;
    qint64 held = 0;
    for (const PeriodPart& part : setting.parts) {
        held += static_cast<qint64>(std::clamp(rest / part.seconds, part.least, part.most)) * part.seconds;
        rest %= part.seconds;
    }
    held = std::max(held, static_cast<qint64>(setting.least));
    return notedBy(spelled(held, text), text, [&] {
        return !isWholeNumber(text)                                   ? Change::notANumber
               : std::abs(held - read) < setting.parts.back().seconds ? Change::rounded
                                                                      : Change::outOfRange;
    });
}

bool isListed(std::string_view codes, std::string_view code)
{
    for (;;) {
        const std::size_t end = codes.find('|');
        if (codes.substr(0, end) == code)
            return true;
        if (end == std::string_view::npos)
            return false;
        codes.remove_prefix(end + 1);
    }
}

Normalised digitString(const Setting& setting, const QString& text, const char* offers)
{
    QString held;
    for (std::size_t i = 0; i < setting.positions.size(); ++i) {
        const Position& position = setting.positions[i];
        const int digit = position.widget ? digitAt(text, i) : 0;
        // A box is checked by any digit; a list has an item for each digit, and no other one counts.
        const int known = position.top == 1 ? std::min(digit, 1) : digit > position.top ? 0 : digit;
        const char taken = static_cast<char>('0' + known);
        held += QLatin1Char(offers && !isListed(offers, {&taken, 1}) ? '0' : taken);
    }
    return noted(held, text, Change::otherForm);
}

Normalised maskString(const Setting& setting, const QString& text, const QString& before)
{
    QString read(setting.maxLength, QLatin1Char('0'));
    std::transform(text.begin(), text.begin() + std::min(text.size(), read.size()), read.begin(),
                   [](QChar sign) { return QLatin1Char(sign.digitValue() > 0 ? '1' : '0'); });
    QString held = setting.fields.empty() ? read : QString(setting.maxLength, QLatin1Char('0'));
    for (const MaskField& field : setting.fields) {
        const QString part = maskPart(field, read);
        if (field.items.empty())
            setMaskPart(field, &held, QString(field.count, QLatin1Char(isMaskOn(field, part) ? '1' : '0')));
        else
            setMaskPart(field, &held, maskItem(field, part) < 0 ? maskPart(field, before) : part);
    }
    const Change why = text.size() > setting.maxLength ? Change::tooLong
                       : held != read                  ? Change::notOffered
                                                       : Change::otherForm;
    return noted(held, text, why);
}

// What a line edit with an input mask makes of a text: digits fill the places of the mask, one of its signs
// goes on behind that sign, and what fits nowhere is dropped. Places left empty hold nothing.
Normalised maskedText(const Setting& setting, const QString& text)
{
    const QString mask = QString::fromLatin1(setting.inputMask);
    constexpr QChar place('H');
    const auto isDigit = [](QChar sign) {
        return sign.isNumber() || (sign >= QLatin1Char('a') && sign <= QLatin1Char('f')) ||
               (sign >= QLatin1Char('A') && sign <= QLatin1Char('F'));
    };
    QString held;
    int at = 0;
    for (int i = 0; i < text.size() && at < mask.size();) {
        if (mask[at] != place) {
            held += mask[at];
            if (text[i] == mask[at++])
                ++i;
        } else if (isDigit(text[i])) {
            held += text[i++];
            ++at;
        } else {
            const int sign = text[i] == place ? -1 : mask.indexOf(text[i], at);
            if (sign >= 0) {
                held += mask.mid(at, sign + 1 - at).remove(place);
                at = sign + 1;
            }
            ++i;
        }
    }
    held += mask.mid(at).remove(place);
    return noted(held, text, Change::otherForm);
}

QString defaultText(const Setting& setting, double number, const DefaultText& text)
{
    if (!text.format && setting.hexadecimal)
        return fileNumber(setting, number);
    if (!text.format)
        return QString::number(number, 'f', setting.kind == Kind::real ? setting.decimals : 0);
    const QString format = QString::fromUtf8(text.format);
    if (text.namesModel)
        return format.arg(modelText());
    return text.key ? format.arg(QCoreApplication::translate("vlk", text.key)) : format;
}

} // namespace

bool offersCode(const Setting& setting, const Code& code, const char* offers)
{
    if (!offers)
        offers = setting.offers;
    return offers ? isListed(offers, code.code) : code.offered && !code.means;
}

int digitAt(const QString& text, std::size_t position)
{
    const int index = static_cast<int>(position);
    return index < text.size() ? std::max(0, text[index].digitValue()) : 0;
}

double shownNumber(const Setting& setting, const QString& value)
{
    if (setting.kind == Kind::real)
        return value.toDouble();
    return (setting.hexadecimal ? value.toInt(nullptr, 16) : static_cast<double>(leadingLong(value))) /
           setting.factor;
}

QString fileNumber(const Setting& setting, double shown)
{
    return spelled(setting, shown, {});
}

bool offersCode(const Setting& setting, const Code& code, const Limits& limits)
{
    return offersCode(setting, code, limits.offers) && !limits.taken.contains(QLatin1String(code.code));
}

QString firstOffered(const Setting& setting, const Limits& limits)
{
    for (const Code& code : setting.codes) {
        if (offersCode(setting, code, limits))
            return QString::fromLatin1(code.code);
    }
    return QString::fromLatin1(setting.none);
}

QString nextOffered(const Setting& setting, const QString& value, const Limits& limits)
{
    QString found;
    bool behind = false;
    for (const Code& code : setting.codes) {
        if (offersCode(setting, code, limits)) {
            found = QString::fromLatin1(code.code);
            if (behind)
                break;
        }
        behind = behind || QLatin1String(code.code) == value;
    }
    return found.isEmpty() ? QString::fromLatin1(setting.none) : found;
}

Normalised normalise(const Setting& setting, const QString& text, const QString& before, const Limits& limits,
                     Source source)
{
    switch (setting.kind) {
    case Kind::group:
    case Kind::link:
        return {before, Change::none};
    case Kind::constant:
        return {QString::fromLatin1(setting.loadText.format), Change::none};
    case Kind::flag: {
        const int read = leadingInt(text);
        const bool on = setting.on == 1 ? read != 0 : read == setting.on;
        return notedBy(spelled(on ? setting.on : 0, text), text,
                       [&] { return isWholeNumber(text) ? Change::otherForm : Change::notANumber; });
    }
    case Kind::integer:
    case Kind::real:
    case Kind::scaled:
        if (setting.blankIsZero && text.isEmpty())
            return {text, Change::none};
        return number(setting, text, limits, source);
    case Kind::text:
        if (setting.inputMask)
            return maskedText(setting, text);
        return setting.maxLength > 0 && text.size() > setting.maxLength
                   ? Normalised{text.left(setting.maxLength), Change::tooLong}
                   : Normalised{text, Change::none};
    case Kind::choice:
        return chosen(setting, text, before, limits);
    case Kind::period:
        return spread(setting, text, source);
    case Kind::digits:
        return digitString(setting, text, limits.offers);
    case Kind::mask:
        return maskString(setting, text, before);
    }
    return {before, Change::none};
}

QString maskPart(const MaskField& field, const QString& mask)
{
    QString part(field.count, QLatin1Char('0'));
    std::transform(field.positions.begin(), field.positions.begin() + field.count, part.begin(),
                   [&](int position) { return QLatin1Char(digitAt(mask, position) != 0 ? '1' : '0'); });
    return part;
}

void setMaskPart(const MaskField& field, QString* mask, const QString& part)
{
    for (std::size_t i = 0; i < field.count; ++i)
        (*mask)[field.positions[i]] = part[static_cast<int>(i)];
}

bool isMaskOn(const MaskField& field, const QString& part)
{
    const QLatin1Char on('1');
    return field.always || (field.anyReads ? part.contains(on) : part.startsWith(on));
}

int maskItem(const MaskField& field, const QString& part)
{
    const auto found = std::find_if(field.items.begin(), field.items.end(),
                                    [&](const Code& item) { return part == QLatin1String(item.code); });
    return found == field.items.end() ? -1 : static_cast<int>(found - field.items.begin());
}

QString loadDefault(const Setting& setting)
{
    return defaultText(setting, setting.loadNumber, setting.loadText);
}

QString resetValue(const Setting& setting)
{
    return setting.resets == Setting::Reset::toOwn
               ? defaultText(setting, setting.resetNumber, setting.resetText)
               : loadDefault(setting);
}

} // namespace vlk
