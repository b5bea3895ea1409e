#pragma once

// The samples of each kind of row: its name in golden tables, texts that a file may hold for a setting of it,
// well formed and not, and what a person types into it. And documents that hold them.

#include "document/configuration.h"
#include "document/values_document.h"
#include "xml/xml_document.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <optional>
#include <vector>

inline QStringList hostileTexts()
{
    return {"",    "0",  "1",   "-1", "7", "abc", "2.5abc", "nan", "inf", "1e9", "99999999999999",
            " 12", "+3", "0x10"};
}

// What is typed into the field of a setting, or into its boxes with bars between them, and the value that the
// setting is to have then; none where it is refused.
struct Typed
{
    QString keys;
    std::optional<QString> value;
};

// A person chooses there, or does nothing at all, in place of typing.
template <class Row>
concept IsNotTyped = vlk::IsStructure<Row> || std::same_as<Row, vlk::Flag> ||
    std::same_as<Row, vlk::Choice> || std::same_as<Row, vlk::Digits> || std::same_as<Row, vlk::Mask>;

std::vector<Typed> typedInto(const IsNotTyped auto&, const vlk::Limits&, QLatin1Char)
{
    return {};
}

// Beside the hostile ones: ends of the range and what lies beyond them, every code, strings too short and too
// long.
QStringList samplesOf(const vlk::IsStructure auto&)
{
    return {};
}

QString nameOf(const vlk::IsStructure auto&)
{
    return "structure"; // no key of a file
}
inline QString nameOf(const vlk::Constant&)
{
    return "constant";
}

inline QString nameOf(const vlk::Flag&)
{
    return "flag";
}
inline QStringList samplesOf(const vlk::Flag& flag)
{
    return {QString::number(flag.on)};
}

inline QString nameOf(const vlk::Number& number)
{
    return number.isText ? QString("real%1").arg(number.decimals) : QString("integer");
}
inline QStringList samplesOf(const vlk::Number& number)
{
    QStringList texts;
    const auto add = [&](double value) { texts << vlk::fileNumber(number, value) << QString::number(value); };
    for (const double end : {number.least, number.most}) {
        for (const double step : {-1.0, -0.01, 0.0, 0.04, 0.06, 1.0})
            add(end + step);
    }
    add((number.least + number.most) / 2);
    return texts;
}
// With the decimal sign of the other language.
inline std::vector<Typed> typedInto(const vlk::Number& number, const vlk::Limits& limits, QLatin1Char sign)
{
    if (number.blankIsZero)
        return {{"25001", "25001"}, {"2.5", "0"}, {"2,5", "0"}, {"abc", "0"}};
    const double unit = std::pow(10, -number.decimals);
    const double inside = limits.least + std::floor((limits.most - limits.least) / 3 / unit) * unit;
    const auto typed = [&](double value) {
        const QString keys = number.hexadecimal ? QString::number(static_cast<int>(value), 16)
                                                : QString::number(value, 'f', number.decimals);
        return Typed{QString(keys).replace('.', sign),
                     vlk::fileNumber(number, std::clamp(value, limits.least, limits.most))};
    };
    std::vector<Typed> all{typed(inside), typed(limits.least), typed(limits.most), typed(limits.most + 1)};
    if (limits.least != 0)
        all.push_back(typed(limits.least > 0 ? limits.least - unit : limits.least - 1));
    if (limits.least >= 0 || number.hexadecimal)
        all.push_back({"-5", {}});
    all.push_back({number.decimals > 0 ? QString("1.5,5") : QString("2") + sign + '5', {}});
    return all;
}

inline QString nameOf(const vlk::Text&)
{
    return "text";
}
inline QStringList samplesOf(const vlk::Text&)
{
    return {QString(200, '1'), "a <b> & \"c\" 'd'", "Грузовик №1", "%1"};
}
inline std::vector<Typed> typedInto(const vlk::Text& text, const vlk::Limits&, QLatin1Char)
{
    if (text.mask)
        return {{"a1B2c3D4e5F6", "a1:B2:c3:D4:e5:F6"}, {"0", "0:::::"}};
    if (QString(text.pattern).contains("\\d"))
        return {{"12345", "12345"}};
    return {{"aB1.x", "aB1.x"}, {"Гр&\"2\"", QString("Гр&\"2\"").left(6)}};
}

inline QString nameOf(const vlk::Choice&)
{
    return "choice";
}
inline QStringList samplesOf(const vlk::Choice& choice)
{
    QStringList texts;
    for (const vlk::Code& code : choice.codes)
        texts << code.code << QString(code.code).toLower() << QString(code.code) + ' ';
    return texts;
}

inline QString nameOf(const vlk::Period&)
{
    return "period";
}
inline QStringList samplesOf(const vlk::Period& period)
{
    QStringList texts;
    for (const vlk::PeriodPart& part : period.parts) {
        for (const int count : {part.least, part.most, part.most + 1})
            texts << QString::number(static_cast<qint64>(count) * part.seconds) << QString::number(count);
    }
    return texts;
}
inline std::vector<Typed> typedInto(const vlk::Period& period, const vlk::Limits&, QLatin1Char)
{
    std::vector<Typed> all;
    for (const int share : {1, 2, 3}) {
        QStringList keys;
        qint64 seconds = 0;
        for (const vlk::PeriodPart& part : period.parts) {
            const int count = part.most * share / 3;
            keys << QString::number(count);
            seconds += static_cast<qint64>(count) * part.seconds;
        }
        all.push_back({keys.join('|'), QString::number(seconds)});
    }
    return all;
}

inline QString nameOf(const vlk::Digits&)
{
    return "digits";
}
inline QStringList samplesOf(const vlk::Digits&)
{
    return {"1", "0102", "111111111111111111111", "2222", "x1x1", "99"};
}

inline QString nameOf(const vlk::Mask&)
{
    return "mask";
}
// Every length matters, and so does each position on its own.
inline QStringList samplesOf(const vlk::Mask& mask)
{
    QStringList texts = samplesOf(vlk::Text()) + samplesOf(vlk::Digits());
    for (const int length : {50, 122, 255, 256, 300})
        texts << QString(length, '1') << QString("01").repeated(length).left(length);
    for (const vlk::MaskField& field : mask.fields)
        texts << QString(field.positions[0], '0') + '9';
    return texts;
}

inline QStringList samplesOfAnyKind(const vlk::Setting& setting)
{
    QStringList texts =
        hostileTexts() + std::visit([](const auto& row) { return samplesOf(row); }, setting.kind);
    texts.removeDuplicates();
    return texts;
}

// A configuration file with these values, by paths such as "TRACK/POINTS/angle".
inline QByteArray documentWith(const QVector<QPair<QString, QString>>& values)
{
    vlk::XmlDocument document(QString(), "DEVICE");
    for (const auto& [path, text] : values) {
        const QStringList names = path.split('/');
        CXmlSectionPtr element = document.root()->child(names[0]);
        for (int i = 1; i + 1 < names.size(); ++i)
            element = element->child(names[i]);
        element->setString(names.last(), text);
        element->commit();
    }
    return document.text();
}

inline QStringList codesOf(const vlk::When& condition)
{
    return QString(condition.codes).split('|', Qt::SkipEmptyParts);
}

// What has to stand in a file so that a row of it is read: the values that the row and its element ask for.
inline QVector<QPair<QString, QString>> presenceOf(const vlk::Values& table, int index)
{
    const vlk::TableLayout& layout = table.layout();
    const vlk::TableLayout::Row& row = table.row(index);
    const vlk::Group& group = *layout.elements[row.group].group;
    QVector<QPair<QString, QString>> values;
    const auto [first, second] = group.readable.value_or(std::array{group.present, group.presentToo});
    for (const vlk::When& condition : {first, second, row.base->present}) {
        if (condition && !condition.negated)
            values.append(
                {layout.rows[condition.row].filePath, *condition.codes ? codesOf(condition)[0] : "1"});
    }
    return values;
}

inline void readFrom(const CXmlSection& root, vlk::Configuration& settings)
{
    settings.read(root);
}
inline void writeTo(CXmlSection& root, const vlk::Configuration& settings)
{
    settings.write(root);
}

// What settings make of a file that they load after a reset.
template <class Settings>
QByteArray readAndWritten(Settings& settings, const QByteArray& text)
{
    settings.reset();
    vlk::XmlDocument in(text, "DEVICE");
    readFrom(*in.root(), settings);
    vlk::XmlDocument out(QString(), "DEVICE");
    writeTo(*out.root(), settings);
    return out.text();
}

// What becomes of a saved file that is loaded and saved once more: nothing. Only a line whose use is not
// offered is saved as "N/A", and that reads as a line that is not used; and the quick window leaves out fuel
// level sensors that are not used, while one that is not in the file reads as used.
inline QByteArray savedAgain(vlk::Configuration& settings, const QByteArray& saved)
{
    return saved.contains("=\"N/A\"") ? readAndWritten(settings, saved) : saved;
}
inline QByteArray savedAgain(vlk::Values& settings, const QByteArray& saved)
{
    bool readsOtherwise = saved.contains("=\"N/A\"");
    if (settings.layout().section.isEmpty()) {
        for (const char* sensor : {"<FS1 ", "<FS2 ", "<SENS3 ", "<SENS4 "})
            readsOtherwise = readsOtherwise || !saved.contains(sensor);
    }
    return readsOtherwise ? readAndWritten(settings, saved) : saved;
}
