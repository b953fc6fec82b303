#include "command.h"
#include "host.h"
#include "import/capture_text.h"
#include "import/file_path.h"
#include "import/import.h"

#include <nlohmann/json.hpp>

#include <fstream>

namespace calvix::host
{

namespace
{

namespace files = std::filesystem;

struct ImportOptions
{
    std::string networks;
    std::string interfaces;
    std::string profiles;
    std::vector<std::string> captures;
    std::string output;
    bool withProfiles = false;
};

constexpr const char* kStandardOutput = "-";

std::string ReadCapture(const std::string& path)
{
    const std::string bytes = ReadWholeFile(path);
    return ReadingFrom(path, [&] { return ToUtf8(bytes); });
}

void AddNetworks(Captures& captures, const std::string& text, const std::string& path)
{
    if (captures.networks)
        throw CaptureError(path + ": a second list of networks, after " + captures.networks->source);
    captures.networks = ParseNetworks(text, path);
}

void AddInterfaces(Captures& captures, const std::string& text, const std::string& path)
{
    if (captures.interfaces)
        throw CaptureError(path + ": a second list of interfaces, after " + captures.interfaces->source);
    captures.interfaces = ParseInterfaces(text, path);
}

void AddProfiles(Captures& captures, std::vector<ExportedProfile> profiles)
{
    captures.profiles.insert(captures.profiles.end(), std::make_move_iterator(profiles.begin()),
                             std::make_move_iterator(profiles.end()));
}

void AddByContent(Captures& captures, const std::string& path)
{
    std::error_code ignored;
    if (files::is_directory(PathOf(path), ignored))
        return AddProfiles(captures, ReadProfileFolder(path));
    const std::string text = ReadCapture(path);
    if (LooksLikeProfile(text))
        AddProfiles(captures, {ParseExportedProfile(text, path)});
    else if (LooksLikeNetworks(text))
        AddNetworks(captures, text, path);
    else if (LooksLikeInterfaces(text))
        AddInterfaces(captures, text, path);
    else
        throw CaptureError(path +
                           ":1: this is no output of \"netsh wlan show networks mode=bssid\" or \"netsh wlan show "
                           "interfaces\", and no profile");
}

Captures ReadCaptures(const ImportOptions& options)
{
    Captures captures;
    if (!options.networks.empty())
        AddNetworks(captures, ReadCapture(options.networks), options.networks);
    if (!options.interfaces.empty())
        AddInterfaces(captures, ReadCapture(options.interfaces), options.interfaces);
    if (!options.profiles.empty())
        AddProfiles(captures, ReadProfileFolder(options.profiles));
    for (const std::string& path : options.captures)
        AddByContent(captures, path);
    if (!captures.networks && !captures.interfaces && captures.profiles.empty())
        throw BadInput("there is nothing to import", "Name at least one file: --networks, --interfaces or --profiles");
    return captures;
}

/// The text for the file, known to be readable again.
std::string CheckedText(const simulation::Scenario& scenario)
{
    std::string text = simulation::WriteScenario(scenario);
    simulation::ParseScenario(text, "the imported scenario");
    return text;
}

/// Writes beside the file first: what stood there stays until the new text is complete.
void WriteFile(const std::string& path, const std::string& text)
{
    const files::path unfinished = PathOf(path + ".unfinished");
    std::ofstream file(unfinished, std::ios::binary);
    file << text;
    file.close();
    std::error_code error;
    if (file)
        files::rename(unfinished, PathOf(path), error);
    if (!file || error)
    {
        files::remove(unfinished, error);
        throw BadInput(path + ": cannot be written", "Name a file in a folder that exists and is yours to write to.");
    }
}

std::string Plural(std::size_t count, const std::string& noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

void PrintCounts(std::ostream& out, const ScenarioCounts& counts)
{
    out << "Adapters       " << counts.adapters << "\n"
        << "Access points  " << counts.accessPoints << " on " << Plural(counts.networks, "network") << " ("
        << counts.hidden << " hidden)\n"
        << "Profiles       " << counts.profiles << "\n";
}

void PrintJson(std::ostream& out,
               const ScenarioCounts& counts,
               const ImportedScenario& imported,
               const std::string& output)
{
    const nlohmann::ordered_json summary{{"adapters", counts.adapters},
                                         {"accessPoints", counts.accessPoints},
                                         {"networks", counts.networks},
                                         {"hidden", counts.hidden},
                                         {"profiles", counts.profiles},
                                         {"warnings", imported.warnings},
                                         {"output", output}};
    out << summary.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
}

void Report(Host& host, const ImportedScenario& imported, const std::string& output)
{
    for (const std::string& warning : imported.warnings)
        host.err() << "warning: " << warning << "\n";
    // The scenario itself has standard output then.
    std::ostream& out = output == kStandardOutput ? host.err() : host.out();
    const ScenarioCounts counts = CountScenario(imported.scenario);
    if (host.json())
        return PrintJson(out, counts, imported, output);
    PrintCounts(out, counts);
    if (output != kStandardOutput)
        out << "Written to     " << output << "\n";
}

void Import(Host& host, const ImportOptions& options)
{
    try
    {
        const ImportedScenario imported = AssembleScenario(ReadCaptures(options), options.withProfiles);
        const std::string text = CheckedText(imported.scenario);
        if (options.output == kStandardOutput)
            host.out() << text;
        else
            WriteFile(options.output, text);
        Report(host, imported, options.output);
    }
    catch (const CaptureError& error)
    {
        throw BadInput(error.what());
    }
    catch (const simulation::ScenarioError& error)
    {
        throw BadInput(error.what());
    }
}

} // namespace

void AddImportCommand(CommandSet& commands)
{
    const auto options = std::make_shared<ImportOptions>();
    commands
        .Add("import", "Make a scenario from what netsh printed and exported",
             [options](Host& host) { Import(host, *options); })
        .Text("--networks", options->networks, "Output of \"netsh wlan show networks mode=bssid\"")
        .Text("--interfaces", options->interfaces, "Output of \"netsh wlan show interfaces\"")
        .Text("--profiles", options->profiles, "Folder of \"netsh wlan export profile\"")
        .Flag("--with-profiles", options->withProfiles,
              "Make an automatic profile, with a made-up key, for every named network that has none")
        .Texts("[CAPTURES]", options->captures, "The same files and folders, told apart by what they hold")
        .Text("-o,--output", options->output, "Scenario file to write, - for standard output")
        .Required();
}

} // namespace calvix::host
