// The program about itself: help, the manual page, completion.

#include "commands/commands.h"
#include "host/host.h"
#include "host/service_view.h"
#include "output/json_output.h"
#include "output/text_forms.h"
#include "shell/command.h"
#include "shell/completion.h"
#include "shell/manual.h"

#include "core/wlan_records.h"

#include <sstream>

namespace calvix::host
{

namespace
{

JsonRecord ScriptRecord(const std::string& script)
{
    return Under("completion", script, {"The shell's script"});
}

JsonRecord ManualRecord(const std::string& page)
{
    return Under("manual", page, {"In man's macros"});
}

struct HelpOptions
{
    std::vector<std::string> words;
    std::string current;
    std::string shell;
};

std::vector<Word> AdapterWords(Host& host)
{
    std::vector<Word> words;
    for (const WLAN_INTERFACE_INFO& adapter : host.adapters())
        words.push_back({std::to_string(words.size() + 1), Narrow(FixedText(adapter.strInterfaceDescription))});
    return words;
}

std::vector<Word> ProfileWords(Host& host)
{
    std::vector<Word> words;
    for (const WLAN_PROFILE_INFO& profile : host.service().Profiles(host.adapterGuid()))
        words.push_back({Narrow(FixedText(profile.strProfileName)), ""});
    return words;
}

/// Names of the computer that the line which is being typed will run on. Whatever stands in the way, nobody is to read
/// of it while typing.
std::vector<Word> NamesOnComputer(Host& asking, ValueKind kind, const std::string& scenario, const std::string& adapter)
{
    CommonOptions options;
    options.scenario = scenario;
    options.adapter = kind == ValueKind::adapter ? "" : adapter;
    std::ostringstream nowhere;
    try
    {
        Host host(options, asking.in(), nowhere, nowhere, {});
        return kind == ValueKind::adapter ? AdapterWords(host) : ProfileWords(host);
    }
    catch (const std::exception&)
    {
        return {};
    }
}

void PrintCompletion(Host& host, const HelpOptions& options)
{
    const LiveNames names = [&host](ValueKind kind, const std::string& scenario, const std::string& adapter)
    { return NamesOnComputer(host, kind, scenario, adapter); };
    host.out() << Complete(AllCommands(), options.words, options.current, names);
}

void PrintScript(Host& host, const HelpOptions& options)
{
    const char* const script = CompletionScript(options.shell);
    if (host.json())
        return PrintJson(host.out(), ScriptRecord(script));
    host.out() << script;
}

void PrintManual(Host& host)
{
    const std::string page = ManualPage(AllCommands());
    if (host.json())
        return PrintJson(host.out(), ManualRecord(page));
    host.out() << page;
}

} // namespace

void AddHelpCommands(CommandSet& commands)
{
    const auto options = std::make_shared<HelpOptions>();
    // The parser never gets to see it: see ParseArguments.
    commands.Add("help", "Show the help of a command, as COMMAND --help does", [](Host&) {})
        .Texts("[COMMAND]", options->words, "The command, in one word or two")
        .Takes(ValueKind::command)
        .Examples("The arguments of a command:\n  calvix help profiles move");
    commands
        .Add("completion", "Print the script by which a shell completes this program's command lines", options,
             PrintScript)
        .OneOf("SHELL", options->shell, {"bash", "zsh", "fish", "powershell"}, "The shell")
        .Prints("completion", [] { return std::vector{ScriptRecord("")}; })
        .Examples("For this session of bash, of zsh, of fish:\n"
                  "  source <(calvix completion bash)\n"
                  "  source <(calvix completion zsh)\n"
                  "  calvix completion fish | source\n"
                  "In the profile of PowerShell:\n"
                  "  calvix completion powershell | Out-String | Invoke-Expression");
    commands.Add("manual", "Print the manual page calvix(1), as man reads it", PrintManual)
        .Prints("manual", [] { return std::vector{ManualRecord("")}; })
        .Examples("Read it:\n  calvix manual | man -l -");
    commands
        .Add("complete", "List what can complete a command line, for the completion scripts", options, PrintCompletion)
        .Texts("[WORDS]", options->words, "The words before the last")
        .Text("--current", options->current, "The beginning of the last word")
        .Hidden();
}

} // namespace calvix::host
