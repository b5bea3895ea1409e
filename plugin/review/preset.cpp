#include "review/preset.h"

#include "base/translated.h"
#include "review/document_walk.h"
#include "review/settable.h"
#include "review/setting_parts.h"
#include "review/take_over.h"
#include "review/value_text.h"
#include "xml/serialize.h"
#include "xml/xml_document.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace vlk::review {

namespace {

// What a document says of itself at its root.
const QString kCreator = QStringLiteral("creator");
const QString kPresetCreator = QStringLiteral("preset");

const char* noteKey(const PresetProblem& problem)
{
    using What = PresetProblem::What;
    switch (problem.what) {
    case What::UnknownKey:
        return "rev_184";
    case What::Doubled:
        return "rev_185";
    case What::NoPlace:
        return "rev_186";
    case What::BadValue:
        break;
    }
    switch (problem.change) {
    case Change::NotANumber:
        return "rev_187";
    case Change::OutOfRange:
    case Change::Wrapped:
        return "rev_188";
    case Change::Rounded:
        return "rev_189";
    case Change::TooLong:
        return "rev_190";
    case Change::NotCarried:
        return "rev_720";
    case Change::ByRule:
        return problem.cause < 0 ? "rev_286" : "rev_285";
    default:
        return "rev_191";
    }
}

KeyTexts textsOf(CXmlSection& preset, std::vector<PresetProblem>* problems)
{
    using What = PresetProblem::What;
    KeyTexts texts;
    QSet<int> seen;
    eachKey(preset, [&](const QString& path, const QString& text) {
        const int key = FileKeys::all().at(path);
        if (key < 0)
            problems->push_back(
                {path.contains(QLatin1Char('[')) ? What::Doubled : What::UnknownKey, path, text});
        else if (seen.contains(key))
            problems->push_back({What::Doubled, path, text});
        else
            texts.emplace_back(key, text);
        seen.insert(key);
    });
    return texts;
}

void addCause(PresetProblem* problem, int key, const Configuration& tried)
{
    const std::vector<int>& rows = FileKeys::all()[key].rows;
    const Values& values = tried.tables()[FileKeys::all()[key].table];
    for (const Sets& rule : values.table().all<Sets>()) {
        if (rule.moment == Moment::Edit || rule.when.row < 0 || !values.holds(rule.when) ||
            std::ranges::find(rows, rule.path.row) == rows.end())
            continue;
        problem->cause = rule.when.row;
        problem->causeValue = values.value(rule.when.row);
        return;
    }
}

// A value that is right in itself stands there as its field would show it.
void tellCause(const PresetProblem& problem, DifferenceText* text)
{
    const int key = FileKeys::all().at(problem.path);
    if (key < 0 || problem.change != Change::ByRule)
        return;
    const TableLayout& layout = FileKeys::all().layout(FileKeys::all()[key].table);
    const TableLayout::Row& row = layout.rows[FileKeys::all()[key].rows.front()];
    if (!row.base->secret)
        text->beforeText = valueText(*row.setting, problem.text, nullptr);
    if (problem.cause >= 0)
        text->note = text->note.arg(QStringLiteral("%1: %2").arg(
            wordsOf(layout, problem.cause).caption,
            valueText(*layout.rows[problem.cause].setting, problem.causeValue, nullptr)));
}

// The document that the configuration would be saved as, with the texts laid over it.
FileState stateWith(const KeyTexts& texts, const Configuration& configuration, Configuration* result)
{
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    configuration.write(*document.root());
    for (const auto& [key, text] : texts)
        setKey(*document.root(), key, text);
    addWhatComes(*document.root(), configuration, texts);
    *result = configuration;
    readAsEdited(*result, *document.root());
    return FileState::ofDocument(*document.root());
}

} // namespace

void writePreset(CXmlSection& root, const FileState& from, std::vector<int> keys, Personal personal)
{
    std::ranges::sort(keys);
    root.setString(kCreator, kPresetCreator);
    root.commit();
    for (const int key : keys) {
        if (from.at(key).isThere && (personal == Personal::Included || !isPersonal(key)))
            setKey(root, key, from.at(key).text);
    }
}

bool isPersonal(int key)
{
    const FileKey& place = FileKeys::all()[key];
    const TableLayout& layout = FileKeys::all().layout(place.table);
    static const QRegularExpression ownOfOne(
        QStringLiteral("^(TRANS/OBJECT/name|TRANS/SRV\\d/objID|BLUETOOTH/SENS\\d/(macaddr|name))$"));
    return ownOfOne.match(place.path).hasMatch() ||
           std::ranges::any_of(place.rows, [&](int row) { return layout.rows[row].base->secret; });
}

std::optional<ChosenParts> chosenParts(int key, const QString& text)
{
    const FileKey& place = FileKeys::all()[key];
    const TableLayout& layout = FileKeys::all().layout(place.table);
    const Setting& setting = *layout.rows[layout.rows[place.rows.front()].target].setting;
    ChosenParts chosen;
    if (const auto* digits = setting.as<Digits>(); digits && !digits->items.empty())
        chosen.rest = partText(setting, 0, QStringLiteral("0"));
    for (int part = 0; part < partCount(setting); ++part) {
        if (!isPartShown(setting, part))
            continue;
        ++chosen.all;
        chosen.count += isPartOn(setting, part, partOf(setting, part, text)) ? 1 : 0;
    }
    return chosen.all > 0 ? std::optional(chosen) : std::nullopt;
}

bool saysPreset(const CXmlSection& root)
{
    return root.getString(kCreator) == kPresetCreator;
}

bool saysConfiguration(const CXmlSection& root)
{
    const QString creator = root.getString(kCreator);
    return !creator.isEmpty() && creator != kPresetCreator;
}

DifferenceText textOf(const PresetProblem& problem, Secrets secrets)
{
    DifferenceText text = textOf(Difference{-1, -1, problem.path, problem.text, {}}, secrets);
    if (const int key = FileKeys::all().at(problem.path); key >= 0) {
        const FileKey& place = FileKeys::all()[key];
        static_cast<SettingWords&>(text) = wordsOf(FileKeys::all().layout(place.table), place.rows.front());
    }
    text.note = translated(noteKey(problem));
    if (!problem.error.isEmpty())
        text.note = translated("rev_740").arg(problem.error);
    tellCause(problem, &text);
    return text;
}

AppliedPreset applied(CXmlSection& preset, const Configuration& configuration)
{
    using What = PresetProblem::What;
    AppliedPreset applied{configuration, {}, {}, {}};
    KeyTexts texts = textsOf(preset, &applied.problems);
    const FileState tried = stateWith(texts, configuration, &applied.result);
    const std::vector<Finding> findings = advise(applied.result);
    const auto isUnfit = [&](const auto& entry) {
        const FileKey& place = FileKeys::all()[entry.first];
        const Held& held = tried.at(entry.first);
        const Values& values = applied.result.tables()[place.table];
        const int holder = values.holder(held.row < 0 ? place.rows.front() : held.row);
        const Setting& setting = values.setting(holder);
        // A long period is lost by the next load alone, which advice tells.
        const bool isLong = held.isOfEdit && held.change == Change::Wrapped;
        const bool isLost = !held.isSaved || (!isLong && held.saved != held.meaning);
        const Finding* error = isLost ? nullptr : errorOf(findings, entry.first, entry.second);
        const bool isUnfit = isLost || error || !isSettable(setting, entry.second, held.change);
        if (isUnfit)
            applied.problems.push_back({!held.isSaved && held.isWhole ? What::NoPlace : What::BadValue,
                                        place.path, entry.second, isLost ? held.change : Change::UnknownCode,
                                        &setting, values.limits(holder)});
        if (isUnfit && held.change == Change::ByRule)
            addCause(&applied.problems.back(), entry.first, applied.result);
        if (error)
            applied.problems.back().error = adviceText(*error);
        return isUnfit;
    };
    std::erase_if(texts, isUnfit);
    stateWith(texts, configuration, &applied.result);
    applied.state = FileState::ofConfiguration(applied.result);
    for (const auto& [key, text] : texts)
        applied.keys.push_back(key);
    return applied;
}

} // namespace vlk::review
