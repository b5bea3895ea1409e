// A fleet side by side: the settings in which its files do not agree.

#include "command/commands.h"

#include "base/csv_line.h"
#include "command/configuration_input.h"
#include "command/difference_lines.h"
#include "command/each_file.h"
#include "command/file_names.h"
#include "command/json_line.h"
#include "review/difference_text.h"
#include "review/value_text.h"
#include "settings/all_settings.h"
#include "window/languages.h"
#include "xml/xml_document.h"

#include <QHash>

#include <algorithm>
#include <memory>

namespace workbench::command {

using vlk::review::FileKeys;
using vlk::review::FileState;
using vlk::review::Held;

namespace {

// What the files hold at one path: each value once, and of each file the number of its value. Files are
// told apart only once they differ.
class Column
{
public:
    static constexpr int kLacks = -1;

    // By its meaning, which is not null.
    void take(std::size_t file, const Held& value)
    {
        const auto known = numbers_.constFind(value.meaning);
        const int number = known == numbers_.constEnd() ? static_cast<int>(values_.size()) : *known;
        if (known == numbers_.constEnd()) {
            numbers_.insert(value.meaning, number);
            values_.push_back(value);
        }
        if (held_.empty() && number == 0 && file == same_) {
            ++same_;
            return;
        }
        fill(file);
        held_.push_back(number);
    }

    // Whether that many files all hold the same.
    bool agrees(std::size_t files) const { return held_.empty() && same_ == files; }
    void fill(std::size_t files)
    {
        if (held_.empty())
            held_.assign(same_, 0);
        held_.resize(files, kLacks);
    }
    const std::vector<Held>& values() const { return values_; }
    const std::vector<int>& held() const { return held_; }

private:
    std::size_t same_ = 0; // files with the first value, before one that differs
    std::vector<Held> values_;
    QHash<QString, int> numbers_;
    std::vector<int> held_;
};

// In place of a value that a file lacks.
const QString kLacking = QStringLiteral("–");

struct Names
{
    QString caption;
    QString place; // page, group and caption
    QString words; // the path in front of it
    bool isSecret;
};

Names namesOf(const QString& path)
{
    const int key = FileKeys::all().at(path);
    if (key < 0)
        return {path.section(QLatin1Char('/'), -1), path, path, FileKeys::all().looksSecret(path)};
    const vlk::review::FileKey& place = FileKeys::all()[key];
    const vlk::TableLayout& layout = FileKeys::all().layout(place.table);
    const auto words = vlk::review::wordsOf(layout, place.rows.front());
    const QStringList all{words.page, words.group, words.caption};
    return {words.caption, inWords(all), inWords(path, all), layout.rows[place.rows.front()].base->secret};
}

// A value of the fleet, as a file spells it and as a person reads it.
struct Told
{
    QString value;
    QString words;
    QStringList files;

    // With the code behind words that do not tell it, unless it is one of very many digits.
    QString both() const
    {
        constexpr int mostDigits = 32;
        if (words.isEmpty())
            return value.isEmpty() ? QStringLiteral("\"\"") : valueInOneLine(value);
        // In either decimal sign.
        const bool isTold = words.contains(value) ||
                            words.contains(QString(value).replace(QLatin1Char('.'), QLatin1Char(',')));
        const bool tellsValue = value.isEmpty() || isTold || value.size() > mostDigits;
        return valueInOneLine(tellsValue ? words : QStringLiteral("%1 (%2)").arg(words, value));
    }
};

// The unit of the setting; none where it is another one by another setting, which files may hold differently.
const char* unitOf(const vlk::TableLayout::Row& row)
{
    const bool isFixed = std::ranges::all_of(row.ranges, [](const auto* rule) { return !rule->unit; });
    const vlk::Number* number = row.setting->number();
    return isFixed && number ? number->unitKey : nullptr;
}

class Fleet
{
public:
    void add(const QString& file, const FileState& state)
    {
        for (int key = 0; key < FileKeys::all().count(); ++key) {
            if (state.at(key).isThere)
                columns_[key].take(files_.size(), there(state.at(key)));
        }
        for (const vlk::review::Stranger& stranger : state.strangers()) {
            const auto known = strangers_.constFind(stranger.path);
            std::size_t place = columns_.size();
            if (known != strangers_.constEnd()) {
                place = *known;
            } else {
                strangers_.insert(stranger.path, place);
                strangerPaths_ << stranger.path;
                columns_.emplace_back();
            }
            Held held;
            held.meaning = stranger.text;
            columns_[place].take(files_.size(), there(held));
        }
        files_ << file;
    }

    // Whether anything differs.
    bool tell(const Call& call, Output& output)
    {
        bool differs = false;
        const auto files = static_cast<std::size_t>(files_.size());
        if (call.csv && !call.json)
            output.write((output.isFile() ? "\xEF\xBB\xBF" : "") +
                         (text("cli_040") + QStringLiteral("\r\n")).toUtf8());
        for (const std::size_t place : inOrder()) {
            Column& column = columns_[place];
            if (column.values().empty() || column.agrees(files))
                continue;
            differs = true;
            column.fill(files);
            tellColumn(call, place, column, output);
        }
        return differs;
    }

private:
    QString pathOf(std::size_t place) const
    {
        const int key = static_cast<int>(place);
        const int known = FileKeys::all().count();
        return key < known ? FileKeys::all()[key].path : strangerPaths_[key - known];
    }

    // Section by section: keys that no setting knows stand behind those of theirs.
    std::vector<std::size_t> inOrder() const
    {
        std::vector<std::pair<int, std::size_t>> places;
        for (std::size_t place = 0; place < columns_.size(); ++place)
            places.emplace_back(FileKeys::all().tableOfSection(pathOf(place)), place);
        std::ranges::sort(places);
        std::vector<std::size_t> order;
        order.reserve(places.size());
        for (const auto& [table, place] : places)
            order.push_back(place);
        return order;
    }

    static Held there(Held held)
    {
        if (held.meaning.isNull())
            held.meaning = QStringLiteral("");
        return held;
    }

    void tellColumn(const Call& call, std::size_t place, const Column& column, Output& output) const
    {
        const QString path = pathOf(place);
        const Names names = namesOf(path);
        std::vector<Told> values(column.values().size());
        QStringList lacking;
        for (std::size_t file = 0; file < column.held().size(); ++file) {
            const int number = column.held()[file];
            (number == Column::kLacks ? lacking : values[number].files) << files_[static_cast<int>(file)];
        }
        const auto most =
            std::ranges::max_element(values, {}, [](const Told& told) { return told.files.size(); });
        const bool isMasked = names.isSecret && !call.secrets;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const QString& value = column.values()[i].meaning;
            values[i].value =
                !isMasked || value.isEmpty()
                    ? value
                    : QStringLiteral("%1 %2").arg(QString::fromUtf8(vlk::kSecretDots)).arg(i + 1);
            if (!call.json && !isMasked)
                values[i].words = wordsAt(place, column.values(), i, most - values.begin());
        }
        if (call.json)
            output.write(jsonOf(path, names, values, lacking, most->value));
        else if (call.csv)
            output.write(csvOf(path, names, values, lacking));
        else
            output.write(tableOf(names, std::move(values), lacking));
    }

    // The value in words that tell it from the one that most files have, and that one from all others.
    static QString wordsAt(std::size_t place, const std::vector<Held>& values, std::size_t at,
                           std::ptrdiff_t most)
    {
        const int key = static_cast<int>(place);
        if (key >= FileKeys::all().count())
            return {};
        const vlk::review::FileKey& known = FileKeys::all()[key];
        const vlk::TableLayout& layout = FileKeys::all().layout(known.table);
        const int row = values[at].row < 0 ? known.rows.front() : values[at].row;
        const vlk::TableLayout::Row& holder = layout.rows[layout.rows[row].target];
        const bool isOfMost = static_cast<std::ptrdiff_t>(at) == most;
        return textBeside(*holder.setting, values[at], isOfMost ? values : std::vector{values[most]},
                          unitOf(holder));
    }

    static QByteArray jsonOf(const QString& path, const Names& names, const std::vector<Told>& values,
                             const QStringList& lacking, const QString& most)
    {
        const auto readableAll = [](QStringList files) {
            std::ranges::transform(files, files.begin(), readable);
            return files;
        };
        JsonLine byValue;
        for (const Told& told : values)
            byValue.add(told.value.toUtf8().constData(), readableAll(told.files));
        return JsonLine()
            .add("path", path)
            .add("caption", names.caption)
            .addRaw("values", byValue.object())
            .add("lacking", readableAll(lacking))
            .add("most", most)
            .line();
    }

    static QByteArray csvOf(const QString& path, const Names& names, const std::vector<Told>& values,
                            const QStringList& lacking)
    {
        QString lines;
        const auto add = [&](const QString& file, const QString& value, const QString& words) {
            lines += vlk::csvLine({path, names.place, inOneLine(file), value, words});
        };
        for (const Told& told : values) {
            for (const QString& file : told.files)
                add(file, told.value, told.words);
        }
        for (const QString& file : lacking)
            add(file, {}, kLacking);
        return lines.toUtf8();
    }

    // Tells how many files have the most frequent value, and which ones have each of the others.
    static QByteArray tableOf(const Names& names, std::vector<Told> values, const QStringList& lacking)
    {
        if (!lacking.isEmpty())
            values.push_back({kLacking, {}, lacking});
        qsizetype most = 1;
        int havingMost = 0;
        for (const Told& told : values) {
            const qsizetype files = told.files.size();
            havingMost = files > most ? 1 : havingMost + (files == most ? 1 : 0);
            most = std::max(most, files);
        }
        QString lines = names.words + QLatin1Char('\n');
        for (const Told& told : values) {
            QStringList shown;
            for (const QString& file : told.files)
                shown << inOneLine(file);
            const bool isMost = havingMost == 1 && shown.size() == most && most > 1;
            lines +=
                QStringLiteral("    %1: %2\n")
                    .arg(told.both(), isMost ? text("cli_041").arg(most) : shown.join(QStringLiteral(", ")));
        }
        return lines.toUtf8();
    }

    QStringList files_;
    // A column for each key that settings know, and behind them for others.
    std::vector<Column> columns_ = std::vector<Column>(FileKeys::all().count());
    QHash<QString, std::size_t> strangers_;
    QStringList strangerPaths_;
};

} // namespace

int compare(const Call& call, Output& output)
{
    // Files are read on all cores; they come to the fleet in their order.
    Fleet fleet;
    const int status = eachFile(
        call.files,
        [&](const File& file) {
            return withConfiguration(call, file, [&](const QByteArray&, vlk::XmlDocument& document) {
                auto state = std::make_shared<FileState>(FileState::ofDocument(*document.root()));
                return Outcome{{}, {}, Nothing, [&fleet, file, state] { fleet.add(file.name, *state); }};
            });
        },
        output);
    return std::max<int>(status, fleet.tell(call, output) ? Found : Nothing);
}

} // namespace workbench::command
