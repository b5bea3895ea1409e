#include "settings/setting.h"

namespace vlk {

Normalised normalise(const Setting& setting, const Reading& reading)
{
    return std::visit([&](const auto& row) { return normalised(row, reading); }, setting.kind);
}

QString loadDefault(const Setting& setting)
{
    return std::visit(
        [](const auto& row) {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(row)>, Group>)
                return QString();
            else
                return fileText(row, row.load);
        },
        setting.kind);
}

QString resetValue(const Setting& setting)
{
    if (setting.base().onReset != OnReset::own)
        return loadDefault(setting);
    return std::visit(
        [](const auto& row) {
            if constexpr (requires { row.reset; })
                return fileText(row, row.reset);
            else
                return QString();
        },
        setting.kind);
}

QString valueText(const Setting& setting, const QString& value, const char* unit)
{
    return std::visit([&](const auto& row) { return toldText(row, value, unit); }, setting.kind);
}

} // namespace vlk
