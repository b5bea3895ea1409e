#include "telemetry/view/damage_text.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace vlk {

namespace {

// Keys by FileDamage::Kind: %1 is where it begins, %2 where reading went on. The counts of records say
// themselves that they differ.
constexpr const char* kSentences[] = {"tmiw_190", "tmiw_191", "tmiw_192", "tmiw_193", "tmiw_194", nullptr};
constexpr std::size_t kMostSentences = 2;

QString word(const char* key)
{
    return QCoreApplication::translate("vlk", key);
}

QString number(qint64 value)
{
    return QLocale().toString(value);
}

} // namespace

std::function<QString()> damageText(const TelemetryContents& contents)
{
    if (contents.damages.empty())
        return {};
    const auto isCount = [](const FileDamage& damage) { return damage.kind == FileDamage::RecordCount; };
    const bool countDiffers = std::ranges::any_of(contents.damages, isCount);
    std::vector<FileDamage> places = contents.damages;
    std::erase_if(places, isCount);
    const qint64 all = std::ssize(places);
    places.resize(std::min(places.size(), kMostSentences));
    const qint64 whole = std::ssize(contents.pages) - (contents.lastIsCut ? 1 : 0);
    const qint64 announced = countDiffers ? contents.announced.value_or(0) : whole;
    return [places, all, whole, announced] {
        QStringList said{announced == whole ? word("tmiw_188").arg(number(whole))
                                            : word("tmiw_189").arg(number(whole), number(announced))};
        for (const FileDamage& damage : places)
            said << QString(word(kSentences[damage.kind]))
                        .replace(QLatin1String("%1"), number(damage.offset))
                        .replace(QLatin1String("%2"), number(damage.offset + damage.bytes));
        if (all > std::ssize(places))
            said << word("tmiw_198").arg(number(all - std::ssize(places)));
        return said.join(QLatin1Char(' '));
    };
}

} // namespace vlk
