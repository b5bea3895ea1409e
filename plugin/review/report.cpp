#include "review/report.h"

#include "base/clock.h"
#include "base/shown_text.h"
#include "review/value_text.h"

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>
#include <utility>

namespace vlk::review {

namespace {

// On paper and on a screen alike, also beside a dark window.
constexpr const char* kStyle =
    "body { background-color: #ffffff; color: #000000; font-family: sans-serif; }\n"
    "h2 { border-bottom: 1px solid #000000; }\n"
    "td, th { text-align: left; vertical-align: top; }\n"
    "small { color: #444444; }\n";
constexpr const char* kOnePageStyle = "h1 { font-size: large; margin: 0; }\n"
                                      "h2 { font-size: medium; margin: 5px 0 1px 0; }\n"
                                      "h3 { font-size: small; margin: 3px 0 0 0; }\n"
                                      "p, ul { margin: 0; }\n";

QString element(const char* name, const QString& text)
{
    return QStringLiteral("<%1>%2</%1>\n").arg(QLatin1String(name), text.toHtmlEscaped());
}

struct Line
{
    SettingWords words;
    QStringList values; // one, or before and after
    QString note;
    bool isWorkedOut = false; // not in the file
    bool isUnfilled = false;  // a place of a list that holds nothing, one of many that is not in use
};

using Lines = std::vector<Line>;

// Its value takes the whole width.
bool isLong(const Line& line)
{
    constexpr int longest = 80;
    return line.values.size() == 1 && line.values.first().size() > longest;
}

// The first row of a page; none where there is nothing to name.
QString headRow(const QStringList& head)
{
    QString html;
    for (const QString& title : head)
        html += element("th", title);
    return html.isEmpty() ? html : QStringLiteral("<tr>%1</tr>\n").arg(html);
}

QString rowOf(const Line& line, int captionShare)
{
    const QString caption = line.words.caption.toHtmlEscaped();
    if (isLong(line))
        return QStringLiteral("<tr><td colspan=\"2\">%1: %2</td></tr>\n")
            .arg(caption, line.values.first().toHtmlEscaped());
    const bool isPair = line.values.size() > 1;
    QString html = QStringLiteral("<tr><td width=\"%1%\">").arg(isPair ? 50 : captionShare) + caption;
    if (!line.note.isEmpty())
        html += QStringLiteral("<br><small>%1</small>").arg(line.note.toHtmlEscaped());
    for (const QString& value : line.values)
        html += QLatin1String(isPair ? "</td><td width=\"25%\">" : "</td><td>") +
                (value.isEmpty() ? QStringLiteral("–") : value.toHtmlEscaped());
    return html + QStringLiteral("</td></tr>\n");
}

// Puts lines under their pages and groups, each heading where it changes.
QString tables(Lines::const_iterator line, Lines::const_iterator end, const QStringList& head,
               int captionShare)
{
    QString html;
    QString page;
    QString group;
    bool isInTable = false;
    const auto endTable = [&] {
        if (std::exchange(isInTable, false))
            html += QStringLiteral("</table>\n");
    };
    for (; line != end; ++line) {
        const SettingWords& words = line->words;
        const bool isOtherPage = words.page != std::exchange(page, words.page);
        if (isOtherPage) {
            endTable();
            html += element("h2", words.page);
        }
        if (words.group != std::exchange(group, words.group) || isOtherPage) {
            endTable();
            if (!words.group.isEmpty() && words.group != words.page)
                html += element("h3", words.group);
        }
        if (!std::exchange(isInTable, true)) {
            html += QStringLiteral("<table width=\"100%\" cellpadding=\"2\">\n");
            if (isOtherPage)
                html += headRow(head);
        }
        html += rowOf(*line, captionShare);
    }
    endTable();
    return html;
}

bool isTold(const Values& values, int row, const std::optional<std::vector<int>>& keys, int table)
{
    const int key = FileKeys::all().of(table, row);
    const Setting& holder = values.setting(values.holder(row));
    return key >= 0 && holder.shown() && (holder.shown()->captionKey || holder.is<Digits>()) &&
           values.isWritten(row) && (!keys || std::ranges::find(*keys, key) != keys->end());
}

// That a file does not have and a read works out: whether a server is used, the operator of an access point.
bool isWorkedOut(const Values& values, int row)
{
    const TableLayout::Row& place = values.row(row);
    const Shown* shown = values.setting(row).shown();
    const auto& rules = values.layout().afterRead;
    return !place.base->stored && shown && shown->captionKey &&
           (!place.presets.empty() ||
            std::ranges::any_of(rules, [row](const Sets* rule) { return rule->path.row == row; }));
}

// What has no title would seem to belong to the one above it: it goes below the title that repeats it, as
// the check box of a group does.
void nameUntitled(Lines& lines)
{
    for (Line& line : lines) {
        const bool isTitle =
            line.words.group.isEmpty() && std::ranges::any_of(lines, [&](const Line& other) {
                return other.words.page == line.words.page && other.words.group == line.words.caption;
            });
        if (isTitle)
            line.words.group = line.words.caption;
    }
}

// All lines of a title in the place of the first one, those without a title first on their page. What is
// worked out is told beside others alone.
Lines byTitle(Lines lines)
{
    nameUntitled(lines);
    struct Title
    {
        int place;
        bool isInFile = false;
    };
    std::map<std::pair<QString, QString>, Title> titles;
    const auto titleOf = [&](const Line& line) -> Title& {
        const auto known = [&](const QString& group) -> Title& {
            const int next = static_cast<int>(titles.size());
            return titles.try_emplace({line.words.page, group}, Title{next}).first->second;
        };
        known(QString());
        return known(line.words.group);
    };
    for (const Line& line : lines)
        titleOf(line).isInFile |= !line.isWorkedOut;
    std::erase_if(lines, [&](const Line& line) { return !titleOf(line).isInFile; });
    std::ranges::stable_sort(lines, [&](const Line& left, const Line& right) {
        return titleOf(left).place < titleOf(right).place;
    });
    return lines;
}

// Stands in one of many elements that a key of theirs puts to use, and that is not in use.
bool isUnused(const Values& values, int row)
{
    const std::vector<TableLayout::Row>& rows = values.layout().rows;
    const TableLayout::Row& place = rows[row];
    const TableLayout::Element& element = values.layout().elements[place.group];
    if (place.base->numbers.outer == 0)
        return false;
    for (int other = element.firstRow; other < element.endRow; ++other) {
        if (rows[other].key == QLatin1String("use") && rows[other].base->stored)
            return values.value(other) == QLatin1String("0");
    }
    return false;
}

bool isUnfilled(const Values& values, int row)
{
    const Setting& setting = values.setting(row);
    const Number* number = setting.number();
    const QString& value = values.value(row);
    return setting.shown() && setting.shown()->column > 0 &&
           (value.isEmpty() || (number && number->blankIsZero && value == QLatin1String("0")));
}

// Titles that hold nothing are named together, where the first one of a page stood.
Lines withoutUnfilled(Lines lines)
{
    Lines kept;
    QString page; // of the line of those, which is the `last` one
    std::size_t last = 0;
    for (auto line = lines.begin(); line != lines.end();) {
        const auto end = std::find_if(line, lines.end(), [&](const Line& other) {
            return other.words.page != line->words.page || other.words.group != line->words.group;
        });
        if (!std::all_of(line, end, std::mem_fn(&Line::isUnfilled))) {
            kept.insert(kept.end(), line, end);
        } else {
            const QString title = line->words.group.section(QStringLiteral(" / "), -1);
            if (std::exchange(page, line->words.page) == line->words.page) {
                kept[last].words.caption += QStringLiteral("; ") + title;
            } else {
                last = kept.size();
                kept.push_back({{}, {QString()}, {}});
                kept.back().words.page = page;
                kept.back().words.group = translated("rev_296");
                kept.back().words.caption = title;
            }
        }
        line = end;
    }
    return kept;
}

Lines settingsOf(const Configuration& configuration, const Report& report)
{
    Lines lines;
    for (std::size_t table = 0; table < configuration.tables().size(); ++table) {
        const Values& values = configuration.tables()[table];
        for (int row = 0; row < values.count(); ++row) {
            if (isWorkedOut(values, row)) {
                lines.push_back({wordsOf(values.layout(), row), {valueText(values, row)}, {}, true});
                continue;
            }
            if (!isTold(values, row, report.keys, static_cast<int>(table)))
                continue;
            const QString text =
                report.secrets == Secrets::Shown
                    ? valueText(values.setting(values.holder(row)), values.written(row), values.unitKey(row))
                    : valueText(values, row, values.written(row));
            lines.push_back({wordsOf(values.layout(), row),
                             {text},
                             {},
                             false,
                             isUnused(values, row) || isUnfilled(values, values.holder(row))});
        }
    }
    return lines;
}

Lines changesOf(const Configuration& configuration, const Report& report)
{
    Lines lines;
    for (const Difference& difference : report.changes->all()) {
        if (difference.isAlong)
            continue;
        const int table = difference.key < 0 ? 0 : FileKeys::all()[difference.key].table;
        const DifferenceText text =
            textOf(*report.changes, difference, configuration.tables()[table], report.secrets);
        lines.push_back({text, {text.beforeText, text.afterText}, text.note});
    }
    return lines;
}

QStringList headOf(const Differences* changes)
{
    if (!changes)
        return {};
    const bool isOfDefaults = changes->before().isDefaults();
    return {translated("rev_016"), translated(isOfDefaults ? "rev_106" : "rev_017"),
            translated(isOfDefaults ? "rev_104" : "rev_018")};
}

// Where the columns are about as high as each other.
Lines::const_iterator middleOf(const Lines& lines)
{
    constexpr int signsOfACell = 24;
    constexpr int signsOfARow = 60;
    const auto height = [](int sum, const Line& line) {
        return sum + 1 + line.values.last().size() / (isLong(line) ? signsOfARow : signsOfACell);
    };
    const int whole = std::accumulate(lines.begin(), lines.end(), 0, height);
    auto middle = lines.begin();
    for (int above = 0; middle != lines.end() && 2 * above < whole; ++middle)
        above = height(above, *middle);
    return middle;
}

QString bodyOf(const Lines& lines, const QStringList& head, bool isInColumns)
{
    if (!isInColumns)
        return tables(lines.begin(), lines.end(), head, 60);
    constexpr int besideAddress = 36; // percent that leave a host or a Bluetooth address its line
    const auto middle = middleOf(lines);
    return QStringLiteral("<table width=\"100%\"><tr><td width=\"50%\">%1</td>"
                          "<td width=\"50%\" style=\"padding-left: 12px\">%2</td></tr></table>\n")
        .arg(tables(lines.begin(), middle, head, besideAddress),
             tables(middle, lines.end(), head, besideAddress));
}

} // namespace

QString toHtml(const Configuration& configuration, const Report& report)
{
    QString html = QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\">\n") +
                   element("title", report.title) +
                   QStringLiteral("<style>\n%1%2</style>")
                       .arg(QLatin1String(kStyle), QLatin1String(report.isOnePage ? kOnePageStyle : "")) +
                   QStringLiteral("</head><body>\n") + element("h1", report.title);
    for (const QString& line : report.about)
        html += element("p", line);
    if (!report.advice.isEmpty()) {
        html += element("h2", translated("rev_020")) + QStringLiteral("<ul>\n");
        for (const QString& sentence : report.advice)
            html += element("li", sentence);
        html += QStringLiteral("</ul>\n");
    }
    const Lines lines = report.changes ? byTitle(changesOf(configuration, report))
                                       : withoutUnfilled(byTitle(settingsOf(configuration, report)));
    html += bodyOf(lines, headOf(report.changes), report.isOnePage);
    if (lines.empty())
        html += element("p", translated("rev_117"));
    if (!report.end.isEmpty())
        html += element("p", report.end);
    return html + QStringLiteral("</body></html>\n");
}

Report reportOf(const Configuration& configuration, const Differences& changes,
                const std::vector<Finding>& advice, const QStringList& about, const ReportChoice& choice)
{
    Report report{translated("rev_180"), {}, {}};
    report.secrets = choice.secrets;
    report.isOnePage = choice.isOnePage;
    const QString object = configuration.value(QStringLiteral("TRANS/OBJECT/name"));
    if (!object.isEmpty())
        report.about << translated("rev_181").arg(object);
    report.about << about << translated("rev_183").arg(now().toString(QStringLiteral("dd.MM.yyyy HH:mm")));
    for (const Finding& finding : advice)
        report.advice << adviceText(finding);
    if (choice.isChangesAlone) {
        report.changes = &changes;
        const auto all = changes.all();
        if (const auto along = std::ranges::count_if(all, &Difference::isAlong); along > 0)
            report.end = translated("rev_340").arg(along);
    } else if (choice.isOnePage) {
        report.keys.emplace();
        const Differences others(FileState::ofDefaults(configuration),
                                 FileState::ofConfiguration(configuration));
        for (const Difference& difference : others.all())
            report.keys->push_back(difference.key);
        report.end = translated("rev_182");
    }
    return report;
}

} // namespace vlk::review
