#include "settings/setting.h"

namespace vlk {

namespace {

QString defaultOf(const Setting& setting, bool isReset)
{
    return std::visit(
        [isReset](const auto& row) {
            if constexpr (requires { row.reset; }) {
                if (isReset && row.onReset == OnReset::own)
                    return fileText(row, row.reset);
            }
            if constexpr (requires { row.load; })
                return fileText(row, row.load);
            else
                return QString();
        },
        setting.kind);
}

} // namespace

QString normalise(const Setting& setting, const Reading& reading)
{
    return std::visit([&](const auto& row) { return normalised(row, reading); }, setting.kind);
}

QString loadDefault(const Setting& setting)
{
    return defaultOf(setting, false);
}

QString resetValue(const Setting& setting)
{
    return defaultOf(setting, true);
}

} // namespace vlk
