#include "shell/command_line.h"

#include "explain/failure_words.h"
#include "output/json_output.h"
#include "shell/command_description.h"
#include "shell/exit_codes.h"
#include "shell/program_texts.h"
#include "shell/usage_failure.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <map>

namespace calvix::host
{

namespace
{

constexpr const char* kCommonGroup = "Options of every command";

/// The arguments of one command. Declarations of one command follow each other, so one object serves all.
class DeclaredArguments final : public Arguments
{
public:
    void Begin(CLI::App& command, const char* group = nullptr)
    {
        m_command = &command;
        m_group = group;
    }

    Arguments& Flag(const char* name, bool& value, const char* help) override
    {
        return Declared(m_command->add_flag(name, value, help));
    }
    Arguments& Text(const char* name, std::string& value, const char* help) override
    {
        return Option(name, value, help);
    }
    Arguments& Texts(const char* name, std::vector<std::string>& values, const char* help) override
    {
        Option(name, values, help);
        // One value for each time an option is given: what follows may be a positional argument.
        if (name[0] == '-')
            m_last->allow_extra_args(false);
        return *this;
    }
    Arguments& Number(const char* name, unsigned& value, const char* help) override
    {
        Option(name, value, help);
        m_last->type_name(ValueText(ValueKind::number, {}));
        m_last->capture_default_str();
        return *this;
    }
    Arguments&
    OneOf(const char* name, std::string& value, const std::vector<std::string>& choices, const char* help) override
    {
        Option(name, value, help);
        m_last->type_name(ValueText(ValueKind::choice, choices));
        m_last->check(CLI::Validator(CLI::IsMember(choices)).description(""));
        return *this;
    }
    Arguments& Takes(ValueKind kind) override
    {
        m_last->type_name(ValueText(kind, {}));
        return *this;
    }
    Arguments& Required() override
    {
        m_last->required();
        return *this;
    }
    Arguments& Examples(const char* text) override
    {
        m_command->footer(std::string(text) + "\n\n" + ExitCodeLines());
        return *this;
    }
    Arguments& Hidden() override
    {
        m_command->group("");
        return *this;
    }

private:
    template <typename Value>
    Arguments& Option(std::string name, Value& value, const char* help)
    {
        const bool optional = name.front() == '[' || name.front() == '-';
        if (name.front() == '[')
            name = name.substr(1, name.size() - 2);
        Declared(m_command->add_option(name, value, help));
        m_last->required(!optional);
        return *this;
    }

    Arguments& Declared(CLI::Option* option)
    {
        m_last = option;
        if (m_group != nullptr)
            option->group(m_group);
        return *this;
    }

    CLI::App* m_command = nullptr;
    const char* m_group = nullptr;
    CLI::Option* m_last = nullptr;
};

/// The commands on the parser.
class ParserCommands final : public CommandSet
{
public:
    ParserCommands(CLI::App& app, Request& request) : m_app(app), m_request(request) { AddCommonOptions(app); }

    void AddFamily(const char* name, const char* summary) override
    {
        CLI::App& family = *m_app.add_subcommand(name, summary);
        family.require_subcommand(1);
        family.fallthrough();
        family.footer(ExitCodeLines());
        m_families[name] = &family;
    }

    Arguments& Add(const char* path, const char* summary, RunCommand run) override
    {
        const std::string words = path;
        const std::size_t blank = words.find(' ');
        CLI::App& parent = blank == std::string::npos ? m_app : *m_families.at(words.substr(0, blank));
        CLI::App& command = *parent.add_subcommand(words.substr(blank + 1), summary);
        command.footer(ExitCodeLines());
        command.callback(
            [this, words, run = std::move(run)]
            {
                m_request.command = words;
                m_request.run = run;
            });
        AddCommonOptions(command);
        m_arguments.Begin(command);
        return m_arguments;
    }

private:
    void AddCommonOptions(CLI::App& app)
    {
        m_arguments.Begin(app, kCommonGroup);
        DeclareCommonOptions(m_arguments, m_request.options);
    }

    CLI::App& m_app;
    Request& m_request;
    std::map<std::string, CLI::App*> m_families;
    DeclaredArguments m_arguments;
};

/// Options may stand before the command and after it, which the parser takes for different ones.
void RefuseContradictions(const CommonOptions& options)
{
    const auto refuse = [](bool wrong, const char* text)
    {
        if (wrong)
            throw CLI::ValidationError(text);
    };
    refuse(options.anonymise && options.record.empty(), "--anonymise is for --record");
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

void TellUsageFailure(AddCommands add,
                      const std::vector<std::string>& arguments,
                      const std::string& parserWords,
                      std::ostream& out,
                      std::ostream& err)
{
    const FailureReport report = UsageFailure(DescribeProgram(add), arguments, parserWords).report();
    if (std::find(arguments.begin(), arguments.end(), "--json") != arguments.end())
        PrintJson(out, report);
    PrintFailure(err, report);
}

} // namespace

std::optional<Request> ParseArguments(
    AddCommands add, const std::vector<std::string>& given, std::ostream& out, std::ostream& err, ExitCode& exitCode)
{
    const std::vector<std::string> arguments = WithHelpBehind(given);
    Request request;
    CLI::App app(kProgramDescription, "calvix");
    app.allow_windows_style_options(false);
    app.set_version_flag("--version", std::string("calvix ") + kVersionNumber);
    app.require_subcommand(1);
    app.footer(std::string(kProgramExamples) + "\n\n" + ExitCodeLines());
    ParserCommands commands(app, request);
    add(commands);
    try
    {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        RefuseContradictions(request.options);
    }
    catch (const CLI::ParseError& error)
    {
        // Asked for help on what there is not, the parser would tell all about the program.
        const bool asked = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success) &&
                           !NamesUnknownCommand(DescribeProgram(add), arguments);
        exitCode = asked ? ExitCode::success : ExitCode::badInput;
        if (asked)
            app.exit(error, out, err);
        else
            TellUsageFailure(add, arguments, error.what(), out, err);
        return std::nullopt;
    }
    return request;
}

} // namespace calvix::host
