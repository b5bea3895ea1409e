// A fleet side by side: the settings in which its files do not agree.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/difference_lines.h"
#include "command/each_file.h"
#include "command/file_names.h"
#include "command/json_line.h"
#include "review/difference_text.h"
#include "settings/all_settings.h"
#include "window/languages.h"
#include "xml/xml_document.h"

#include <QHash>

#include <algorithm>
#include <memory>

namespace workbench::command {

using vlk::review::FileKeys;
using vlk::review::FileState;

namespace {

// What the files hold at one path: each value once, and of each file the number of its value. Files are
// told apart only once they differ.
class Column
{
public:
    static constexpr int lacks = -1;

    void take(std::size_t file, const QString& value)
    {
        const auto known = numbers_.constFind(value);
        const int number = known == numbers_.constEnd() ? static_cast<int>(values_.size()) : *known;
        if (known == numbers_.constEnd()) {
            numbers_.insert(value, number);
            values_ << value;
        }
        if (held_.empty() && number == 0 && file == same_) {
            ++same_;
            return;
        }
        fill(file);
        held_.push_back(number);
    }

    // Of so many files.
    bool agrees(std::size_t files) const { return held_.empty() && same_ == files; }
    void fill(std::size_t files)
    {
        if (held_.empty())
            held_.assign(same_, 0);
        held_.resize(files, lacks);
    }
    const QStringList& values() const { return values_; }
    const std::vector<int>& held() const { return held_; }

private:
    std::size_t same_ = 0; // files with the first value, before one that differs
    QStringList values_;
    QHash<QString, int> numbers_;
    std::vector<int> held_;
};

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

class Fleet
{
public:
    void add(const QString& file, const FileState& state)
    {
        for (int key = 0; key < FileKeys::all().count(); ++key) {
            if (state.at(key).isThere)
                columns_[key].take(files_.size(), there(state.at(key).meaning));
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
            columns_[place].take(files_.size(), there(stranger.text));
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
            if (column.values().isEmpty() || column.agrees(files))
                continue;
            differs = true;
            column.fill(files);
            tellColumn(call, pathOf(place), column, output);
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
        std::sort(places.begin(), places.end());
        std::vector<std::size_t> order;
        order.reserve(places.size());
        for (const auto& [table, place] : places)
            order.push_back(place);
        return order;
    }

    static QString there(const QString& text) { return text.isNull() ? QStringLiteral("") : text; }

    void tellColumn(const Call& call, const QString& path, const Column& column, Output& output) const
    {
        const Names names = namesOf(path);
        QStringList values = column.values();
        if (names.isSecret && !call.secrets) {
            for (int i = 0; i < values.size(); ++i)
                values[i] = values[i].isEmpty() ? QString() : QStringLiteral("••• %1").arg(i + 1);
        }
        std::vector<QStringList> holders(values.size());
        QStringList lacking;
        for (std::size_t file = 0; file < column.held().size(); ++file) {
            const int number = column.held()[file];
            (number == Column::lacks ? lacking : holders[number]) << files_[static_cast<int>(file)];
        }
        const auto most = std::max_element(holders.begin(), holders.end(),
                                           [](const auto& a, const auto& b) { return a.size() < b.size(); });
        const QString mostValue = values[static_cast<int>(most - holders.begin())];
        if (call.json)
            output.write(jsonOf(path, names, values, holders, lacking, mostValue));
        else if (call.csv)
            output.write(csvOf(path, names, values, holders, lacking));
        else
            output.write(tableOf(names, values, holders, lacking));
    }

    static QByteArray jsonOf(const QString& path, const Names& names, const QStringList& values,
                             const std::vector<QStringList>& holders, const QStringList& lacking,
                             const QString& most)
    {
        const auto readableAll = [](QStringList files) {
            std::transform(files.begin(), files.end(), files.begin(), readable);
            return files;
        };
        JsonLine byValue;
        for (int i = 0; i < values.size(); ++i)
            byValue.add(values[i].toUtf8().constData(), readableAll(holders[i]));
        return JsonLine()
            .add("path", path)
            .add("caption", names.caption)
            .addRaw("values", byValue.object())
            .add("lacking", readableAll(lacking))
            .add("most", there(most))
            .line();
    }

    static QByteArray csvOf(const QString& path, const Names& names, const QStringList& values,
                            const std::vector<QStringList>& holders, const QStringList& lacking)
    {
        QByteArray lines;
        const auto add = [&](const QString& file, const QString& value) {
            QStringList cells{path, names.place, inOneLine(file), value};
            for (QString& cell : cells)
                cell = QLatin1Char('"') + cell.replace(QLatin1Char('"'), QStringLiteral("\"\"")) +
                       QLatin1Char('"');
            lines += (cells.join(QLatin1Char(';')) + QStringLiteral("\r\n")).toUtf8();
        };
        for (int i = 0; i < values.size(); ++i) {
            for (const QString& file : holders[i])
                add(file, values[i]);
        }
        for (const QString& file : lacking)
            add(file, {});
        return lines;
    }

    // Of the value that more files have than any other their number, of the others their names.
    static QByteArray tableOf(const Names& names, QStringList values, std::vector<QStringList> holders,
                              const QStringList& lacking)
    {
        for (QString& value : values)
            value = value.isEmpty() ? QStringLiteral("\"\"") : valueInOneLine(value);
        if (!lacking.isEmpty()) {
            values << QStringLiteral("–");
            holders.push_back(lacking);
        }
        qsizetype most = 1;
        int havingMost = 0;
        for (const QStringList& files : holders) {
            havingMost = files.size() > most ? 1 : havingMost + (files.size() == most ? 1 : 0);
            most = std::max<qsizetype>(most, files.size());
        }
        QString lines = names.words + QLatin1Char('\n');
        for (int i = 0; i < values.size(); ++i) {
            QStringList shown;
            for (const QString& file : holders[i])
                shown << inOneLine(file);
            const bool isMost = havingMost == 1 && shown.size() == most && most > 1;
            lines +=
                QStringLiteral("    %1: %2\n")
                    .arg(values[i], isMost ? text("cli_041").arg(most) : shown.join(QStringLiteral(", ")));
        }
        return lines.toUtf8();
    }

    QStringList files_;
    // Of the keys that settings know, and behind them of others.
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
                return Outcome{{}, {}, nothing, [&fleet, file, state] { fleet.add(file.name, *state); }};
            });
        },
        output);
    return std::max<int>(status, fleet.tell(call, output) ? found : nothing);
}

} // namespace workbench::command
