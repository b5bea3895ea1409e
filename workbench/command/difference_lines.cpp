#include "command/difference_lines.h"

#include "command/file_names.h"
#include "command/json_line.h"
#include "review/difference_text.h"

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

QByteArray jsonOf(const Difference& difference, const DifferenceText& text, const QString& file)
{
    JsonLine line;
    if (!file.isNull())
        line.add("file", readable(file));
    return line.add("path", difference.path)
        .add("page", orNull(text.page))
        .add("group", orNull(text.group))
        .add("caption", text.caption)
        .add("before", text.before)
        .add("after", text.after)
        .add("beforeText", text.before.isNull() ? QString() : text.beforeText)
        .add("afterText", text.after.isNull() ? QString() : text.afterText)
        .line();
}

QByteArray lineOf(const Difference& difference, const DifferenceText& text, const QString& file)
{
    const auto side = [](const QString& value, const QString& words) {
        return value.isNull() ? QStringLiteral("–") : words.isEmpty() ? QStringLiteral("\"\"") : words;
    };
    const QString line = inWords(difference.path, {text.page, text.group, text.caption}) +
                         QStringLiteral(": ") + side(text.before, text.beforeText) + QStringLiteral(" → ") +
                         side(text.after, text.afterText);
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
                   const QString& file)
{
    QByteArray lines;
    const Secrets secrets = call.secrets ? Secrets::shown : Secrets::masked;
    for (const Difference& difference : differences.all()) {
        const int table = difference.key < 0 ? 0 : vlk::review::FileKeys::all()[difference.key].table;
        const vlk::Values& values = configuration.tables()[table];
        DifferenceText text = textOf(differences, difference, values, secrets);
        if (difference.key >= 0 && (call.secrets || !values.row(difference.row).base->secret)) {
            text.before = spelled(differences.before().at(difference.key));
            text.after = spelled(differences.after().at(difference.key));
        }
        lines += call.json ? jsonOf(difference, text, file) : lineOf(difference, text, file);
    }
    return lines;
}

} // namespace workbench::command
