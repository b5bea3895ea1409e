// What nobody has edited and changes all the same: by a load, or by quick setup, which makes sections anew.

#include "dialog/configuration_review.h"

#include "base/translated.h"
#include "document/configuration_text.h"
#include "review/quick_reach.h"
#include "review/setting_parts.h"
#include "review/setting_words.h"
#include "review/take_over.h"
#include "review/value_text.h"
#include "settings/quick_settings.h"

#include <algorithm>

namespace vlk {

using review::Differences;
using review::FileKeys;
using review::FileState;

namespace {

// Keys of choices that decide whether a file has others.
const std::vector<int>& deciders()
{
    static const std::vector<int> all = [] {
        std::vector<int> keys;
        for (int table = 0; table < FileKeys::all().tables(); ++table) {
            const TableLayout& layout = FileKeys::all().layout(table);
            for (int row = 0; row < static_cast<int>(layout.rows.size()); ++row) {
                for (const int decider : review::decidersOf(layout, row)) {
                    const int key = FileKeys::all().of(table, decider);
                    if (key >= 0 && std::ranges::find(keys, key) == keys.end())
                        keys.push_back(key);
                }
            }
        }
        return keys;
    }();
    return all;
}

// With its page.
QString groupOf(int key)
{
    const review::FileKey& place = FileKeys::all()[key];
    const review::SettingWords words =
        review::wordsOf(FileKeys::all().layout(place.table), place.rows.front());
    QStringList parts{words.page, words.group};
    parts.removeAll(QString());
    parts.removeDuplicates();
    return parts.join(QLatin1Char(' '));
}

} // namespace

bool ConfigurationReview::isUnedited(const review::Difference& difference) const
{
    if (difference.key >= 0)
        return isUnedited(difference.key);
    if (!isQuick())
        return difference.byLoad;
    return !difference.after.isNull() && (quickStrangers_.value(difference.path) == difference.after ||
                                          review::isFixedByQuick(difference.path));
}

bool ConfigurationReview::isUnedited(int key) const
{
    if (isMade(key) || !isQuick())
        return isMade(key) || edited_.isByLoad(key);
    // What nobody can choose there follows what was chosen there, but for an edit of full setup.
    const review::Held& came = edited_.before().at(key);
    const review::Held& full = inFull().state.at(key);
    return review::isFixedByQuick(key) && came.isSaved == full.isThere && came.saved == full.text;
}

std::vector<review::Difference> ConfigurationReview::listed() const
{
    if (!isQuick())
        return differences_.all();
    std::vector<review::Difference> all = differences_.allForQuick();
    if (against_ != Against::File)
        return all;
    for (review::Difference& alone : ofQuickAlone()) {
        const auto isBeside = [&](const review::Difference& other) {
            return other.path.section(QLatin1Char('/'), 0, 0) == alone.path.section(QLatin1Char('/'), 0, 0);
        };
        all.insert(std::ranges::find_if(all, isBeside), std::move(alone));
    }
    return all;
}

std::vector<review::Difference> ConfigurationReview::ofQuickAlone() const
{
    std::vector<review::Difference> alone;
    if (!isQuick())
        return alone;
    const PageSettings& page = open_.quickPage();
    const Values& values = page.values();
    const auto isEdited = [&](int row) {
        const int key = FileKeys::all().at(values.row(row).filePath);
        return key >= 0 && edited_.isDifferent(key) && !edited_.isAlong(key) && !isUnedited(key);
    };
    for (int row = 0; row < values.count(); ++row) {
        const QString before = quickBefore(page, row);
        const bool isShown = values.holder(row) == row && review::canBeShown(values.setting(row));
        if (!before.isNull() && isShown &&
            std::ranges::none_of(review::followersOf(values.layout(), row), isEdited))
            alone.push_back({-1, -1, values.row(row).filePath, before, values.value(row)});
    }
    return alone;
}

const char* ConfigurationReview::noteKey(const Differences& differences,
                                         const review::Difference& difference) const
{
    const char* key = review::noteKey(difference);
    const bool isOfFile = &differences == &edited_ || against_ == Against::File;
    const bool isByQuick = isQuick() ? isUnedited(difference) : difference.key >= 0 && isMade(difference.key);
    if (isOfFile && isByQuick && (!difference.byLoad || !key))
        return difference.after.isNull() ? "rev_700" : "rev_701";
    return difference.isAlong && !difference.byLoad && (isOfFile || otherName_) ? "rev_702" : key;
}

review::DifferenceText ConfigurationReview::textOf(const Differences& differences,
                                                   const review::Difference& difference) const
{
    const Values* values = difference.key < 0 ? nullptr : valuesOf(FileKeys::all()[difference.key].table);
    review::DifferenceText text =
        values ? review::textOf(differences, difference, *values) : review::textOf(difference);
    text.note = translated(noteKey(differences, difference));
    return text;
}

QString ConfigurationReview::quickBefore(const PageSettings& page, int row) const
{
    const Values& values = page.values();
    if (&values.table() != &kQuickSettings || values.row(row).base->stored)
        return {};
    const QString& before = quickAsItCame_.value(row);
    return before == values.value(row) ? QString() : before;
}

QStringList ConfigurationReview::takenForUsed() const
{
    QStringList captions;
    if (!isQuick())
        return captions;
    const Values& quick = open_.quickPage().values();
    for (int row = 0; row < quick.count(); ++row) {
        const int holder = quick.holder(row);
        const Setting& setting = quick.setting(holder);
        const int key = FileKeys::all().at(quick.row(row).filePath);
        const bool isSwitch = setting.is<Flag>() || setting.is<Choice>();
        if (holder == row || key < 0 || !isSwitch || !review::canBeShown(setting) ||
            asItCame_.at(key).isThere)
            continue;
        // By the file, and not by an edit.
        if (quickAsItCame_.value(holder) != QLatin1String("1") || quick.value(holder) != QLatin1String("1"))
            continue;
        const QString caption = captionText(setting);
        captions << (caption.isEmpty() ? valueText(quick, holder) : caption);
    }
    return captions;
}

bool ConfigurationReview::isChosenIn(const Configuration& full, int key) const
{
    const review::FileKey& place = FileKeys::all()[key];
    const Values& values = full.tables()[place.table];
    const int row = place.rows.front();
    return values.isWritten(row) && values.value(row) != values.row(row).loadDefault();
}

std::vector<int> ConfigurationReview::leftOutKeys() const
{
    std::vector<int> keys;
    const Configuration* full = beforeQuick();
    if (!full)
        return keys;
    for (const int key : deciders()) {
        const review::FileKey& place = FileKeys::all()[key];
        const review::Held& after = edited_.after().at(key);
        const bool isKept =
            after.isThere && after.meaning == full->tables()[place.table].value(place.rows.front());
        if (isChosenIn(*full, key) && !isKept && isMade(key))
            keys.push_back(key);
    }
    return keys;
}

QStringList ConfigurationReview::leftOut() const
{
    QStringList told;
    for (const int key : leftOutKeys()) {
        if (std::ranges::find(gone_, key) != gone_.end())
            continue;
        const review::FileKey& place = FileKeys::all()[key];
        const Values& full = beforeQuick()->tables()[place.table];
        told << QStringLiteral("%1: %2").arg(groupOf(key), valueText(full, place.rows.front()));
    }
    return told;
}

QStringList ConfigurationReview::madeAnew() const
{
    static const QStringList anew = review::sectionsMadeAnew(layoutOf(kQuickSettings));
    QStringList told;
    for (const int key : isQuick() || made_ ? edited_.keys() : std::vector<int>()) {
        const bool stays = edited_.before().at(key).isThere && edited_.after().at(key).isThere;
        const QString section = edited_.differenceAt(key).path.section(QLatin1Char('/'), 0, 0);
        if (!stays || !isMade(key) || !anew.contains(section))
            continue;
        told << groupOf(key);
    }
    told.removeDuplicates();
    // The full window keeps empty what is gone.
    for (const int key : leftOutKeys())
        told.removeAll(groupOf(key));
    return told;
}

bool ConfigurationReview::isMade(int key) const
{
    const review::Held& after = edited_.after().at(key);
    if (isQuick())
        return quickState_.at(key) == after ||
               (inFull().byQuick.at(key) == after && !(inFull().state.at(key) == after));
    return made_ && std::ranges::binary_search(made_->keys, key) && made_->after.at(key) == after;
}

const ConfigurationReview::InFull& ConfigurationReview::inFull() const
{
    if (!inFull_) {
        const FileState state = FileState::ofConfiguration(present_);
        inFull_ = {state, state};
        inFull_->byQuick.lay(review::quickOf(present_));
    }
    return *inFull_;
}

void ConfigurationReview::moveToFull(const std::function<void()>& move)
{
    std::vector<int> unedited;
    for (int key = 0; key < FileKeys::all().count(); ++key) {
        if (isMade(key))
            unedited.push_back(key);
    }
    Made made{present_, {}, {}, {}};
    // What an earlier change has removed, and nobody has set since.
    if (made_) {
        std::vector<int> gone = made_->keys;
        const FileState now = FileState::ofConfiguration(present_);
        std::erase_if(gone, [&](int key) { return !(made_->after.at(key) == now.at(key)); });
        review::takeOver(made.before, made_->stateBefore, gone);
    }
    move();
    made.stateBefore = FileState::ofConfiguration(made.before);
    made.after = FileState::ofConfiguration(open_.inFull());
    const Differences differences(asItCame(), made.after);
    // After a write from the quick window the full one held, until now, what is gone by then.
    const bool isStale = !gone_.empty();
    for (const int key : unedited) {
        // What the full window held so already was edited there.
        const bool isMoved = !(made.stateBefore.at(key) == made.after.at(key));
        if (isMoved && (!isStale || (differences.isDifferent(key) && !differences.isByLoad(key))))
            made.keys.push_back(key);
    }
    made_ = std::move(made);
}

void ConfigurationReview::bringBackMade(const EditHistory::Words& words)
{
    history_.settle();
    if (!made_)
        return;
    const Differences differences(made_->stateBefore, edited_.after());
    std::vector<int> keys = differences.keys();
    std::erase_if(keys, [this](int key) { return !isMade(key); });
    Configuration changed = written();
    review::takeOver(changed, differences, keys);
    review::keepUnwritten(changed, made_->before);
    open_.put({.inFull = changed, .written = changed}, {}, words);
}

QByteArray ConfigurationReview::withBroughtBack(const QByteArray& document) const
{
    if (isQuick() || !made_)
        return document;
    const FileState& now = edited_.after();
    std::vector<int> keys;
    for (int key = 0; key < FileKeys::all().count(); ++key) {
        const bool wasMade = std::ranges::binary_search(made_->keys, key);
        // Of a line that was not used then, and is used again as in the file.
        const bool wasNowhere = !made_->stateBefore.at(key).isThere && !made_->after.at(key).isThere;
        if (wasMade ? !isMade(key) && made_->stateBefore.at(key) == now.at(key)
                    : wasNowhere && now.at(key).isThere && !edited_.isDifferent(key))
            keys.push_back(key);
    }
    if (keys.empty() || document.isEmpty())
        return document;
    Configuration configuration = configurationIn(document);
    review::takeOver(configuration, now, keys);
    return documentOf(configuration);
}

} // namespace vlk
