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

// The quick window reads an access point of no known operator as the automatic choice. Where it has another
// one than before, the operator is the one that the full window finds.
void followPresets(const Presets& presets, const Values& before, const Values& read,
                   const Configuration& configuration, std::vector<QString>* held)
{
    const bool isSame = std::ranges::all_of(
        presets.fields, [&](const Path& field) { return read.value(field.row) == before.value(field.row); });
    if (!presets.other || isSame)
        return;
    const int trigger = presets.trigger.row;
    (*held)[trigger] = configuration.value(read.row(trigger).path);
    for (const Sets& rule : read.table().all<Sets>()) {
        if (rule.when.row == trigger)
            (*held)[rule.path.row] = read.value(rule.path.row);
    }
}

} // namespace

ConfigurationReview::ConfigurationReview(EditHistory& history, std::function<bool()> isQuick, QObject* parent)
    : QObject(parent), history_(history), isQuick_(std::move(isQuick)), present_(allSettings()),
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
}

void ConfigurationReview::begin(CXmlSection* root)
{
    for (const PageSettings* page : history_.pages())
        hold(*page);
    opened_ = root ? FileState::ofDocument(*root) : now();
    asItCame_ = opened_;
    isWritten_ = false;
    newInFull_.reset();
    if (!root && isQuick()) {
        XmlDocument document(this->document(), QStringLiteral("DEVICE"));
        Configuration loaded = configuration();
        loaded.read(*document.root());
        newInFull_ = FileState::ofConfiguration(loaded);
    }
    keepQuick(root, present_);
    presetDue_.stop();
    against_ = Against::file;
    otherName_ = {};
    fileName_.clear();
    history_.begin();
}

void ConfigurationReview::keepQuick(CXmlSection* root, const Configuration& asItCame)
{
    quickAsItCame_ = Values(kQuickSettings);
    if (root) {
        readFrom(*root, quickAsItCame_);
    } else if (isQuick()) {
        quickAsItCame_.putBack(history_.pages().back()->values().held());
    } else {
        XmlDocument document(QString(), QStringLiteral("DEVICE"));
        asItCame.write(*document.root());
        document.root()->commit();
        readFrom(*document.root(), quickAsItCame_);
    }
    quickState_ = FileState::ofConfiguration(asItCame);
    quickState_.lay(quickAsItCame_);
    quickStrangers_ = quickState_.unread();
}

void ConfigurationReview::setWritten(const QByteArray& document)
{
    XmlDocument file(document, QStringLiteral("DEVICE"));
    if (!file.isOpen())
        return;
    asItCame_ = FileState::ofDocument(*file.root());
    isWritten_ = true;
    newInFull_.reset();
    Configuration loaded(allSettings());
    loaded.read(*file.root());
    keepQuick(file.root(), loaded);
    edited_ = Differences(asItCame_, now());
    if (against_ == Against::file)
        differences_ = edited_;
    advice_.reset();
    Q_EMIT changed();
}

bool ConfigurationReview::compareWith(Against against, const QString& path)
{
    FileState before = asItCame();
    if (against == Against::defaults) {
        before = FileState::ofDefaults(present_);
    } else if (against == Against::otherFile || against == Against::preset) {
        QByteArray text = review::configurationText(path);
        XmlDocument document(text, QStringLiteral("DEVICE"));
        if (!document.isOpen())
            return false;
        if (against == Against::preset || review::saysPreset(*document.root())) {
            against = Against::preset;
            preset_ = std::move(text);
            before = withPreset();
        } else {
            before = FileState::ofDocument(*document.root());
        }
    }
    fileName_ = QFileInfo(path).fileName();
    compareWith(std::move(before), against, {});
    return true;
}

void ConfigurationReview::compareWith(FileState before, const EditHistory::Words& name)
{
    fileName_.clear();
    compareWith(std::move(before), Against::otherFile, name);
}

void ConfigurationReview::compareWith(FileState before, Against against, const EditHistory::Words& name)
{
    presetDue_.stop();
    against_ = against;
    otherName_ = name;
    differences_ = Differences(std::move(before), now());
    beyond_.reset();
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
    if (!isQuick() || against_ == Against::file)
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

bool ConfigurationReview::isAnew(const review::Difference& difference) const
{
    if (difference.key < 0)
        return isQuick() && !difference.after.isNull() &&
               quickStrangers_.value(difference.path) == difference.after;
    return isAnew(difference.key);
}

bool ConfigurationReview::isAnew(int key) const
{
    return isQuick() && quickState_.at(key) == edited_.after().at(key);
}

QString ConfigurationReview::quickBefore(const PageSettings& page, int row) const
{
    const Values& values = page.values();
    if (&values.table() != &kQuickSettings || values.row(row).base->stored)
        return {};
    const QString& before = quickAsItCame_.value(row);
    return before == values.value(row) ? QString() : before;
}

bool ConfigurationReview::isOwn(int key) const
{
    return edited_.isDifferent(key) && !edited_.isAlong(key) && !isAnew(key);
}

bool ConfigurationReview::isEdited(int table, int row) const
{
    return std::ranges::any_of(FileKeys::all().heldBy(table, row), [this](int key) { return isOwn(key); });
}

bool ConfigurationReview::setsAnew() const
{
    return std::ranges::any_of(edited_.ownKeys(), [this](int key) { return isAnew(key); });
}

int ConfigurationReview::edited() const
{
    const std::vector<int> keys = edited_.ownKeys();
    const std::vector<review::Difference> strangers = edited_.strangers();
    return static_cast<int>(
        std::ranges::count_if(keys, [this](int key) { return !isAnew(key); }) +
        std::ranges::count_if(strangers, [this](const auto& stranger) { return !isAnew(stranger); }));
}

Configuration ConfigurationReview::configuration() const
{
    Configuration all(allSettings());
    for (Values& values : all.tables()) {
        for (const PageSettings* page : history_.pages()) {
            if (&page->values().table() == &values.table())
                values.putBack(page->values().held());
        }
    }
    return all;
}

void ConfigurationReview::write(CXmlSection& root) const
{
    configuration().write(root);
    if (isQuick())
        writeTo(root, history_.pages().back()->values());
    root.commit();
}

QByteArray ConfigurationReview::document() const
{
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    write(*document.root());
    return document.text();
}

QMap<QString, QString> ConfigurationReview::quickValues() const
{
    QMap<QString, QString> texts;
    if (!isQuick())
        return texts;
    const Values& values = history_.pages().back()->values();
    for (int row = 0; row < values.count(); ++row)
        texts.insert(values.row(row).path, values.held()[row]);
    return texts;
}

Configuration ConfigurationReview::written() const
{
    Configuration all = configuration();
    if (isQuick()) {
        XmlDocument document(QString(), QStringLiteral("DEVICE"));
        write(*document.root());
        review::readAsEdited(all, *document.root());
    }
    return all;
}

PageSettings* ConfigurationReview::pageOf(int table) const
{
    for (PageSettings* page : history_.pages()) {
        if (FileKeys::all().tableOf(page->values().table()) == table)
            return page;
    }
    return nullptr;
}

const Values* ConfigurationReview::valuesOf(int table) const
{
    const PageSettings* page = pageOf(table);
    return page ? &page->values() : nullptr;
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
        state.lay(history_.pages().back()->values());
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
    const bool isPreset = against_ == Against::preset;
    const bool isOther = isQuick != wasQuick_;
    const bool isWhole = isQuick || isOther || pages.size() == int(history_.pages().size());
    wasQuick_ = isQuick;
    if (isWhole) {
        const FileState state = now();
        edited_ = Differences(asItCame(), state);
        differences_ = against_ == Against::file ? edited_
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
    Configuration changed = written();
    review::takeOver(changed, differences, keys);
    put(changed, {}, words);
}

void ConfigurationReview::bringBack(const review::Unsaved& unsaved, const EditHistory::Words& words)
{
    history_.settle();
    const QByteArray now = document();
    XmlDocument edited(withEdits(now, unsaved), QStringLiteral("DEVICE"));
    Configuration changed = configuration();
    review::readAsEdited(changed, *edited.root());
    XmlDocument unedited(now, QStringLiteral("DEVICE"));
    Configuration unchanged = configuration();
    review::readAsEdited(unchanged, *unedited.root());
    review::keepTheRest(changed, written(), unchanged);
    // They belong to the configuration on which they were made.
    put(changed, now == unsaved.before ? unsaved.quick : QMap<QString, QString>(), words);
}

void ConfigurationReview::put(const Configuration& changed, const QMap<QString, QString>& quick,
                              const EditHistory::Words& words)
{
    const QByteArray now = document();
    history_.asOne(words, [&] {
        for (PageSettings* page : history_.pages()) {
            const auto found = std::ranges::find_if(changed.tables(), [&](const Values& values) {
                return &values.table() == &page->values().table();
            });
            if (found != changed.tables().end())
                page->putBack(found->held());
        }
        if (!isQuick())
            return;
        XmlDocument document(QString(), QStringLiteral("DEVICE"));
        changed.write(*document.root());
        document.root()->commit();
        PageSettings& page = *history_.pages().back();
        const Values before = page.values();
        Values unchanged = before;
        readFrom(*XmlDocument(now, QStringLiteral("DEVICE")).root(), unchanged);
        page.load(document.root());
        Values read = page.values();
        review::keepTheRest(read, before, unchanged);
        std::vector<QString> held = read.held();
        for (const Presets& presets : read.table().all<Presets>())
            followPresets(presets, before, page.values(), changed, &held);
        for (auto value = quick.begin(); value != quick.end(); ++value) {
            if (const int row = page.rowAt(value.key()); row >= 0)
                held[row] = value.value();
        }
        page.putBack(held);
    });
}

} // namespace vlk
