#include "settings/setting.h"

namespace vlk {

Normalised normalise(const Setting& setting, const Reading& reading)
{
    Normalised taken = std::visit([&](const auto& row) { return normalised(row, reading); }, setting.kind);
    if (taken.value == reading.text)
        taken.change = Change::none;
    return taken;
}

QString loadDefault(const Setting& setting)
{
    return std::visit(
        [](const auto& row) {
            if constexpr (requires { row.load; })
                return fileText(row, row.load);
            else
                return QString();
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
