#include "shell/command_line.h"

#include "explain/failure_words.h"
#include "output/json_output.h"
#include "shell/program_texts.h"
#include "shell/usage_failure.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <map>
#include <type_traits>

namespace calvix::host
{

namespace
{

constexpr const char* kCommonGroup = "Options of every command";

void Limit(CLI::Option& option, const Argument& argument)
{
    option.type_name(argument.ValueText());
    option.required(argument.required);
    // The usage line shows which positional arguments are required; their names say what they take.
    if (!argument.isOption() && argument.takes != ValueKind::choice)
        option.option_text(" ");
    if (argument.takes == ValueKind::number)
        option.capture_default_str();
    if (argument.takes == ValueKind::choice)
        option.check(CLI::Validator(CLI::IsMember(argument.choices)).description(""));
    // One value for each time an option is given: what follows may be a positional argument.
    if (argument.isRepeated() && argument.isOption())
        option.allow_extra_args(false);
}

CLI::Option& AddArgument(CLI::App& app, const Argument& argument)
{
    std::string names;
    for (const std::string& name : argument.names)
        names += (names.empty() ? "" : ",") + name;
    if (bool* const* const flag = std::get_if<bool*>(&argument.value))
        return *app.add_flag(names, **flag, argument.help);
    CLI::Option* option = nullptr;
    const auto add = [&](auto* value)
    {
        if constexpr (!std::is_same_v<decltype(value), bool*>)
            option = app.add_option(names, *value, argument.help);
    };
    std::visit(add, argument.value);
    Limit(*option, argument);
    return *option;
}

void AddCommonOptions(CLI::App& app, const CommandSet& commands)
{
    for (const Argument& option : commands.options)
        AddArgument(app, option).group(kCommonGroup);
}

/// The options of a command go to the parser only where the command line has its name: all of them take it longer than most
/// commands do.
void AddCommand(CLI::App& parent,
                const CommandSet& commands,
                const Command& command,
                const std::vector<std::string>& words,
                const Command*& chosen)
{
    CLI::App& app = *parent.add_subcommand(command.lastWord(), command.summary);
    app.footer((command.examples.empty() ? "" : command.examples + "\n\n") + ExitCodeLines());
    if (command.hidden)
        app.group("");
    app.callback([&command, &chosen] { chosen = &command; });
    if (std::find(words.begin(), words.end(), command.lastWord()) == words.end())
        return;
    AddCommonOptions(app, commands);
    for (const Argument& argument : command.arguments)
        AddArgument(app, argument);
}

/// The commands on the parser; `chosen` is the one on the command line.
void AddCommands(CLI::App& app,
                 const CommandSet& commands,
                 const std::vector<std::string>& words,
                 const Command*& chosen)
{
    AddCommonOptions(app, commands);
    std::map<std::string, CLI::App*> parents{{"", &app}};
    for (const Command& command : commands.commands)
    {
        const std::string name = command.family();
        CLI::App*& parent = parents[name];
        if (parent == nullptr)
        {
            parent = app.add_subcommand(name, commands.FindFamily(name)->meaning);
            parent->require_subcommand(1);
            parent->fallthrough();
            parent->footer(ExitCodeLines());
        }
        AddCommand(*parent, commands, command, words, chosen);
    }
}

/// Options before the command and after it are different ones for the parser.
void RefuseContradictions(const CommonOptions& options, const Command& chosen)
{
    const auto refuse = [](bool wrong, const char* text)
    {
        if (wrong)
            throw CLI::ValidationError(text);
    };
    refuse(options.anonymise && options.record.empty() && !chosen.anonymises,
           "--anonymise is for --record and capture");
    if (options.replay.empty())
        return;
    refuse(!options.scenario.empty(), "--replay excludes --scenario");
    refuse(!options.record.empty(), "--replay excludes --record");
    refuse(!options.save.empty(), "--replay excludes --save");
}

/// "help profiles list" means "profiles list --help".
std::vector<std::string> WithHelpBehind(std::vector<std::string> arguments)
{
    if (arguments.empty() || arguments.front() != "help")
        return arguments;
    arguments.erase(arguments.begin());
    arguments.push_back("--help");
    return arguments;
}

void PrintUsageFailure(const CommandSet& commands,
                       const std::vector<std::string>& arguments,
                       const std::string& parserWords,
                       std::ostream& out,
                       std::ostream& err)
{
    const FailureReport report = UsageFailure(commands, arguments, parserWords).report();
    if (std::find(arguments.begin(), arguments.end(), "--json") != arguments.end())
        PrintJson(out, report);
    PrintFailure(err, report);
}

} // namespace

const Command* ParseArguments(const CommandSet& commands,
                              const std::vector<std::string>& given,
                              std::ostream& out,
                              std::ostream& err,
                              ExitCode& exitCode)
{
    const std::vector<std::string> arguments = WithHelpBehind(given);
    const Command* chosen = nullptr;
    CLI::App app(kProgramDescription, "calvix");
    app.allow_windows_style_options(false);
    app.set_version_flag("--version", std::string("calvix ") + kVersionNumber);
    app.require_subcommand(1);
    app.footer(std::string(kProgramExamples) + "\n\n" + ExitCodeLines());
    AddCommands(app, commands, arguments, chosen);
    try
    {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        RefuseContradictions(*commands.optionValues, *chosen);
        return chosen;
    }
    catch (const CLI::ParseError& error)
    {
        // For an unknown command the parser would show the help of the program.
        const bool asked = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success) &&
                           !NamesUnknownCommand(commands, arguments);
        exitCode = asked ? ExitCode::success : ExitCode::badInput;
        if (asked)
            app.exit(error, out, err);
        else
            PrintUsageFailure(commands, arguments, error.what(), out, err);
        return nullptr;
    }
}

} // namespace calvix::host
