#include "command/difference_lines.h"

#include "command/file_names.h"
#include "command/json_line.h"
#include "review/difference_text.h"
#include "window/languages.h"

namespace workbench::command {

using vlk::review::Difference;
using vlk::review::Differences;
using vlk::review::DifferenceText;
using vlk::review::Secrets;

namespace {

// As a save spells it; null where the side lacks the key.
QString spelled(const vlk::review::Held& held)
{
    return !held.isThere ? QString() : held.meaning.isNull() ? QStringLiteral("") : held.meaning;
}

QString orNull(const QString& text)
{
    return text.isEmpty() ? QString() : text;
}

// `inFile`: what the load has changed in the value after, if it has.
QByteArray jsonOf(const Difference& difference, const DifferenceText& text, const DifferenceText& inFile,
                  const QString& file)
{
    JsonLine line;
    if (!file.isNull())
        line.add("file", readable(file));
    line.add("path", difference.path)
        .add("page", orNull(text.page))
        .add("group", orNull(text.group))
        .add("caption", text.caption)
        .add("before", text.before)
        .add("after", text.after)
        .add("beforeText", text.before.isNull() ? QString() : text.beforeText)
        .add("afterText", text.after.isNull() ? QString() : text.afterText);
    if (!inFile.note.isEmpty())
        line.add("inFile", inFile.before).add("note", inFile.note);
    return line.line();
}

QByteArray lineOf(const Difference& difference, const DifferenceText& words, const DifferenceText& inFile,
                  const QString& file)
{
    const auto side = [](const QString& value, const QString& shown) {
        return value.isNull()    ? QStringLiteral("–")
               : shown.isEmpty() ? QStringLiteral("\"\"")
                                 : valueInOneLine(shown);
    };
    QString line = inWords(difference.path, {words.page, words.group, words.caption}) + QStringLiteral(": ") +
                   side(words.before, words.beforeText) + QStringLiteral(" → ") +
                   side(words.after, words.afterText);
    if (!inFile.note.isEmpty())
        line += QLatin1Char(' ') + text("cli_281").arg(valueInOneLine(inFile.beforeText), inFile.note);
    const QString start = file.isNull() ? QString() : inOneLine(file) + QStringLiteral(": ");
    return (start + line + QLatin1Char('\n')).toUtf8();
}

} // namespace

QString inWords(const QStringList& words)
{
    QStringList told;
    for (const QString& word : words) {
        if (!word.isEmpty() && !told.contains(word))
            told << word;
    }
    return told.join(QStringLiteral(" / "));
}

QString inWords(const QString& path, const QStringList& words)
{
    const QString told = inWords(words);
    return told.isEmpty() ? path : path + QStringLiteral(": ") + told;
}

QByteArray linesOf(const Differences& differences, const vlk::Configuration& configuration, const Call& call,
                   const QString& file, const Differences* load)
{
    QByteArray lines;
    const Secrets secrets = call.secrets ? Secrets::Shown : Secrets::Masked;
    for (const Difference& difference : differences.all()) {
        const int table = difference.key < 0 ? 0 : vlk::review::FileKeys::all()[difference.key].table;
        const vlk::Values& values = configuration.tables()[table];
        DifferenceText text = textOf(differences, difference, values, secrets);
        if (difference.key >= 0 && (call.secrets || !values.row(difference.row).base->secret)) {
            text.before = spelled(differences.before().at(difference.key));
            text.after = spelled(differences.after().at(difference.key));
        }
        DifferenceText inFile;
        if (load && difference.key >= 0 && load->isDifferent(difference.key) &&
            load->before().at(difference.key).isThere)
            inFile = textOf(*load, load->differenceAt(difference.key), values, secrets);
        lines += call.json ? jsonOf(difference, text, inFile, file) : lineOf(difference, text, inFile, file);
    }
    return lines;
}

} // namespace workbench::command
