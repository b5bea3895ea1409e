#include "review/bring_settings.h"

#include "document/configuration_text.h"
#include "review/advice.h"
#include "review/edit_file.h"
#include "review/setting_parts.h"
#include "review/take_over.h"
#include "settings/all_settings.h"
#include "xml/xml_document.h"

#include <QSet>

#include <algorithm>

namespace vlk::review {

namespace {

QString nameOf(const Finding& finding)
{
    return QLatin1String(finding.rule) + QLatin1Char(' ') + finding.paths.join(QLatin1Char(' '));
}

// The widget of the setting is among those that the rule enables.
bool concerns(const Enable& rule, const Setting& setting)
{
    const Shown* shown = setting.shown();
    if (!shown || rule.targets.areParts)
        return false;
    const QStringList names = numberedName(rule.targets.tail, rule.numbers).split(QLatin1Char(' '));
    return numberedName(rule.targets.form(), rule.numbers) ==
               numberedName(shown->widget.form(), shown->numbers) &&
           names.contains(numberedName(shown->widget.tail, shown->numbers));
}

class Bringing
{
public:
    Bringing(CXmlSection& root, CXmlSection& from, const QStringList& paths) : paths_(paths)
    {
        present_.read(root);
        source_.read(from);
        differences_ = {FileState::ofDocument(from, source_), FileState::ofDocument(root, present_)};
        for (const QString& path : paths) {
            if (const int key = FileKeys::all().at(path); key >= 0)
                keys_.push_back(key);
        }
    }

    EditedFile run(const QByteArray& text)
    {
        for (std::size_t known = SIZE_MAX; known != keys_.size();) {
            known = keys_.size();
            result_ = present_;
            keys_ = takeOver(result_, differences_, keys_);
            for (std::size_t i = 0; i < known; ++i)
                addSwitches(keys_[i]);
            if (known == keys_.size())
                addAdvised();
        }
        mendAdvice();
        return withConfiguration(text, result_, keys_);
    }

private:
    // That are on in the source and off here.
    void addSwitches(int key)
    {
        const FileKey& place = FileKeys::all()[key];
        const TableLayout& layout = FileKeys::all().layout(place.table);
        const Values& wanted = source_.tables()[place.table];
        const Values& now = result_.tables()[place.table];
        for (const int row : place.rows) {
            for (const Enable& rule : layout.table->all<Enable>()) {
                if (!concerns(rule, *layout.rows[row].setting) || now.holds(rule) || !wanted.holds(rule))
                    continue;
                for (const When& condition : rule.when) {
                    add(place.table, condition.row);
                    add(place.table, condition.other);
                }
            }
            const auto isOn = [&](int other) {
                const QString& value = wanted.value(other);
                return !value.isEmpty() && value != QLatin1String("0");
            };
            const TableLayout::Element& element = layout.elements[layout.rows[row].group];
            for (int other = element.firstRow; other < element.endRow; ++other) {
                if (layout.rows[other].key == QLatin1String("use") && isOn(other))
                    add(place.table, other);
            }
            // That of a whole section.
            if (const int whole = layout.rowAt(QStringLiteral("GLOBAL/use")); isOn(whole))
                add(place.table, whole);
        }
    }

    void add(int table, int row)
    {
        if (row < 0)
            return;
        const int key = FileKeys::all().of(table, row);
        // One that no file holds follows others.
        if (key < 0) {
            for (const Sets& rule : FileKeys::all().layout(table).table->all<Sets>()) {
                if (rule.path.row == row && FileKeys::all().of(table, rule.when.row) >= 0)
                    add(table, rule.when.row);
            }
        }
        if (key >= 0 && differences_.isDifferent(key) && std::ranges::find(keys_, key) == keys_.end())
            keys_.push_back(key);
    }

    // What is told without them, here or of the source.
    QSet<QString> knownAdvice() const
    {
        QSet<QString> known;
        for (const Configuration* configuration : {&present_, &source_}) {
            for (const Finding& finding : advise(*configuration))
                known.insert(nameOf(finding));
        }
        return known;
    }

    // Settings without which these would be told of here and are not there: the port of a server. Of what has
    // many parts, as the record, the rules know better which.
    void addAdvised()
    {
        const QSet<QString> known = knownAdvice();
        // As it is read: whether a server is used shows then.
        for (const Finding& finding : advise(configurationIn(documentOf(result_)))) {
            if (known.contains(nameOf(finding)) || !finding.mends.empty())
                continue;
            for (const QString& path : finding.paths) {
                const int key = FileKeys::all().at(path);
                if (key >= 0 && partCount(settingOf(key)) == 0)
                    add(FileKeys::all()[key].table, FileKeys::all()[key].rows.front());
            }
        }
    }

    const Setting& settingOf(int key) const
    {
        const FileKey& place = FileKeys::all()[key];
        return present_.tables()[place.table].setting(place.rows.front());
    }

    // What the settings would be told of here and are not there, as far as the rules know what to do.
    void mendAdvice()
    {
        QSet<QString> known = knownAdvice();
        for (bool isMended = true; isMended;) {
            isMended = false;
            for (const Finding& finding : advise(result_)) {
                if (known.contains(nameOf(finding)) || !isOfBrought(finding))
                    continue;
                known.insert(nameOf(finding));
                isMended = mend(finding);
                // The others belong to the values of before.
                if (isMended)
                    break;
            }
        }
    }

    bool isOfBrought(const Finding& finding) const
    {
        return std::ranges::any_of(finding.paths, [this](const QString& path) {
            return std::ranges::find(keys_, FileKeys::all().at(path)) != keys_.end();
        });
    }

    bool mend(const Finding& finding)
    {
        if (finding.mends.empty() || std::ranges::any_of(finding.mends, [this](const Mend& mend) {
                return paths_.contains(mend.path);
            }))
            return false;
        for (const Mend& mend : finding.mends) {
            result_.edit(mend.path, mend.value);
            keys_.push_back(FileKeys::all().at(mend.path));
        }
        return true;
    }

    const QStringList& paths_;
    Configuration present_{allSettings()};
    Configuration source_{allSettings()};
    Configuration result_{allSettings()};
    Differences differences_; // from the source to what is there
    std::vector<int> keys_;   // that are brought
};

} // namespace

std::optional<QByteArray> withSettings(const QByteArray& text, const QByteArray& from,
                                       const QStringList& paths)
{
    const QString device = QStringLiteral("DEVICE");
    XmlDocument there(text, device);
    XmlDocument source(from, device);
    if (!there.isOpen() || !source.isOpen())
        return std::nullopt;
    const EditedFile edited = Bringing(*there.root(), *source.root(), paths).run(text);
    return edited.problems.empty() ? std::optional(edited.text) : std::nullopt;
}

} // namespace vlk::review
