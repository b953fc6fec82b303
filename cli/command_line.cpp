#include "command_line.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <map>

namespace calvix::host
{

namespace
{

constexpr const char* kVersion = "calvix 1.0.0";

constexpr const char* kExitCodes = R"(Exit codes:
  0  success
  1  the operation failed
  2  bad usage, or a file that cannot be used
  3  no adapter, or the WLAN service cannot be reached
  4  a question was not answered with yes, so nothing was done)";

constexpr const char* kCommonGroup = "Options of every command";

void AddCommonOptions(CLI::App& app, CommonOptions& options)
{
    app.add_flag("--json", options.json, "Print one JSON object instead of text")->group(kCommonGroup);
    app.add_option("--interface", options.adapter,
                   "The adapter: its GUID, its number or its description (default: the first)")
        ->group(kCommonGroup);
    app.add_option("--scenario", options.scenario, "Run on the simulated computer that this file describes")
        ->group(kCommonGroup);
    app.add_option("--save", options.save, "Write the simulated computer to this scenario file afterwards")
        ->group(kCommonGroup);
    app.add_flag("--trace", options.trace, "Show the library's trace lines on standard error")->group(kCommonGroup);
    app.add_flag("--no-color", options.noColor, "No colours, also not on a terminal")->group(kCommonGroup);
}

/// The arguments of one command. Declarations of one command follow each other, so one object serves all.
class DeclaredArguments final : public Arguments
{
public:
    void Begin(CLI::App& command) { m_command = &command; }

    Arguments& Flag(const char* name, bool& value, const char* help) override
    {
        m_last = m_command->add_flag(name, value, help);
        return *this;
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
        m_last->capture_default_str();
        return *this;
    }
    Arguments&
    OneOf(const char* name, std::string& value, const std::vector<std::string>& choices, const char* help) override
    {
        Option(name, value, help);
        m_last->check(CLI::IsMember(choices));
        return *this;
    }
    Arguments& Required() override
    {
        m_last->required();
        return *this;
    }

private:
    template <typename Value>
    Arguments& Option(std::string name, Value& value, const char* help)
    {
        const bool optional = name.front() == '[' || name.front() == '-';
        if (name.front() == '[')
            name = name.substr(1, name.size() - 2);
        m_last = m_command->add_option(name, value, help);
        m_last->required(!optional);
        return *this;
    }

    CLI::App* m_command = nullptr;
    CLI::Option* m_last = nullptr;
};

/// The commands on the parser.
class ParserCommands final : public CommandSet
{
public:
    ParserCommands(CLI::App& app, Request& request) : m_app(app), m_request(request) {}

    void AddFamily(const char* name, const char* summary) override
    {
        CLI::App& family = *m_app.add_subcommand(name, summary);
        family.require_subcommand(1);
        family.fallthrough();
        family.footer(kExitCodes);
        m_families[name] = &family;
    }

    Arguments& Add(const char* path, const char* summary, RunCommand run) override
    {
        const std::string words = path;
        const std::size_t blank = words.find(' ');
        CLI::App& parent = blank == std::string::npos ? m_app : *m_families.at(words.substr(0, blank));
        CLI::App& command = *parent.add_subcommand(words.substr(blank + 1), summary);
        command.footer(kExitCodes);
        command.callback(
            [this, words, run = std::move(run)]
            {
                m_request.command = words;
                m_request.run = run;
            });
        AddCommonOptions(command, m_request.options);
        m_arguments.Begin(command);
        return m_arguments;
    }

private:
    CLI::App& m_app;
    Request& m_request;
    std::map<std::string, CLI::App*> m_families;
    DeclaredArguments m_arguments;
};

void AddCommands(CommandSet& commands)
{
    AddAdapterCommands(commands);
    AddScanCommands(commands);
    AddProfileCommands(commands);
    AddConnectionCommands(commands);
    AddRoamCommand(commands);
    AddWatchCommand(commands);
    AddRadioCommands(commands);
    AddSettingsCommands(commands);
    AddPowerCommands(commands);
    AddProcessCommands(commands);
    AddListCommands(commands);
    AddMatchCommands(commands);
    AddBestCommand(commands);
    AddExplainCommand(commands);
    AddImportCommand(commands);
}

} // namespace

std::optional<Request>
ParseArguments(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err, ExitCode& exitCode)
{
    Request request;
    CLI::App app("Wireless networks: adapters, scans, profiles, connections.", "calvix");
    app.allow_windows_style_options(false);
    app.set_version_flag("--version", kVersion);
    app.require_subcommand(1);
    app.footer(kExitCodes);
    AddCommonOptions(app, request.options);
    ParserCommands commands(app, request);
    AddCommands(commands);
    try
    {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    }
    catch (const CLI::ParseError& error)
    {
        exitCode = app.exit(error, out, err) == 0 ? ExitCode::success : ExitCode::badInput;
        return std::nullopt;
    }
    return request;
}

} // namespace calvix::host
