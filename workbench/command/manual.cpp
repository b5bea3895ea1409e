#include "command/manual.h"

#include "window/languages.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>

namespace workbench::command {

namespace {

std::string heading(const char* key)
{
    return ".SH " + text(key).toUpper().toStdString() + '\n';
}

// The text as it stands: no sign of it is a command to the formatter.
std::string plain(const std::string& text)
{
    std::string result;
    bool isLineStart = true;
    for (const char sign : text) {
        if (isLineStart && (sign == '.' || sign == '\''))
            result += "\\&";
        isLineStart = sign == '\n';
        result += sign == '\\' ? std::string("\\e") : sign == '-' ? std::string("\\-") : std::string(1, sign);
    }
    return result;
}

std::string trimmed(const std::string& text)
{
    return QString::fromStdString(text).trimmed().toStdString();
}

// Lines that are not filled up.
std::string block(const std::string& text)
{
    return ".PP\n.nf\n" + plain(trimmed(text)) + "\n.fi\n";
}

// "r7106 check [OPTIONS] FILE..."
std::string usage(const CLI::App& app, const std::string& name)
{
    const auto& formatter = dynamic_cast<const CLI::Formatter&>(*app.get_formatter());
    const std::string made = trimmed(formatter.make_usage(&app, name));
    return made.substr(made.find(": ") + 2);
}

// Those that the help shows.
std::vector<const CLI::Option*> optionsOf(const CLI::App& app)
{
    return app.get_options(
        [](const CLI::Option* option) { return option->nonpositional() && !option->get_group().empty(); });
}

std::vector<const CLI::App*> commandsOf(const CLI::App& app)
{
    return app.get_subcommands([](const CLI::App* command) { return !command->get_group().empty(); });
}

std::string optionLines(const CLI::App& app)
{
    std::string lines;
    for (const CLI::Option* option : optionsOf(app)) {
        std::string names = option->get_name(false, true);
        for (std::size_t at = names.find(','); at != std::string::npos; at = names.find(',', at + 2))
            names.replace(at, 1, ", ");
        lines += ".TP\n.B " + plain(names + ' ' + option->get_option_text()) + '\n' +
                 plain(option->get_description()) + '\n';
    }
    return lines;
}

// "ru|en": the words that the option takes.
std::string choicesOf(const CLI::Option& option)
{
    std::string choices = option.get_option_text();
    if (choices.find('|') == std::string::npos)
        return {};
    std::ranges::replace(choices, '|', ' ');
    return choices;
}

std::vector<std::string> namesOf(const CLI::Option& option)
{
    std::vector<std::string> names;
    for (const std::string& name : option.get_snames())
        names.push_back('-' + name);
    for (const std::string& name : option.get_lnames())
        names.push_back("--" + name);
    return names;
}

std::string joined(const std::vector<std::string>& words, const char* between)
{
    std::string line;
    for (const std::string& word : words)
        line += (line.empty() ? "" : between) + word;
    return line;
}

std::string allNames(const CLI::App& app)
{
    std::vector<std::string> names;
    for (const CLI::Option* option : optionsOf(app))
        std::ranges::copy(namesOf(*option), std::back_inserter(names));
    return joined(names, " ");
}

} // namespace

std::string manualPage(const CLI::App& app)
{
    const std::string& name = app.get_name();
    std::string page = ".TH " + QString::fromStdString(name).toUpper().toStdString() + " 1 \"\" \"" + name +
                       ' ' + VLK_VERSION + "\"\n";
    page += heading("cli_140") + name + " \\- " + plain(app.get_description()) + '\n';
    page += heading("cli_141") + plain(usage(app, name)) + '\n';
    page += heading("cli_133") + optionLines(app);
    page += heading("cli_134");
    for (const CLI::App* command : commandsOf(app)) {
        page += ".SS " + command->get_name() + '\n' + plain(command->get_description()) + '\n' +
                block(usage(*command, name + ' ' + command->get_name())) + optionLines(*command) +
                block(command->get_footer());
    }
    return page + heading("cli_142") + block(app.get_footer());
}

std::string bashCompletion(const CLI::App& app)
{
    std::vector<std::string> commands;
    std::string choices;
    std::string options;
    const auto add = [&](const CLI::App& of) {
        const bool isCommand = &of != &app;
        if (isCommand)
            commands.push_back(of.get_name());
        options +=
            "    " + (isCommand ? of.get_name() : std::string("''")) + ") words='" + allNames(of) + "' ;;\n";
        for (const CLI::Option* option : optionsOf(of)) {
            const std::string row = "    " + joined(namesOf(*option), "|") + ") COMPREPLY=($(compgen -W '" +
                                    choicesOf(*option) + "' -- \"$now\")); return ;;\n";
            if (!choicesOf(*option).empty() && choices.find(row) == std::string::npos)
                choices += row;
        }
    };
    add(app);
    for (const CLI::App* command : commandsOf(app))
        add(*command);
    const std::string& name = app.get_name();
    return "# bash completion for " + name + "\n_" + name + "()\n{\n" +
           "    local now=${COMP_WORDS[COMP_CWORD]} command='' word words=''\n"
           "    COMPREPLY=()\n"
           "    case ${COMP_WORDS[COMP_CWORD-1]} in\n" +
           choices +
           "    esac\n"
           "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
           "        case $word in " +
           joined(commands, "|") +
           ") command=$word; break ;; esac\n"
           "    done\n"
           "    case $command in\n" +
           options +
           "    esac\n"
           "    if [[ $now == -* ]]; then\n"
           "        COMPREPLY=($(compgen -W \"$words\" -- \"$now\"))\n"
           "    elif [[ -z $command ]]; then\n"
           "        COMPREPLY=($(compgen -W '" +
           joined(commands, " ") +
           "' -- \"$now\"))\n"
           "    fi\n"
           "}\ncomplete -o default -F _" +
           name + ' ' + name + '\n';
}

} // namespace workbench::command
