#include "commands/commands.h"
#include "explain/failure_words.h"
#include "host/host.h"
#include "output/code_page.h"
#include "output/json_output.h"
#include "output/text_forms.h"

#include <charconv>

namespace calvix::host
{

namespace
{

/// What was started and has ended: a command line, or a program's path.
JsonRecord RunRecord(const std::string& what)
{
    return Under("run", JsonRecord().Add("started", what));
}

struct RunOptions
{
    std::vector<std::string> words;
    std::string program;
    std::vector<std::string> processes;
};

constexpr std::size_t kLongestCommandLine = 1000;

/// One word is the whole command line; of several, those with blanks are put in quotation marks.
std::string CommandLineOf(const std::vector<std::string>& words)
{
    if (words.size() == 1)
        return words.front();
    std::string line;
    for (const std::string& word : words)
    {
        const bool bare = !word.empty() && word.find_first_of(" \t\"") == std::string::npos;
        line += (line.empty() ? "" : " ") + (bare ? word : "\"" + word + "\"");
    }
    return line;
}

std::string Narrowed(const std::string& text)
{
    if (text.size() > kLongestCommandLine)
        throw BadInput("the command line is longer than " + std::to_string(kLongestCommandLine) + " bytes");
    return InActiveCodePage(Widen(text), "start a program whose name has none");
}

/// What the methods do not report: whether the program was started, and whether waiting for its end failed.
void RequireRun(Host& host, const char* method, const std::string& what)
{
    host.RequireNotRefused({"CreateProcessA"}, method, std::nullopt, "\"" + what + "\" was not started");
    host.RequireNotRefused({"WaitForSingleObject"}, method, std::nullopt,
                           "\"" + what + "\" was started, but its end cannot be waited for");
}

void ShowRun(Host& host, const std::string& what)
{
    if (host.json())
        return PrintJson(host.out(), RunRecord(what));
    host.out() << '"' << what << "\" was started and has ended.\n";
}

void RunCommandLine(Host& host, const std::string& line)
{
    CWirelessManage& manager = host.manager();
    std::string narrow = Narrowed(line);
    manager.CreateProcRunCmd(narrow.data());
    RequireRun(host, "CreateProcRunCmd", line);
    ShowRun(host, line);
}

void RunProgramBeside(Host& host, const std::string& name)
{
    CWirelessManage& manager = host.manager();
    std::string narrow = Narrowed(name);
    const int started = manager.CreateProcRunExe(narrow.data());
    RequireRun(host, "CreateProcRunExe", name);
    if (started != 1)
        throw SystemFailure("CreateProcRunExe", started, "\"" + name + "\" was not started", {});
    ShowRun(host, FromActiveCodePage(manager.GetAppPath()) + name);
}

unsigned long ProcessNumber(const std::string& text)
{
    std::uint32_t number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || stop != text.data() + text.size() || number == 0)
        throw BadInput("\"" + text + "\" is not a process number", "give its number, as the task manager shows it");
    return number;
}

void EndProcess(Host& host, unsigned long process)
{
    host.manager().CloseProcess(process);
    host.RequireNotRefused({"OpenProcess", "TerminateProcess"}, "CloseProcess", std::nullopt,
                           "process " + std::to_string(process) + " was not ended");
}

void EndProcesses(Host& host, const std::vector<std::string>& texts)
{
    std::vector<unsigned long> processes;
    for (const std::string& text : texts)
        processes.push_back(ProcessNumber(text));
    for (const unsigned long process : processes)
        EndProcess(host, process);
    if (host.json())
        return PrintJson(host.out(), Under("ended", processes));
    for (const unsigned long process : processes)
        host.out() << "process " << process << " was ended\n";
}

void RunOrEnd(Host& host, const RunOptions& options)
{
    const int given =
        (options.words.empty() ? 0 : 1) + (options.program.empty() ? 0 : 1) + (options.processes.empty() ? 0 : 1);
    if (given != 1)
        throw BadInput("run takes either a command line, or --exe NAME, or --kill PID",
                       "put -- before a command line that has options: calvix run -- ping -n 1 localhost");
    if (!options.words.empty())
        return RunCommandLine(host, CommandLineOf(options.words));
    if (!options.program.empty())
        return RunProgramBeside(host, options.program);
    EndProcesses(host, options.processes);
}

void ShowOnline(Host& host)
{
    host.Require("OpenUrl", host.manager().OpenUrl());
    if (host.json())
        return PrintJson(host.out(), Under("online", true));
    host.out() << "The internet can be reached.\n";
}

} // namespace

void AddProcessCommands(CommandSet& commands)
{
    const auto options = std::make_shared<RunOptions>();
    commands.Add("run", "Start a program and wait until it has ended, or end a process", options, RunOrEnd)
        .Texts("[COMMANDLINE]", options->words,
               "The command line: one word as it is, several joined; put -- before one that has options")
        .Takes(ValueKind::file)
        .Text("--exe", options->program, "Start the program of this name in the folder of calvix")
        .Texts("--kill", options->processes, "End the process of this number at once (may be given several times)")
        .Prints("run",
                [] {
                    return std::vector{RunRecord(""), Under("ended", std::vector<unsigned long>{})};
                })
        .Examples("A program with options of its own:\n"
                  "  calvix run -- ping -n 1 localhost");
    commands.Add("online", "Check whether the internet can be reached", ShowOnline)
        .Prints("online", [] { return std::vector{Under("online", true)}; })
        .Examples("Its exit code is 1 if it cannot:\n"
                  "  calvix online");
}

} // namespace calvix::host
