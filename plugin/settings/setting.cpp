#include "settings/setting.h"

namespace vlk {

QString normalise(const Setting& setting, const Reading& reading)
{
    return std::visit([&](const auto& row) { return normalised(row, reading); }, setting.kind);
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
    return std::visit(
        [&](const auto& row) {
            if constexpr (requires { row.reset; }) {
                if (row.onReset == OnReset::Own)
                    return fileText(row, row.reset);
            }
            return loadDefault(setting);
        },
        setting.kind);
}

} // namespace vlk
