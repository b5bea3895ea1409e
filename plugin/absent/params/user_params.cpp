#include "absent/params/user_params.h"

#include "absent/params/param_catalogues.h"
#include "absent/params/user_param.h"
#include "base/translated.h"
#include "settings/element_types.h"

#include <algorithm>

using Type = userParamType;

namespace {

// Kinds whose key is the code and the index: "fs3".
constexpr Type kPlainTypes[] = {Type::FuelFlow, Type::Humidity, Type::Link,
                                Type::Light,    Type::Pressure, Type::SignalLevel,
                                Type::State,    Type::Battery,  Type::WorkTime};
// Kinds of one code whose key counts the sensors of one axis after the other: "as5" is the first sensor's
// second kind.
constexpr Type kTiltTypes[] = {Type::Tilt, Type::TiltX, Type::TiltY, Type::TiltZ};
constexpr int kSensors = 4;
// Kinds of one code whose key counts the axes of one sensor after the other: "ag4" is the second sensor's
// first axis.
constexpr Type kAccelerationTypes[] = {Type::AccelerationX, Type::AccelerationY, Type::AccelerationZ};
constexpr int kAxes = 3;

bool isCodeOf(Type type, const QString& code)
{
    return code == QLatin1String(vlk::kindOf(type).code);
}

bool isPrefixOf(Type type, const QString& prefix)
{
    return prefix == QString::fromLatin1(vlk::kindOf(type).code).toLower();
}

// What stands behind a kind's name and a blank.
QString numberText(const QString& name, const QString& kindName)
{
    return name.mid(kindName.size() + 1).trimmed();
}

} // namespace

VLK_UserParams::VLK_UserParams(QObject* parent) : QObject(parent)
{
    for (const vlk::ElementType& type : vlk::kElementTypes)
        typeTexts_[QString::fromLatin1(type.code)] = vlk::textOf(type);
    for (std::size_t i = 0; i < kindNames_.size(); ++i) {
        if (const char* key = vlk::kUserParamKinds[i].name)
            kindNames_[i] = vlk::translated(key);
    }
    counters_ = entriesOf(vlk::kCounterRows);
}

QString VLK_UserParams::paramCode(Type type) const
{
    return QString::fromLatin1(vlk::kindOf(type).code);
}

int VLK_UserParams::paramSize(Type type) const
{
    return vlk::kindOf(type).bytes;
}

QString VLK_UserParams::kindName(Type type) const
{
    const auto number = static_cast<std::size_t>(type);
    return number < kindNames_.size() ? kindNames_[number] : QString();
}

QString VLK_UserParams::paramName(Type type, int index) const
{
    const QString name = kindName(type);
    const QString number = QString::number(index);
    return name.isEmpty() ? number : name + QLatin1Char(' ') + number;
}

int VLK_UserParams::typeCodeSize(const QString& elementType) const
{
    const vlk::ElementType* type = vlk::elementType(elementType);
    return type ? type->bytes : 0;
}

QString VLK_UserParams::display(Type type, int index) const
{
    return vlk::UserParam{paramCode(type), paramName(type, index), {}, paramSize(type)}.display();
}

QString VLK_UserParams::keyToDisplay(const QString& key) const
{
    const QString prefix = key.left(2);
    const int number = key.mid(2).toInt();
    for (const Type type : kPlainTypes) {
        if (isPrefixOf(type, prefix))
            return display(type, number);
    }
    if (isPrefixOf(Type::Tilt, prefix)) {
        const int place = std::clamp((number - 1) / kSensors, 0, static_cast<int>(std::size(kTiltTypes)) - 1);
        return display(kTiltTypes[place], number - place * kSensors);
    }
    if (isPrefixOf(Type::Events, prefix))
        return display(Type::Events, number);
    if (isPrefixOf(Type::AccelerationX, prefix) && number >= 1 && number <= kAxes * kSensors)
        return display(kAccelerationTypes[(number - 1) % kAxes], (number - 1) / kAxes + 1);
    if (isPrefixOf(Type::Magnet, prefix))
        return display(Type::Magnet, number);
    return {};
}

QString VLK_UserParams::displayToKey(const QString& text) const
{
    const QString code = text.section(QLatin1Char(','), 0, 0).trimmed();
    const QString name = text.section(QLatin1Char(','), 1, 1).trimmed();
    const auto key = [&](const QString& number) { return code.toLower() + number; };

    for (const Type type : kPlainTypes) {
        if (isCodeOf(type, code))
            return key(numberText(name, kindName(type)));
    }
    if (isCodeOf(Type::Tilt, code)) {
        for (std::size_t i = 0; i < std::size(kTiltTypes); ++i) {
            const QString kind = kindName(kTiltTypes[i]);
            if (name.startsWith(kind))
                return key(QString::number(numberText(name, kind).toInt() + kSensors * static_cast<int>(i)));
        }
        return key(name.right(1));
    }
    // Names of the others may hold commas: all that stands behind the code counts.
    const QString whole = text.section(QLatin1Char(','), 1).trimmed();
    const int number = whole.right(2).trimmed().toInt();
    for (const Type type : {Type::Universal, Type::Events, Type::Magnet}) {
        if (isCodeOf(type, code))
            return key(QString::number(number));
    }
    if (isCodeOf(Type::AccelerationX, code)) {
        for (int axis = 0; axis < kAxes; ++axis) {
            if (whole.contains(kindName(kAccelerationTypes[axis])))
                return key(QString::number(kAxes * number - (kAxes - 1 - axis)));
        }
    }
    return {};
}

QString VLK_UserParams::counterKey(const QString& name) const
{
    for (const VLK_UserParam_CAN* counter : counters_) {
        if (!name.isEmpty() && counter->name() == name)
            return QStringLiteral("co%1").arg(counter->id());
    }
    return {};
}

const QList<VLK_UserParam_CAN*>& VLK_UserParams::canList(int catalogue)
{
    const auto place = static_cast<std::size_t>(catalogue);
    QList<VLK_UserParam_CAN*>& entries = can_.at(place);
    if (entries.isEmpty())
        entries = entriesOf(vlk::kCanCatalogues.at(place).rows);
    return entries;
}

QList<VLK_UserParam_CAN*> VLK_UserParams::entriesOf(std::span<const vlk::CatalogueRow> rows)
{
    QList<VLK_UserParam_CAN*> entries;
    for (const vlk::CatalogueRow& row : rows) {
        if (row.type)
            entries << new VLK_UserParam_CAN(entries.size() + 1, row.id, vlk::translated(row.name),
                                             QString::fromLatin1(row.type), this);
        else
            entries.last()->addBit(row.id, vlk::translated(row.name));
    }
    return entries;
}
