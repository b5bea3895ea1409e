#include "review/edit_file.h"

#include "review/key_text.h"
#include "review/settable.h"
#include "settings/all_settings.h"
#include "xml/xml_document.h"

#include <algorithm>
#include <optional>

namespace vlk::review {

namespace {

using What = PresetProblem::What;

// The setting that holds the key now, of those that share it; -1 where the file would not have it.
int rowOf(const Configuration& configuration, int key)
{
    const FileKey& place = FileKeys::all()[key];
    const Values& values = configuration.tables()[place.table];
    const auto found = std::ranges::find_if(place.rows, [&](int row) { return values.isWritten(row); });
    return found == place.rows.end() ? -1 : *found;
}

// A file says by an address that a server is in use; only then the address is saved.
void switchOn(Configuration* configuration, int key, const QString& value)
{
    const int row = rowOf(*configuration, key);
    if (row < 0 || value.isEmpty())
        return;
    Values& values = configuration->tables()[FileKeys::all()[key].table];
    Values after = values;
    after.edit(row, value);
    for (const Sets& rule : values.table().all<Sets>()) {
        const bool isSwitch = rule.moment == Moment::AfterRead && !values.row(rule.path.row).base->stored;
        if (isSwitch && rule.when.row == row && after.holds(rule.when))
            values.edit(rule.path.row, QString::fromLatin1(rule.to));
    }
}

// Gives the value that the file has to hold then; none with a problem.
std::optional<QString> edit(Configuration* configuration, int key, const KeyEdit& edit,
                            PresetProblem* problem)
{
    const int row = rowOf(*configuration, key);
    if (row < 0) {
        *problem = {What::NoPlace, edit.path, edit.value};
        return std::nullopt;
    }
    Values& values = configuration->tables()[FileKeys::all()[key].table];
    const int holder = values.holder(row);
    const Setting& setting = values.setting(holder);
    const Limits limits = values.limits(holder);
    Taken taken = takenAs(setting, {edit.value, values.value(holder), limits});
    // A long period is lost by the next load alone, which advice tells.
    if (taken.change == Change::Wrapped)
        taken = takenAs(setting, {edit.value, values.value(holder), limits, Source::Edit});
    const Change change = isWhole(taken.change) && !isSettable(setting, edit.value, taken.change)
                              ? Change::UnknownCode
                              : taken.change;
    if (!isWhole(change)) {
        *problem = {What::BadValue, edit.path, edit.value, change, &setting, limits};
        return std::nullopt;
    }
    values.edit(row, taken.value);
    return values.written(row, taken.value);
}

struct Target
{
    Configuration configuration;
    std::vector<int> keys; // that are asked for
};

bool isAsIn(const FileState& state, int key, const FileState& wanted)
{
    const Held& held = state.at(key);
    const QString& saved = wanted.at(key).saved;
    return held.isSaved == wanted.at(key).isSaved &&
           (held.saved == saved || (held.isOfEdit && held.text == saved));
}

// A text that a load makes the configuration of, and that holds the keys. Null where there is none.
QByteArray brought(QByteArray text, const Target& target)
{
    const FileState wanted = FileState::ofConfiguration(target.configuration);
    // Most edits need one round; what a load sets by a rule once more is laid over it in another one.
    constexpr int rounds = 4;
    for (int round = 0; round < rounds; ++round) {
        XmlDocument document(text, QStringLiteral("DEVICE"));
        const FileState now = FileState::ofDocument(*document.root());
        std::vector<int> keys;
        for (int key = 0; key < FileKeys::all().count(); ++key) {
            const bool isAsked = std::ranges::find(target.keys, key) != target.keys.end();
            if (!isAsIn(now, key, wanted) || (isAsked && !(now.at(key) == wanted.at(key))))
                keys.push_back(key);
        }
        if (keys.empty())
            return text;
        const QByteArray before = text;
        for (const int key : keys) {
            const QString& path = FileKeys::all()[key].path;
            text =
                wanted.at(key).isSaved ? withKey(text, path, wanted.at(key).saved) : withoutKey(text, path);
        }
        if (text == before)
            break;
    }
    return {};
}

EditedFile edited(const QByteArray& text, const Target& target, std::vector<PresetProblem> problems)
{
    const QByteArray changed = brought(text, target);
    if (changed.isNull()) {
        for (const int key : target.keys)
            problems.push_back({What::NoPlace, FileKeys::all()[key].path, {}});
    }
    return {true, changed.isNull() ? text : changed, std::move(problems)};
}

} // namespace

EditedFile withEdits(const QByteArray& text, const std::vector<KeyEdit>& edits)
{
    XmlDocument document(text, QStringLiteral("DEVICE"));
    if (!document.isOpen())
        return {.isReadable = false, .text = text};
    Target target{Configuration(allSettings()), {}};
    target.configuration.read(*document.root());

    std::vector<PresetProblem> problems;
    std::vector<std::pair<KeyEdit, int>> open;
    for (const KeyEdit& asked : edits) {
        if (const int key = FileKeys::all().at(asked.path); key >= 0)
            open.emplace_back(asked, key);
        else
            problems.push_back({What::UnknownKey, asked.path, asked.value});
    }
    for (const auto& [asked, key] : open)
        switchOn(&target.configuration, key, asked.value);
    std::vector<std::pair<KeyEdit, QString>> done;
    while (!open.empty()) {
        // Those that have no place yet wait for the others.
        const auto next = std::ranges::find_if(
            open, [&](const auto& entry) { return rowOf(target.configuration, entry.second) >= 0; });
        const auto taken = next == open.end() ? open.begin() : next;
        PresetProblem problem{};
        if (const auto value = edit(&target.configuration, taken->second, taken->first, &problem)) {
            target.keys.push_back(taken->second);
            done.emplace_back(taken->first, *value);
        } else {
            problems.push_back(problem);
        }
        open.erase(taken);
    }
    // An edit may have taken back one before it, or a rule the edit itself.
    for (std::size_t i = 0; i < done.size(); ++i) {
        const int row = rowOf(target.configuration, target.keys[i]);
        const Values& values = target.configuration.tables()[FileKeys::all()[target.keys[i]].table];
        if (row < 0 || values.written(row) != done[i].second)
            problems.push_back({What::BadValue, done[i].first.path, done[i].first.value, Change::ByRule});
    }
    if (!problems.empty())
        return {true, text, std::move(problems)};
    EditedFile result = edited(text, target, {});
    // As a load has it: what is switched on follows from the file.
    XmlDocument after(result.text, QStringLiteral("DEVICE"));
    Configuration loaded(allSettings());
    loaded.read(*after.root());
    const std::vector<Finding> findings = advise(loaded);
    for (std::size_t i = 0; i < done.size(); ++i) {
        const FileKey& place = FileKeys::all()[target.keys[i]];
        const Values& values = loaded.tables()[place.table];
        const int holder = values.holder(place.rows.front());
        if (const Finding* error = errorOf(findings, target.keys[i], done[i].second))
            problems.push_back({.what = What::BadValue,
                                .path = done[i].first.path,
                                .text = done[i].first.value,
                                .change = Change::UnknownCode,
                                .setting = &values.setting(holder),
                                .limits = values.limits(holder),
                                .error = adviceText(*error)});
    }
    return problems.empty() ? result : EditedFile{true, text, std::move(problems)};
}

EditedFile withConfiguration(const QByteArray& text, const Configuration& configuration,
                             const std::vector<int>& keys)
{
    return edited(text, {configuration, keys}, {});
}

EditedFile withPreset(const QByteArray& text, CXmlSection& preset)
{
    XmlDocument document(text, QStringLiteral("DEVICE"));
    if (!document.isOpen())
        return {.isReadable = false, .text = text};
    Configuration configuration(allSettings());
    configuration.read(*document.root());
    AppliedPreset applied = review::applied(preset, configuration);
    return edited(text, {std::move(applied.result), std::move(applied.keys)}, std::move(applied.problems));
}

} // namespace vlk::review
