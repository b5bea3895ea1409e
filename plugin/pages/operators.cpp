#include "pages/operators.h"

#include <QCoreApplication>
#include <QStringList>

namespace vlk {

namespace {

constexpr MobileOperator kOperators[] = {
    {"25001", "cfgt1_002", "internet.mts.ru", "mts", "mts"},
    {"25099", "cfgt1_003", "internet.beeline.ru", "beeline", "beeline"},
    {"25002", "cfgt1_004", "internet", "", ""},
    {"25020", "", "internet.tele2.ru", "", ""},
    {"24801", "", "internet.emt.ee", "", ""},
    {"", "M2M Express", "m2m.express", "", ""},
    {"", "M2M Beeline", "m2m.beeline.ru", "beeline", "beeline"},
    {"25039", "", "internet.rt.ru", "", ""},
    {"40101", "", "internet.beeline.kz", "@internet.beeline", "beeline"},
    {"40102", "", "internet", "", ""},
    {"25701", "", "internet", "", ""},
    {"25702", "", "mts", "mts", "mts"},
};

// The operators that have a text in one of their columns, in order. An array too short or too long for them
// does not compile.
template <std::size_t size>
consteval std::array<const MobileOperator*, size> operatorsWith(const char* MobileOperator::*column)
{
    std::array<const MobileOperator*, size> found{};
    std::size_t count = 0;
    for (const MobileOperator& entry : kOperators) {
        if (*(entry.*column))
            found.at(count++) = &entry;
    }
    return count == size ? found : throw "the table has another number of such operators";
}

constexpr auto kPresets = operatorsWith<kOperatorPresets>(&MobileOperator::preset);
constexpr auto kApnList = operatorsWith<kApnRows>(&MobileOperator::code);

} // namespace

const MobileOperator& defaultApnRow(int row)
{
    return *kApnList.at(static_cast<std::size_t>(row));
}

QStringList operatorLabels()
{
    QStringList labels;
    for (const MobileOperator* entry : kPresets)
        labels << QCoreApplication::translate("vlk", entry->preset);
    labels << QCoreApplication::translate("vlk", "cfgt1_119");
    labels << QCoreApplication::translate("vlk", "cfgt1_120");
    return labels;
}

const MobileOperator* operatorPreset(int item)
{
    return item >= 0 && item < kOperatorPresets ? kPresets.at(static_cast<std::size_t>(item)) : nullptr;
}

int presetWith(const QString& apn, const QString& login, const QString& password)
{
    for (int item = 0; item < kOperatorPresets; ++item) {
        const MobileOperator* entry = operatorPreset(item);
        if (apn == QLatin1String(entry->apn) && login == QLatin1String(entry->login) &&
            password == QLatin1String(entry->password))
            return item;
    }
    return -1;
}

} // namespace vlk
