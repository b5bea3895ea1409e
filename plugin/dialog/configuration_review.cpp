#include "dialog/configuration_review.h"

#include "document/values_document.h"
#include "review/compare_files.h"
#include "review/quick_reach.h"
#include "review/take_over.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"
#include "xml/xml_document.h"

#include <QFileInfo>

#include <algorithm>

namespace vlk {

using review::Differences;
using review::FileKeys;
using review::FileState;

namespace {

constexpr int kPresetDelayMs = 200;

} // namespace

ConfigurationReview::ConfigurationReview(EditHistory& history, std::function<bool()> isQuick, QObject* parent)
    : QObject(parent), history_(history), open_(history, std::move(isQuick)), present_(allSettings()),
      quickAsItCame_(kQuickSettings)
{
    presetDue_.setSingleShot(true);
    presetDue_.setInterval(kPresetDelayMs);
    connect(&presetDue_, &QTimer::timeout, this, [this] {
        followPreset();
        Q_EMIT changed();
    });
    connect(&history_, &EditHistory::changed, this, &ConfigurationReview::refresh);
}

void ConfigurationReview::hold(const PageSettings& page)
{
    if (const int table = FileKeys::all().tableOf(page.values().table()); table >= 0)
        present_.tables()[table].putBack(page.values().held());
    inFull_.reset();
}

void ConfigurationReview::begin(CXmlSection* root)
{
    for (const PageSettings* page : history_.pages())
        hold(*page);
    opened_ = root ? FileState::ofDocument(*root) : now();
    asItCame_ = opened_;
    isWritten_ = false;
    gone_.clear();
    made_.reset();
    newInFull_.reset();
    if (!root && isQuick()) {
        XmlDocument document(this->document(), QStringLiteral("DEVICE"));
        Configuration loaded = open_.inFull();
        loaded.read(*document.root());
        newInFull_ = FileState::ofConfiguration(loaded);
    }
    keepQuick(root, present_);
    presetDue_.stop();
    against_ = Against::File;
    otherName_ = {};
    fileName_.clear();
    path_.clear();
    Q_EMIT begun();
    Q_EMIT compared();
    history_.begin();
}

void ConfigurationReview::keepQuick(CXmlSection* root, const Configuration& asItCame,
                                    const QMap<QString, QString>& quick)
{
    if (root) {
        quickAsItCame_ = Values(kQuickSettings);
        readFrom(*root, quickAsItCame_);
    } else if (isQuick()) {
        quickAsItCame_.putBack(open_.quickPage().values().held());
    } else {
        quickAsItCame_ = review::quickOf(asItCame);
    }
    std::vector<QString> held = quickAsItCame_.held();
    for (int row = 0; row < quickAsItCame_.count(); ++row)
        held[row] = quick.value(quickAsItCame_.row(row).path, held[row]);
    quickAsItCame_.putBack(held);
    quickState_ = FileState::ofConfiguration(asItCame);
    quickState_.lay(quickAsItCame_);
    quickStrangers_ = quickState_.unread();
}

void ConfigurationReview::setWritten(const QByteArray& document, const QMap<QString, QString>& quick)
{
    XmlDocument file(document, QStringLiteral("DEVICE"));
    if (!file.isOpen())
        return;
    asItCame_ = FileState::ofDocument(*file.root());
    isWritten_ = true;
    newInFull_.reset();
    made_.reset();
    Configuration loaded(allSettings());
    loaded.read(*file.root());
    keepQuick(file.root(), loaded, quick);
    edited_ = Differences(asItCame_, now());
    if (against_ == Against::File)
        differences_ = edited_;
    // The full window has them until it is on show again.
    gone_ = leftOutKeys();
    std::erase_if(gone_, [this](int key) { return edited_.isDifferent(key); });
    advice_.reset();
    Q_EMIT changed();
}

std::vector<int> ConfigurationReview::setReplaced(const QByteArray& document)
{
    XmlDocument file(document, QStringLiteral("DEVICE"));
    if (!file.isOpen())
        return {};
    const Differences moved(asItCame_, FileState::ofDocument(*file.root()));
    if (moved.count() == 0)
        return {};
    std::vector<int> keys = moved.keys();
    std::erase_if(keys, [this](int key) { return edited_.isDifferent(key); });
    const std::optional<Made> made = made_;
    setWritten(document, {});
    made_ = made;
    return keys;
}

bool ConfigurationReview::compareWith(Against against, const QString& path)
{
    FileState before = asItCame();
    if (against == Against::Defaults) {
        before = FileState::ofDefaults(present_);
    } else if (against == Against::OtherFile || against == Against::Preset) {
        QByteArray text = review::configurationText(path);
        XmlDocument document(text, QStringLiteral("DEVICE"));
        if (!document.isOpen())
            return false;
        if (against == Against::Preset || review::saysPreset(*document.root())) {
            against = Against::Preset;
            preset_ = std::move(text);
            before = withPreset();
        } else {
            before = FileState::ofDocument(*document.root());
        }
    }
    fileName_ = QFileInfo(path).fileName();
    path_ = path;
    compareWith(std::move(before), against, {});
    return true;
}

void ConfigurationReview::compareWith(FileState before, const EditHistory::Words& name)
{
    fileName_.clear();
    path_.clear();
    compareWith(std::move(before), Against::OtherFile, name);
}

void ConfigurationReview::compareWith(FileState before, Against against, const EditHistory::Words& name)
{
    presetDue_.stop();
    against_ = against;
    otherName_ = name;
    differences_ = Differences(std::move(before), now());
    beyond_.reset();
    Q_EMIT compared();
    Q_EMIT changed();
}

// Other keys than those that the preset moves stand as they are, also where the quick window leaves them out.
FileState ConfigurationReview::withPreset()
{
    XmlDocument document(preset_, QStringLiteral("DEVICE"));
    const Configuration base = written();
    review::AppliedPreset applied = review::applied(*document.root(), base);
    problems_ = std::move(applied.problems);
    FileState state = now();
    moved_.clear();
    for (const review::Difference& moved :
         Differences(FileState::ofConfiguration(base), applied.state).all()) {
        state.take(moved.key, applied.state);
        moved_.push_back(moved.key);
    }
    return state;
}

FileState ConfigurationReview::withMoved(FileState state) const
{
    for (const int key : moved_)
        state.take(key, differences_.before());
    return state;
}

void ConfigurationReview::followPreset()
{
    presetDue_.stop();
    differences_ = Differences(withPreset(), now());
    beyond_.reset();
}

bool ConfigurationReview::isBeyond(int key) const
{
    if (!isQuick() || against_ == Against::File)
        return false;
    if (!beyond_) {
        std::vector<int> keys;
        for (const review::Difference& difference : differences_.all()) {
            if (difference.key >= 0)
                keys.push_back(difference.key);
        }
        beyond_ = review::beyondQuick(written(), differences_.before(), keys);
    }
    return std::ranges::find(*beyond_, key) != beyond_->end();
}

bool ConfigurationReview::isOwn(int key) const
{
    const bool isLeftOut = isQuick() ? isUnedited(key) : edited_.isFilledIn(key) || isMade(key);
    return edited_.isDifferent(key) && !edited_.isAlong(key) && !isLeftOut;
}

bool ConfigurationReview::isEdited(int table, int row) const
{
    const PageSettings* page = pageOf(table);
    return page && (std::ranges::any_of(keysOf(*page, row), [this](int key) { return isOwn(key); }) ||
                    !quickBefore(*page, row).isNull());
}

int ConfigurationReview::counted(const std::vector<int>& keys, bool areUnedited) const
{
    const std::vector<review::Difference> strangers = edited_.strangers();
    const auto is = [&](const auto& one) { return isUnedited(one) == areUnedited; };
    return static_cast<int>(std::ranges::count_if(keys, is) + std::ranges::count_if(strangers, is));
}

int ConfigurationReview::unedited() const
{
    return counted(edited_.keys(), true);
}

int ConfigurationReview::edited() const
{
    return counted(edited_.ownKeys(), false) + static_cast<int>(ofQuickAlone().size());
}

bool ConfigurationReview::isLossy() const
{
    const std::vector<int> keys = edited_.keys();
    const auto isFilledIn = [this](int key) { return edited_.isFilledIn(key); };
    return !isQuick() && unedited() > std::ranges::count_if(keys, isFilledIn);
}

std::vector<int> ConfigurationReview::keysOf(const PageSettings& page, int row)
{
    const FileKeys& all = FileKeys::all();
    const int table = all.tableOf(page.values().table());
    if (table >= 0)
        return all.heldBy(table, row);
    const int key = all.at(page.values().row(row).filePath);
    return key < 0 ? std::vector<int>() : std::vector<int>{key};
}

review::Hit ConfigurationReview::settingAt(const QString& path) const
{
    for (int table = 0; table < FileKeys::all().tables(); ++table) {
        const TableLayout& layout = FileKeys::all().layout(table);
        const int row =
            path.startsWith(layout.prefix()) ? layout.rowAt(path.mid(layout.prefix().size())) : -1;
        if (row >= 0)
            return {.table = table, .row = row};
    }
    return {};
}

FileState ConfigurationReview::now() const
{
    FileState state = FileState::ofConfiguration(present_);
    if (isQuick())
        state.lay(open_.quickPage().values());
    return state;
}

// What one window makes of a new configuration is no edit in the other one.
const FileState& ConfigurationReview::asItCame() const
{
    return newInFull_ && !isQuick() ? *newInFull_ : asItCame_;
}

// One table of the full window at a time; the quick window's values lie over all.
void ConfigurationReview::refresh(const QVector<int>& pages)
{
    for (const int page : pages)
        hold(*history_.pages()[page]);
    const bool isQuick = this->isQuick();
    const bool isPreset = against_ == Against::Preset;
    const bool isOther = isQuick != wasQuick_;
    const bool isWhole = isQuick || isOther || pages.size() == static_cast<int>(history_.pages().size());
    wasQuick_ = isQuick;
    if (!isQuick) // chosen again, they would go again
        std::erase_if(gone_, [this](int key) { return isChosenIn(present_, key); });
    if (isWhole) {
        const FileState state = now();
        edited_ = Differences(asItCame(), state);
        differences_ = against_ == Against::File ? edited_
                       : isPreset                ? Differences(withMoved(state), state)
                                                 : Differences(differences_.before(), state);
    } else {
        for (const int page : pages) {
            const Values& values = history_.pages()[page]->values();
            edited_.update(values);
            if (isPreset)
                differences_.updateBoth(values, moved_);
            else
                differences_.update(values);
        }
    }
    if (isOther)
        beyond_.reset();
    if (isPreset)
        presetDue_.start();
    advice_.reset();
    Q_EMIT changed();
}

const std::vector<review::Finding>& ConfigurationReview::advice() const
{
    if (!advice_)
        advice_ = advise();
    return *advice_;
}

std::vector<review::Finding> ConfigurationReview::advise() const
{
    return review::advise(isQuick() ? written() : present_, asItCame_.unread());
}

void ConfigurationReview::mend(const std::vector<review::Mend>& mends, const EditHistory::Words& words)
{
    history_.asOne(words, [&] {
        for (const review::Mend& mend : mends) {
            const review::Hit setting = settingAt(mend.path);
            if (PageSettings* page = pageOf(setting.table); page && setting.row >= 0)
                page->binder().set(setting.row, mend.value);
        }
    });
}

void ConfigurationReview::takeOver(const std::vector<int>& keys, const EditHistory::Words& words)
{
    history_.settle();
    if (presetDue_.isActive())
        followPreset();
    takeOverFrom(differences_, keys, words);
}

void ConfigurationReview::bringBack(const std::vector<int>& keys, const EditHistory::Words& words)
{
    history_.settle();
    takeOverFrom(edited_, keys, words);
}

void ConfigurationReview::takeOverFrom(const Differences& differences, const std::vector<int>& keys,
                                       const EditHistory::Words& words)
{
    OpenConfiguration::Changed changed{open_.inFull(), written()};
    const std::vector<int> taken = review::takeOver(changed.written, differences, keys);
    review::takeOver(changed.inFull, differences.before(), taken);
    for (Configuration* side : {&changed.inFull, &changed.written})
        review::keepUnwritten(*side, open_.inFull());
    open_.put(changed, {}, words);
}

} // namespace vlk
