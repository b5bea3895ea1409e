#include "command/arguments.h"

#include "command/file_names.h"
#include "command/manual.h"
#include "telemetry/files/export_form.h"
#include "window/languages.h"

#include <QFileInfo>
#include <QSet>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <set>
#include <tuple>

namespace workbench::command {

namespace {

std::string words(const char* key)
{
    return text(key).toStdString();
}

// A row a command.
struct CommandRow
{
    const char* name;
    const char* description;
    const char* examples; // below its help
    enum Takes {
        AnyFiles,
        TwoFiles, // or one with --defaults
        OneFile,  // and writes to -o
        PathAndFiles,
        SettingsAndFiles, // by their "="
        PresetAndFiles,
        RecordFiles, // of telemetry, and --to
        TablesAndFiles,
    } takes;
    bool printsSecrets;
    bool edits;
};

constexpr CommandRow kCommands[] = {
    {"check", "cli_100", "  r7106 check fleet\n  r7106 check --json fleet > findings.ndjson",
     CommandRow::AnyFiles, true, false},
    {"diff", "cli_101", "  r7106 diff before.xml after.xml\n  r7106 diff --defaults truck.xml",
     CommandRow::TwoFiles, true, false},
    {"compare", "cli_102", "  r7106 compare --csv -o fleet.csv fleet", CommandRow::AnyFiles, true, false},
    {"get", "cli_103", "  r7106 get TRANS/SRV1/addr fleet", CommandRow::PathAndFiles, true, false},
    {"set", "cli_104",
     "  r7106 set --dry-run TRACK/POINTS/maxSpeed=90 fleet\n  r7106 set TRANS/SRV1/addr=tracking.example.com "
     "TRANS/SRV1/port=5000 truck.xml",
     CommandRow::SettingsAndFiles, true, true},
    {"apply", "cli_105", "  r7106 apply --dry-run winter.xml fleet\n  r7106 apply winter.xml fleet",
     CommandRow::PresetAndFiles, true, true},
    {"report", "cli_106", "  r7106 report truck.xml -o truck.pdf", CommandRow::OneFile, true, false},
    {"info", "cli_107", "  r7106 info --json archive", CommandRow::AnyFiles, false, false},
    {"convert", "cli_201",
     "  r7106 convert week.tmi --to csv -o week.csv\n  r7106 convert --to gpx --from 20.11.2026 --to-time "
     "20.11.2026 week.xml > day.gpx\n  r7106 convert --to csv --where 'StateU_Ain3 < 9 and Speed > 0' "
     "archive",
     CommandRow::RecordFiles, false, false},
    {"fuel", "cli_230",
     "  r7106 fuel --table tank.xml week.xml\n  r7106 fuel --table left.xml --table right.xml --fall 15 "
     "--json "
     "archive\n  r7106 fuel --table tank.xml --merge monday.xml tuesday.xml",
     CommandRow::TablesAndFiles, false, false},
};

std::string withExamples(const char* examples)
{
    return words("cli_120") + '\n' + examples;
}

// What the options are read into.
struct Read
{
    std::vector<std::string> files;
    std::string first; // a path or a preset
    std::vector<std::string> tables;
    std::vector<std::string> sensors;
    std::string output;
    std::string language;
    bool isVersion = false;
    Call call;
};

// Bytes as file names hold them (file_names.h).
QString nameOf(const std::string& bytes)
{
    return QString::fromLatin1(bytes.data(), static_cast<int>(bytes.size()));
}

void addLanguage(CLI::App& app, Read& read)
{
    app.add_option("--language", read.language, words("cli_110"))
        ->check(CLI::IsMember({"ru", "en"}))
        ->option_text("ru|en");
}

void addConversion(CLI::App& app, Conversion& conversion)
{
    std::string names;
    std::set<std::string> forms;
    for (const vlk::ExportFormRow& row : vlk::kExportForms) {
        forms.insert(row.name);
        names += (names.empty() ? "" : "|") + std::string(row.name);
    }
    const auto addText = [&app](const char* name, QString& to, const char* key) {
        return app.add_option_function<std::string>(
            name, [&to](const std::string& value) { to = QString::fromStdString(value); }, words(key));
    };
    addText("--to", conversion.form, "cli_202")->required()->check(CLI::IsMember(forms))->option_text(names);
    addText("--columns", conversion.columns, "cli_203")->option_text("archive|NAME,NAME...");
    addText("--from", conversion.from, "cli_204")->option_text("TIME");
    addText("--to-time", conversion.to, "cli_205")->option_text("TIME");
    addText("--where", conversion.where, "cli_206")->option_text("CONDITION");
    addText("--tracker", conversion.tracker, "cli_207")->option_text("TEXT");
    app.add_flag("--raw", conversion.raw, words("cli_208"));
    app.add_flag("--merge", conversion.merge, words("cli_209"));
    app.add_flag("--strict", conversion.strict, words("cli_210"));
    app.add_flag("--decimal-comma", conversion.decimalComma, words("cli_211"));
}

void addFuelOptions(CLI::App& app, Read& read)
{
    const auto several = [&](const char* name, std::vector<std::string>& values, const char* key,
                             const char* what) {
        app.add_option(name, values, words(key))
            ->expected(1)
            ->allow_extra_args(false)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
            ->option_text(what);
    };
    several("--table", read.tables, "cli_231", "CALIBRATION");
    several("--sensor", read.sensors, "cli_232", "ELEMENT");
    // In either decimal sign.
    const auto withPoint = [](std::string number) {
        std::ranges::replace(number, ',', '.');
        return number;
    };
    for (const auto& [name, litres, key] :
         {std::tuple("--rise", &read.call.rise, "cli_233"), {"--fall", &read.call.fall, "cli_234"}})
        app.add_option(name, *litres, words(key))
            ->check(CLI::Range(0.1, 1e6))
            ->transform(withPoint)
            ->option_text("LITRES");
    app.add_flag("--merge", read.call.isOneVehicle, words("cli_270"));
}

void addOptions(CLI::App& app, const CommandRow& row, Read& read)
{
    addLanguage(app, read);
    const char* output = row.edits ? "cli_262" : row.takes == CommandRow::OneFile ? "cli_118" : "cli_111";
    app.add_option("-o,--output", read.output, words(output))->option_text("FILE");
    if (row.takes == CommandRow::RecordFiles)
        addConversion(app, read.call.conversion);
    if (row.takes != CommandRow::OneFile && row.takes != CommandRow::RecordFiles)
        app.add_flag("--json", read.call.json, words("cli_112"));
    if (row.printsSecrets)
        app.add_flag("--secrets", read.call.secrets, words("cli_113"));
    if (row.edits)
        app.add_flag("--dry-run", read.call.dryRun, words("cli_114"));
    if (row.takes == CommandRow::TwoFiles)
        app.add_flag("--defaults", read.call.againstDefaults, words("cli_115"));
    if (row.takes == CommandRow::OneFile)
        app.add_flag("--changed", read.call.changedOnly, words("cli_116"));
    if (row.description == std::string_view("cli_102"))
        app.add_flag("--csv", read.call.csv, words("cli_117"));
    if (row.takes == CommandRow::TablesAndFiles)
        addFuelOptions(app, read);
}

void addCommand(CLI::App& app, const CommandRow& row, Read& read)
{
    CLI::App* command = app.add_subcommand(row.name, words(row.description));
    command->group(words("cli_134"));
    command->footer(withExamples(row.examples));
    addOptions(*command, row, read);
    if (row.takes == CommandRow::PathAndFiles || row.takes == CommandRow::PresetAndFiles)
        command->add_option(row.takes == CommandRow::PathAndFiles ? "PATH" : "PRESET", read.first)
            ->required();
    const bool isSet = row.takes == CommandRow::SettingsAndFiles;
    CLI::Option* option = command->add_option(isSet ? "ARGUMENT" : "FILE", read.files);
    option->option_text(isSet ? "PATH=VALUE... FILE..." : "...");
}

// Why the files of a command are not those that it takes; empty where they are. `plain`: what stands behind
// "--", if it does.
QString splitFiles(const CommandRow& row, const Read& read, const std::optional<QStringList>& plain,
                   Call* call)
{
    QStringList files;
    for (const std::string& file : read.files)
        files << nameOf(file);
    files += plain.value_or(QStringList());
    if (row.takes == CommandRow::SettingsAndFiles) {
        // Up to "--" where it stands, else up to the first without a sign.
        const auto isFile = [](const QString& name) { return !name.contains(QLatin1Char('=')); };
        const auto settings =
            plain ? files.size() - plain->size() : std::ranges::find_if(files, isFile) - files.begin();
        QSet<QString> paths;
        for (int i = 0; i < settings; ++i) {
            call->settings << QString::fromUtf8(files[i].toLatin1());
            if (isFile(files[i]))
                return text("cli_020").arg(call->settings.last());
            const QString path = call->settings.last().section(QLatin1Char('='), 0, 0);
            if (paths.contains(path))
                return text("cli_031").arg(path);
            paths.insert(path);
        }
        // The shell gives whatever name matches, with a sign in it too.
        const auto taken = std::ranges::find_if(files.begin(), files.begin() + settings,
                                                [](const QString& name) { return QFileInfo::exists(name); });
        const QString fileTaken = taken != files.begin() + settings ? inOneLine(*taken) : QString();
        files = files.mid(static_cast<int>(settings));
        if (!plain && !fileTaken.isNull())
            return text("cli_301").arg(fileTaken);
        if (!plain && call->settings.isEmpty() && files.size() > 1)
            return text("cli_300").arg(inOneLine(files.front()));
        if (call->settings.isEmpty() || files.isEmpty())
            return text("cli_021");
    }
    if (row.takes == CommandRow::PathAndFiles)
        call->settings << QString::fromUtf8(read.first.c_str());
    if (row.takes == CommandRow::PresetAndFiles)
        call->preset = nameOf(read.first);
    if (row.takes == CommandRow::TwoFiles && files.size() != (call->againstDefaults ? 1 : 2))
        return text("cli_022");
    if (row.takes == CommandRow::OneFile && files.size() != 1)
        return text("cli_027");
    if (files.isEmpty())
        return text("cli_026");
    // What is told would stand in it, not the configuration that is looked for there.
    const bool isCopyWanted = nameOf(read.output).endsWith(QLatin1String(".xml"), Qt::CaseInsensitive);
    if (row.edits && isCopyWanted && (call->dryRun || files != QStringList(QStringLiteral("-"))))
        return text("cli_251");
    call->files = files;
    return {};
}

// An option that was given nothing, such as a variable of a script that was never set; null if there is none.
QString emptyOption(const CLI::App& command)
{
    for (const CLI::Option* option : command.get_options()) {
        const std::vector<std::string>& results = option->results();
        if (!option->get_positional() && std::ranges::find(results, std::string()) != results.end())
            return QString::fromStdString("--" + option->get_lnames().front());
    }
    return {};
}

// Where there is a command, its own help is the one to read.
Arguments refused(const CLI::App& app, const QString& reason)
{
    QString program = QStringLiteral("r7106");
    for (const CLI::App* chosen : app.get_subcommands())
        program += QLatin1Char(' ') + QString::fromStdString(chosen->get_name());
    return {{},
            Failed,
            (QStringLiteral("r7106: ") + reason + QLatin1Char('\n') + text("cli_023").arg(program)).toUtf8()};
}

QString whyNoCommand(const QStringList& arguments)
{
    QStringList names;
    for (const CommandRow& row : kCommands)
        names << QString::fromLatin1(row.name);
    const QString all = names.join(QStringLiteral(", "));
    const auto isOption = [](const QString& argument) { return argument.startsWith(QLatin1Char('-')); };
    const auto found = std::ranges::find_if_not(arguments, isOption);
    return found == arguments.end() ? text("cli_014").arg(all) : text("cli_015").arg(*found, all);
}

// The parser's own words are English; in front of them stands the name of the option that they are about.
QString whyNotParsed(const CLI::App& app, const CLI::ParseError& error)
{
    QString said = QString::fromUtf8(error.what());
    QStringList left;
    for (const std::string& argument : app.remaining(true))
        left << readable(nameOf(argument));
    const std::vector<CLI::App*> chosen = app.get_subcommands();
    if (dynamic_cast<const CLI::RequiredError*>(&error))
        return chosen.empty() ? whyNoCommand(left)
                              : text("cli_017").arg(said.section(QLatin1Char(' '), 0, 0));
    if (dynamic_cast<const CLI::ExtrasError*>(&error))
        return text("cli_016").arg(left.join(QLatin1Char(' ')));
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error)) {
        if (said.endsWith(QLatin1String("flag override")))
            return text("cli_263").arg(QStringLiteral("--") + said.section(QLatin1Char(' '), 0, 0));
        const QString name = said.section(QLatin1Char(':'), 0, 0);
        const CLI::App& of = chosen.empty() ? app : *chosen.front();
        const CLI::Option* option = of.get_option_no_throw(name.toStdString());
        return text(option && option->count() > 1 ? "cli_031" : "cli_018").arg(name);
    }
    if (dynamic_cast<const CLI::ValidationError*>(&error)) {
        const QString name = said.section(QLatin1Char(':'), 0, 0);
        if (name == QLatin1String("--rise") || name == QLatin1String("--fall"))
            return text("cli_235").arg(name);
        const CLI::App& of = chosen.empty() ? app : *chosen.front();
        if (const CLI::Option* option = of.get_option_no_throw(name.toStdString()))
            return text("cli_019").arg(name, QString::fromStdString(option->get_option_text())
                                                 .replace(QLatin1Char('|'), QStringLiteral(", ")));
    }
    return said;
}

// For the build, which installs what it prints.
void addPrint(CLI::App& app)
{
    const auto print = [&app](const std::string& what) {
        throw CLI::CallForVersion(what == "man" ? manualPage(app) : bashCompletion(app), Nothing);
    };
    app.add_option_function<std::string>("--print", print)
        ->check(CLI::IsMember({"man", "bash-completion"}))
        ->option_text("man|bash-completion")
        ->group("");
}

// Their heading has no label of its own.
void translateOptions(CLI::App& app)
{
    for (CLI::Option* option : app.get_options()) {
        if (!option->get_positional() && !option->get_group().empty())
            option->group(words("cli_133"));
    }
}

void setUp(CLI::App& app, Read& read)
{
    app.require_subcommand(1);
    app.footer(
        withExamples("  r7106 check fleet\n  r7106 diff before.xml after.xml\n  r7106 set --help\n\n") +
        words("cli_128"));
    // A flag is there or not: "--json=0" would be read as a value of it.
    app.option_defaults()->disable_flag_override();
    app.set_help_flag("-h,--help", words("cli_108"));
    // Told by the program before anything else, here for the help.
    app.add_flag("--version", read.isVersion, words("cli_109"));
    addLanguage(app, read);
    addPrint(app);
    for (const auto& [label, key] : {std::pair("Usage", "cli_130"),
                                     {"OPTIONS", "cli_131"},
                                     {"SUBCOMMAND", "cli_132"},
                                     {"Options", "cli_133"},
                                     {"Subcommands", "cli_134"},
                                     {"Positionals", "cli_135"},
                                     {"REQUIRED", "cli_136"}})
        app.get_formatter()->label(label, words(key));
    for (const CommandRow& row : kCommands)
        addCommand(app, row, read);
    translateOptions(app);
    for (CLI::App* command : app.get_subcommands({}))
        translateOptions(*command);
}

} // namespace

QString languageOf(const QByteArrayList& arguments)
{
    for (int i = 1; i < arguments.size(); ++i) {
        if (arguments[i].startsWith("--language="))
            return QString::fromLatin1(arguments[i].mid(11));
        if (arguments[i] == "--language")
            return QString::fromLatin1(arguments.value(i + 1));
    }
    return {};
}

Arguments readArguments(const QByteArrayList& arguments)
{
    Read read;
    CLI::App app(words("cli_001"), "r7106");
    setUp(app, read);
    const int dashes = arguments.indexOf("--");
    const int end = dashes < 0 ? arguments.size() : dashes;
    // The arguments from the last to the first, as the parser takes them.
    std::vector<std::string> left;
    for (int i = end - 1; i > 0; --i)
        left.push_back(arguments[i].toStdString());
    std::optional<QStringList> plain;
    if (dashes >= 0)
        plain.emplace();
    for (int i = end + 1; i < arguments.size(); ++i)
        *plain << nameOf(arguments[i].toStdString());
    try {
        app.parse(left);
    } catch (const CLI::CallForHelp&) {
        const std::vector<CLI::App*> chosen = app.get_subcommands();
        return {{},
                Nothing,
                QByteArray::fromStdString(chosen.empty() ? app.help() : chosen.front()->help("r7106"))};
    } catch (const CLI::CallForVersion& printed) {
        return {{}, Nothing, printed.what()};
    } catch (const CLI::ParseError& error) {
        return refused(app, whyNotParsed(app, error));
    }
    if (const QString empty = emptyOption(*app.get_subcommands().front()); !empty.isNull())
        return refused(app, text("cli_299").arg(empty));
    const std::string name = app.get_subcommands().front()->get_name();
    const auto* row = std::ranges::find(kCommands, name, &CommandRow::name);
    Arguments result{read.call, {}, {}};
    result.call.command = QString::fromStdString(name);
    result.call.output = nameOf(read.output);
    for (const std::string& table : read.tables)
        result.call.tables << nameOf(table);
    for (const std::string& sensor : read.sensors)
        result.call.sensors << QString::fromUtf8(sensor.c_str());
    const QString reason = splitFiles(*row, read, plain, &result.call);
    if (!reason.isEmpty())
        return refused(app, reason);
    const Call& call = result.call;
    const bool isReadTwice =
        (call.files + call.tables + QStringList(call.preset)).count(QStringLiteral("-")) > 1;
    return isReadTwice ? refused(app, text("cli_325")) : result;
}

} // namespace workbench::command
