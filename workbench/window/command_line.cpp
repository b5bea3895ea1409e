#include "window/command_line.h"

#include "window/languages.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace workbench {

namespace {

struct OptionRow
{
    const char* name;
    const char* key; // null for the options of Qt, which the help does not list
    const char* value;
};

constexpr OptionRow kOptions[] = {
    {"language", "wb_option_language", "ru|en"},
    {"mode", "wb_option_mode", "0|1|2"},
    {"open", "wb_option_open", "FILE"},
    {"data", "wb_option_data", "DIR"},
    {"tour", "wb_option_tour", "DIR"},
    {"platform", nullptr, "name"},
    {"style", nullptr, "name"},
    {"stylesheet", nullptr, "file"},
    {"display", nullptr, "name"},
    {"qwindowgeometry", nullptr, "geometry"},
    {"qwindowtitle", nullptr, "title"},
};

void addOptions(QCommandLineParser& parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, text("wb_option_help")});
    parser.addOption({{QStringLiteral("v"), QStringLiteral("version")}, text("wb_option_version")});
    for (const OptionRow& row : kOptions) {
        QCommandLineOption option(QLatin1String(row.name), row.key ? text(row.key) : QString(),
                                  QLatin1String(row.value));
        if (!row.key)
            option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
}

QString value(const QCommandLineParser& parser, const char* name)
{
    return parser.value(QLatin1String(name));
}

} // namespace

std::optional<QString> CommandLine::languageOf(const QStringList& arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.parse(arguments);
    const QString code = value(parser, "language");
    return Languages::isKnown(code) ? std::optional(code) : std::nullopt;
}

CommandLine CommandLine::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.setApplicationDescription(text("wb_description"));

    CommandLine line;
    const auto refuse = [&line](const QString& message) {
        line.message = message + QLatin1Char('\n') + text("wb_option_see_help");
        line.exitCode = 2;
        return line;
    };
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        line.message = parser.helpText();
        line.exitCode = 0;
        return line;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        line.message = QStringLiteral("%1 %2").arg(QCoreApplication::applicationName(),
                                                   QCoreApplication::applicationVersion());
        line.exitCode = 0;
        return line;
    }
    if (!parser.positionalArguments().isEmpty())
        return refuse(text("wb_option_unexpected").arg(parser.positionalArguments().first()));

    if (parser.isSet(QStringLiteral("language"))) {
        line.language = value(parser, "language");
        if (!Languages::isKnown(*line.language))
            return refuse(text("wb_option_bad_language").arg(*line.language));
    }
    if (parser.isSet(QStringLiteral("mode"))) {
        bool isNumber = false;
        line.mode = value(parser, "mode").toInt(&isNumber);
        if (!isNumber || *line.mode < 0 || *line.mode > 2)
            return refuse(text("wb_option_bad_mode").arg(value(parser, "mode")));
    }
    for (auto [name, target] : {std::pair("open", &line.open), {"data", &line.data}, {"tour", &line.tour}}) {
        if (!parser.isSet(QLatin1String(name)))
            continue;
        if (value(parser, name).isEmpty())
            return refuse(text("wb_option_empty").arg(QLatin1String(name)));
        *target = QFileInfo(value(parser, name)).absoluteFilePath();
    }
    if (!line.open.isEmpty() && !QFileInfo(line.open).isFile())
        return refuse(text("wb_file_missing").arg(line.open));
    return line;
}

} // namespace workbench
