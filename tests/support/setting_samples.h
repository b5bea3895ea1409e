#pragma once

// Texts that a file may hold for a setting, well formed and not, by its kind: ends of the range and what lies
// beyond them, every code, strings too short and too long, what is no number. And documents that hold them.

#include "document/configuration.h"
#include "document/values_document.h"
#include "xml/xml_document.h"

inline QStringList hostileTexts()
{
    return {"",    "0",  "1",   "-1", "7", "abc", "2.5abc", "nan", "inf", "1e9", "99999999999999",
            " 12", "+3", "0x10"};
}

// Each kind of row has its own beside those.
template <vlk::IsStructure Row>
QStringList samplesOf(const Row&)
{
    return {};
}
inline QStringList samplesOf(const vlk::Flag& flag)
{
    return {QString::number(flag.on)};
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
inline QStringList samplesOf(const vlk::Text&)
{
    return {QString(200, '1'), "a <b> & \"c\" 'd'", "Грузовик №1", "%1"};
}
inline QStringList samplesOf(const vlk::Choice& choice)
{
    QStringList texts;
    for (const vlk::Code& code : choice.codes)
        texts << code.code << QString(code.code).toLower() << QString(code.code) + ' ';
    return texts;
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
inline QStringList samplesOf(const vlk::Digits&)
{
    return {"1", "0102", "111111111111111111111", "2222", "x1x1", "99"};
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
