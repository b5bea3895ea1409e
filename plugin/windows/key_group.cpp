#include "windows/key_group.h"

#include "xml/xml_section.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QSet>
#include <QSpinBox>

#include <cmath>
#include <utility>

namespace vlk {

namespace {

QStringList numbers(std::initializer_list<int> values)
{
    QStringList texts;
    for (const int value : values)
        texts << QString::number(value);
    return texts;
}

std::function<QString()> constant(const QString& text)
{
    return [text] { return text; };
}

// Values of the whole range that a spin box shows in steps of `unit`.
QStringList rangeSamples(const QSpinBox* box, int unit)
{
    if (!box)
        return {};
    const int middle = box->minimum() + (box->maximum() - box->minimum()) / 3;
    return numbers({box->minimum() * unit, middle * unit, box->maximum() * unit});
}

} // namespace

KeyGroup::KeyGroup(const char* element) : element_(QString::fromLatin1(element)) {}

KeyGroup& KeyGroup::addText(const char* key, std::function<QString()> loadDefault, QVector<QWidget*> widgets,
                            std::function<void(const QString&)> show, std::function<QString()> value,
                            QStringList samples)
{
    Row row;
    row.key = QString::fromLatin1(key);
    row.loadDefault = std::move(loadDefault);
    row.show = std::move(show);
    row.value = std::move(value);
    row.widgets = std::move(widgets);
    row.samples = std::move(samples);
    row.reset = [show = row.show, loadDefault = row.loadDefault] { show(loadDefault()); };
    rows_.push_back(std::move(row));
    return *this;
}

KeyGroup& KeyGroup::addNumber(const char* key, int loadDefault, QVector<QWidget*> widgets,
                              std::function<void(int)> show, std::function<int()> value, QStringList samples)
{
    addText(
        key, constant(QString::number(loadDefault)), std::move(widgets),
        [show = std::move(show)](const QString& text) { show(text.toInt()); },
        [value = std::move(value)] { return QString::number(value()); }, std::move(samples));
    rows_.back().isNumber = true;
    return *this;
}

KeyGroup& KeyGroup::flag(const char* key, QAbstractButton* button, int loadDefault)
{
    return addNumber(
        key, loadDefault, {button}, [button](int value) { button->setChecked(value != 0); },
        [button] { return button->isChecked() ? 1 : 0; }, numbers({0, 1}));
}

KeyGroup& KeyGroup::flag(const char* key, QGroupBox* box, int loadDefault)
{
    return addNumber(
        key, loadDefault, {box}, [box](int value) { box->setChecked(value != 0); },
        [box] { return box->isChecked() ? 1 : 0; }, numbers({0, 1}));
}

KeyGroup& KeyGroup::number(const char* key, QSpinBox* box, int loadDefault, int unit)
{
    return addNumber(
        key, loadDefault, {box}, [box, unit](int value) { box->setValue(value / unit); },
        [box, unit] { return box->value() * unit; }, rangeSamples(box, unit));
}

KeyGroup& KeyGroup::number(const char* key, QDoubleSpinBox* box, int loadDefault)
{
    // The box may offer more than the 32 bits with a sign that the file carries.
    return addNumber(
        key, loadDefault, {box}, [box](int value) { box->setValue(value); },
        [box] { return static_cast<int>(static_cast<qint64>(box->value())); },
        numbers({0, 1, 65536, 2147483647}));
}

KeyGroup& KeyGroup::period(const char* key, std::initializer_list<QSpinBox*> boxes,
                           std::initializer_list<int> units, int loadDefault, int wrap)
{
    Q_ASSERT(boxes.size() == units.size());
    const QVector<QSpinBox*> parts(boxes);
    const QVector<int> seconds(units);
    QVector<QWidget*> widgets;
    int largest = 0;
    for (int i = 0; i < parts.size(); ++i) {
        widgets << parts[i];
        if (parts[i])
            largest += parts[i]->maximum() * seconds[i];
    }
    const int smallest = seconds.last();
    return addNumber(
        key, loadDefault, widgets,
        [parts, seconds, wrap](int value) {
            int rest = wrap > 0 ? ((value % wrap) + wrap) % wrap : value;
            for (int i = 0; i < parts.size(); ++i) {
                parts[i]->setValue(rest / seconds[i]);
                rest %= seconds[i];
            }
        },
        [parts, seconds] {
            int value = 0;
            for (int i = 0; i < parts.size(); ++i)
                value += parts[i]->value() * seconds[i];
            return value;
        },
        numbers({seconds.first() * 2 + smallest * 7, wrap > 0 ? wrap - smallest : largest}));
}

KeyGroup& KeyGroup::real(const char* key, QDoubleSpinBox* box, int decimals, double loadDefault)
{
    const auto written = [decimals](double value) { return QString::number(value, 'f', decimals); };
    return addText(
        key, constant(written(loadDefault)), {box},
        [box](const QString& text) { box->setValue(text.toDouble()); },
        [box, written] { return written(box->value()); },
        box ? QStringList{written(box->minimum()), written(box->minimum() + std::pow(10, -decimals))}
            : QStringList{});
}

KeyGroup& KeyGroup::millivolts(const char* key, QDoubleSpinBox* box, int loadDefault)
{
    // A volt figure such as 13.2 lies below its decimal form in binary: a cut without the small addition
    // would lose a millivolt.
    const auto toMillivolts = [](double volts) { return static_cast<int>(volts * 1000 + 1e-6); };
    return addNumber(
        key, loadDefault, {box}, [box](int value) { box->setValue(value / 1000.0); },
        [box, toMillivolts] { return toMillivolts(box->value()); },
        box ? numbers({toMillivolts(box->minimum()), toMillivolts(box->maximum())}) : QStringList{});
}

KeyGroup& KeyGroup::text(const char* key, QLineEdit* edit, const QString& loadDefault)
{
    return text(key, edit, constant(loadDefault));
}

KeyGroup& KeyGroup::text(const char* key, QLineEdit* edit, std::function<QString()> loadDefault)
{
    return addText(
        key, std::move(loadDefault), {edit}, [edit](const QString& text) { edit->setText(text); },
        [edit] { return edit->text(); }, {QStringLiteral("7"), QString()});
}

KeyGroup& KeyGroup::choice(const char* key, QComboBox* box, std::span<const Choice> choices,
                           const char* loadDefault, const char* fallback, const char* none)
{
    QStringList codes;
    for (const Choice& choice : choices)
        codes << QString::fromLatin1(choice.code);
    return addText(
        key, constant(QString::fromLatin1(loadDefault)), {box},
        [box, fallback = QString::fromLatin1(fallback)](const QString& code) {
            selectChoice(box, code, fallback);
        },
        [box, none = QString::fromLatin1(none)] { return currentChoice(box, none); }, codes);
}

KeyGroup& KeyGroup::index(const char* key, QComboBox* box, int count, int loadDefault)
{
    return addNumber(
        key, loadDefault, {box},
        [box, count](int value) {
            if (value >= 0 && value < count)
                box->setCurrentIndex(value);
        },
        [box] { return qMax(0, box->currentIndex()); }, numbers({0, count - 1}));
}

KeyGroup& KeyGroup::radio(const char* key, std::initializer_list<RadioValue> buttons, int loadDefault)
{
    const QVector<RadioValue> values(buttons);
    QVector<QWidget*> widgets;
    QStringList samples;
    for (const RadioValue& entry : values) {
        widgets << entry.button;
        samples << QString::number(entry.value);
    }
    return addNumber(
        key, loadDefault, widgets,
        [values](int value) {
            for (const RadioValue& entry : values) {
                if (entry.value == value)
                    entry.button->setChecked(true);
            }
        },
        [values] {
            for (const RadioValue& entry : values) {
                if (entry.button->isChecked())
                    return entry.value;
            }
            return values.first().value;
        },
        samples);
}

KeyGroup& KeyGroup::digits(const char* key, std::initializer_list<QCheckBox*> boxes,
                           const QString& loadDefault)
{
    const QVector<QCheckBox*> positions(boxes);
    QVector<QWidget*> widgets;
    QString all;
    for (QCheckBox* box : positions) {
        if (box)
            widgets << box;
        all += QLatin1Char(box ? '1' : '0');
    }
    return addText(
        key, constant(loadDefault), widgets,
        [positions](const QString& text) {
            for (int i = 0; i < positions.size(); ++i) {
                if (positions[i])
                    positions[i]->setChecked(i < text.size() && text[i].digitValue() > 0);
            }
        },
        [positions] {
            QString text;
            for (const QCheckBox* box : positions)
                text += QLatin1Char(box && box->isChecked() ? '1' : '0');
            return text;
        },
        {all, QString(positions.size(), QLatin1Char('0'))});
}

KeyGroup& KeyGroup::optional(const char* key, QCheckBox* box, QSpinBox* value, int loadDefault)
{
    return addNumber(
        key, loadDefault, {box, value},
        [box, value](int number) {
            box->setChecked(number != 0);
            value->setValue(number);
        },
        [box, value] { return box->isChecked() ? value->value() : 0; },
        value ? numbers({0, value->maximum()}) : QStringList{});
}

KeyGroup& KeyGroup::custom(const char* key, int loadDefault, std::function<void(int)> show,
                           std::function<int()> value, QVector<QWidget*> widgets, QStringList samples)
{
    return addNumber(key, loadDefault, std::move(widgets), std::move(show), std::move(value),
                     std::move(samples));
}

KeyGroup& KeyGroup::customText(const char* key, const QString& loadDefault,
                               std::function<void(const QString&)> show, std::function<QString()> value,
                               QVector<QWidget*> widgets, QStringList samples)
{
    return addText(key, constant(loadDefault), std::move(widgets), std::move(show), std::move(value),
                   std::move(samples));
}

KeyGroup& KeyGroup::resetTo(int value)
{
    return resetTo(QString::number(value));
}

KeyGroup& KeyGroup::resetTo(const QString& value)
{
    return resetBy([show = rows_.back().show, value] { show(value); });
}

KeyGroup& KeyGroup::keepOnReset()
{
    return resetBy({});
}

KeyGroup& KeyGroup::resetBy(std::function<void()> action)
{
    rows_.back().reset = std::move(action);
    return *this;
}

void KeyGroup::load(CXmlSection& page) const
{
    const CXmlSectionPtr group = page.child(element_);
    if (!group)
        return;
    for (const Row& row : rows_) {
        if (row.isNumber)
            row.show(QString::number(group->getInt(row.key, row.loadDefault().toInt())));
        else
            row.show(group->getString(row.key, row.loadDefault()));
    }
}

void KeyGroup::save(CXmlSection& page) const
{
    const CXmlSectionPtr group = page.child(element_, 3);
    if (!group)
        return;
    for (const Row& row : rows_)
        group->setString(row.key, row.value());
    group->commit();
}

void KeyGroup::reset() const
{
    for (const Row& row : rows_) {
        if (row.reset)
            row.reset();
    }
}

QStringList KeyGroup::problems() const
{
    QStringList found;
    QSet<QString> seen;
    for (const Row& row : rows_) {
        const QString name = element_ + QLatin1Char('/') + row.key;
        if (seen.contains(row.key))
            found << name + QStringLiteral(": bound twice");
        seen.insert(row.key);
        if (row.widgets.isEmpty())
            found << name + QStringLiteral(": no widget");
        if (row.widgets.contains(nullptr))
            found << name + QStringLiteral(": a widget is missing");
        if (row.samples.size() < 2)
            found << name + QStringLiteral(": fewer than two values to try");
    }
    return found;
}

} // namespace vlk
