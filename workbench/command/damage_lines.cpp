#include "command/damage_lines.h"

#include "command/output.h"
#include "window/languages.h"

namespace workbench::command {

namespace {

QString placeAndKind(const vlk::FileDamage& damage)
{
    // By FileDamage::Kind.
    static constexpr const char* kinds[] = {"cli_070", "cli_071", "cli_072", "cli_073", "cli_074", "cli_075"};
    return text("cli_076").arg(damage.offset).arg(text(kinds[damage.kind]));
}

} // namespace

QByteArray damageLine(const File& file, const vlk::FileDamage& damage)
{
    return complaint(file.name, placeAndKind(damage));
}

QByteArray damageLines(const File& file, const std::vector<vlk::FileDamage>& damages)
{
    QByteArray lines;
    for (const vlk::FileDamage& damage : damages)
        lines += damageLine(file, damage);
    return lines;
}

QByteArray damageLine(const File& file, const vlk::FileDamage& damage, qint64 size)
{
    const qint64 end = damage.offset + damage.bytes;
    if (damage.kind != vlk::FileDamage::Records || end >= size)
        return damageLine(file, damage);
    return complaint(file.name, placeAndKind(damage) + text("cli_200").arg(end));
}

} // namespace workbench::command
