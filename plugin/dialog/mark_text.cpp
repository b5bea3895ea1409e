#include "dialog/mark_text.h"

#include "review/difference_text.h"
#include "review/setting_parts.h"
#include "review/setting_words.h"
#include "review/value_text.h"

#include <QCoreApplication>

#include <algorithm>

namespace vlk {

using review::FileKeys;

QString withColon(const char* key, const QString& told)
{
    return QStringLiteral("%1: %2").arg(QCoreApplication::translate("vlk", key), told);
}

// The settings that it fills may be closed: the change is told where it was made, too.
QString choiceBefore(const ConfigurationReview& review, const PageSettings& page, int row)
{
    if (QString before = review.quickBefore(page, row); !before.isNull())
        return before;
    const Values& values = page.values();
    const review::Differences& edits = review.edits();
    const auto keyOf = [&page](int field) {
        const std::vector<int> keys =
            field < 0 ? std::vector<int>() : ConfigurationReview::keysOf(page, field);
        return keys.empty() ? -1 : keys.front();
    };
    const auto isChanged = [&](const Path& field) {
        const int key = keyOf(field.row);
        return key >= 0 && edits.isDifferent(key);
    };
    for (const Presets* presets : values.row(row).presets) {
        if (!presets->other || keyOf(row) >= 0 || std::ranges::none_of(presets->fields, isChanged))
            continue;
        QString before = values.presetFor(*presets, [&](int field) {
            const int key = keyOf(field);
            return key < 0 ? values.value(field) : edits.before().at(key).meaning;
        });
        if (before != values.value(row))
            return before;
    }
    return {};
}

// One of two values that keep their distance pushes the other, which may lie far from what was typed.
QString moverText(const ConfigurationReview& review, const PageSettings& page, int row)
{
    const Values& values = page.values();
    const std::vector<const Distance*>& distances = values.row(row).distances;
    if (distances.empty())
        return {};
    const std::vector<PageSettings*>& pages = review.history().pages();
    const int place = static_cast<int>(std::ranges::find(pages, &page) - pages.begin());
    const int mover = review.history().moverOf(place, row);
    const auto rule = std::ranges::find_if(distances, [mover](const Distance* one) {
        return mover == one->first.row || mover == one->second.row || mover == one->gapFrom.row;
    });
    if (mover < 0 || mover == row || rule == distances.end())
        return {};
    QString told = review::wordsOf(values.layout(), mover).caption;
    const auto shown = [&](const Path& path) {
        return shownNumber(*values.setting(path.row).number(), values.value(path.row));
    };
    // What it is worth now explains nothing once it has moved away again.
    constexpr double tiny = 1e-6;
    if (shown((*rule)->second) - shown((*rule)->first) <= values.gapOf(**rule) + tiny)
        told += QLatin1Char(' ') + valueText(values, mover);
    return withColon("rev_272", told);
}

QString changeText(const ConfigurationReview& review, const PageSettings& page, int row, int part)
{
    const std::vector<int> keys = ConfigurationReview::keysOf(page, row);
    const review::Differences& edits = review.edits();
    const auto key = std::ranges::find_if(keys, [&](int one) { return edits.isDifferent(one); });
    const Setting& setting = page.values().setting(row);
    if (key == keys.end()) {
        const QString before = choiceBefore(review, page, row);
        return before.isNull() ? QString() : withColon("rev_160", valueText(setting, before, nullptr));
    }
    const review::DifferenceText text =
        review::textOf(edits, edits.differenceAt(*key), *review.valuesOf(FileKeys::all()[*key].table));
    QStringList told;
    if (edits.before().at(*key).isThere) {
        const QString before =
            part < 0 ? text.beforeText
                     : review::partText(setting, part,
                                        review::partOf(setting, part, edits.before().at(*key).meaning));
        told << withColon("rev_160", before.isEmpty() ? QStringLiteral("–") : before);
    }
    if (!text.note.isEmpty())
        told << text.note;
    return told.join(QLatin1Char('\n'));
}

} // namespace vlk
