#include "command/damage_lines.h"

#include "command/output.h"
#include "window/languages.h"

namespace workbench::command {

namespace {

QString reasonOf(const vlk::FileDamage& damage)
{
    // By FileDamage::Kind.
    static constexpr const char* kinds[] = {"cli_070", "cli_071", "cli_072", "cli_073",
                                            "cli_074", "cli_075", "rec_661"};
    if (damage.kind != vlk::FileDamage::Records)
        return text(kinds[damage.kind]);
    return damage.bytes == 0 ? text("cli_077") : text(kinds[damage.kind]).arg(damage.bytes);
}

} // namespace

QString damageText(const vlk::FileDamage& damage, qint64 size)
{
    const QString told = text("cli_076").arg(damage.offset).arg(reasonOf(damage));
    const qint64 end = damage.offset + damage.bytes;
    const bool wentOn = damage.kind == vlk::FileDamage::Records && damage.bytes > 0 && end < size;
    return wentOn ? told + text("cli_200").arg(end) : told;
}

QByteArray damageLine(const File& file, const vlk::FileDamage& damage, qint64 size)
{
    return complaint(file.name, damageText(damage, size));
}

} // namespace workbench::command
