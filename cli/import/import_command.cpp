#include "import/import_command.h"

#include "files/file_path.h"
#include "files/files.h"
#include "host/host.h"
#include "import/capture_encoding.h"
#include "import/capture_text.h"
#include "import/import.h"
#include "import/read_capture.h"
#include "output/json_output.h"
#include "simulation/security_suite.h"

#include <algorithm>
#include <array>

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
    std::vector<std::string> words;
    std::string columns;
    std::string output;
    unsigned codePage = 0; ///< 0: find out
    bool withProfiles = false;
};

/// What was read so far.
struct Readings
{
    Captures captures;
    std::vector<std::string> warnings;
};

constexpr const char* kStandardOutput = "-";

constexpr const char* kImportExamples = R"(Captures of Windows, in any language of it and any code page:
  netsh wlan show networks mode=bssid > networks.txt
  netsh wlan show interfaces > interfaces.txt
  netsh wlan export profile folder=profiles
  calvix import networks.txt interfaces.txt profiles -o air.json

Captures of Linux:
  sudo iw dev wlan0 scan > networks.txt
  nmcli -t -f IN-USE,BSSID,SSID,MODE,CHAN,FREQ,RATE,SIGNAL,SECURITY dev wifi list > networks.txt
  calvix import networks.txt -o air.json

What is not told is said in so many words:
  calvix import old.txt --code-page 852 -o air.json
  calvix import networks.txt --word "WPA2-Tajne=WPA2PSK" -o air.json
  calvix import list.txt --columns BSSID,SSID,CHAN,SIGNAL,SECURITY -o air.json)";

bool IsMeaning(const std::string& text)
{
    constexpr std::array<std::string_view, 4> kOthers{"infrastructure", "independent", "auto", "manual"};
    return simulation::IsAuthenticationName(text) || simulation::IsEncryptionName(text) ||
           std::find(kOthers.begin(), kOthers.end(), text) != kOthers.end();
}

/// "WPA2-Osobní=WPA2PSK"
ExplainedWords WordsOf(const std::vector<std::string>& arguments)
{
    ExplainedWords words;
    for (const std::string& argument : arguments)
    {
        const std::size_t sign = argument.rfind('=');
        const std::string meaning = sign == std::string::npos ? "" : argument.substr(sign + 1);
        if (sign == 0 || !IsMeaning(meaning))
            throw BadInput("\"" + argument + "\" explains no word",
                           "Write WORD=MEANING; meanings are the names that profiles use (WPA2PSK, WPA3SAE, open, AES, "
                           "none ...), infrastructure, independent, auto and manual.");
        words.emplace_back(argument.substr(0, sign), meaning);
    }
    return words;
}

std::vector<std::string> ColumnNamesOf(std::string text)
{
    std::vector<std::string> names;
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find(','), text.size());
        names.emplace_back(Trim(std::string_view(text).substr(0, end)));
        text.erase(0, end + 1);
    }
    return names;
}

CaptureHints HintsOf(const ImportOptions& options)
{
    CaptureHints hints;
    hints.words = WordsOf(options.words);
    hints.columns = ColumnNamesOf(options.columns);
    if (options.codePage != 0)
        hints.codePage = options.codePage;
    return hints;
}

void Add(Readings& readings, NetworksCapture networks)
{
    std::optional<NetworksCapture>& known = readings.captures.networks;
    if (known)
        throw CaptureError(networks.source + ": a second list of networks, after " + known->source);
    known = std::move(networks);
}

void Add(Readings& readings, InterfacesCapture interfaces)
{
    std::optional<InterfacesCapture>& known = readings.captures.interfaces;
    if (known)
        throw CaptureError(interfaces.source + ": a second list of interfaces, after " + known->source);
    known = std::move(interfaces);
}

void Add(Readings& readings, ExportedProfile profile)
{
    readings.captures.profiles.push_back(std::move(profile));
}

void AddFolder(Readings& readings, const std::string& path)
{
    for (ExportedProfile& profile : ReadProfileFolder(path))
        Add(readings, std::move(profile));
}

std::string TextOf(Readings& readings, const std::string& path, const CaptureHints& hints)
{
    DecodedCapture decoded = DecodeCapture(ReadWholeFile(path), path, hints.codePage);
    readings.warnings.insert(readings.warnings.end(), decoded.warnings.begin(), decoded.warnings.end());
    return decoded.text;
}

void AddByContent(Readings& readings, const std::string& path, const CaptureHints& hints)
{
    std::error_code ignored;
    if (files::is_directory(PathOf(path), ignored))
        return AddFolder(readings, path);
    ReadResult result = ReadCapture(ReadWholeFile(path), path, hints);
    readings.warnings.insert(readings.warnings.end(), result.warnings.begin(), result.warnings.end());
    std::visit([&readings](auto& content) { Add(readings, std::move(content)); }, result.content);
}

Readings ReadCaptures(const ImportOptions& options)
{
    const CaptureHints hints = HintsOf(options);
    Readings readings;
    if (!options.networks.empty())
        Add(readings, ReadNetworksText(TextOf(readings, options.networks, hints), options.networks, hints));
    if (!options.interfaces.empty())
        Add(readings, ParseInterfaces(TextOf(readings, options.interfaces, hints), options.interfaces, hints.words));
    if (!options.profiles.empty())
        AddFolder(readings, options.profiles);
    for (const std::string& path : options.captures)
        AddByContent(readings, path, hints);
    const Captures& captures = readings.captures;
    if (!captures.networks && !captures.interfaces && captures.profiles.empty())
        throw BadInput("there is nothing to import", "Name at least one file: --networks, --interfaces or --profiles");
    return readings;
}

ImportedScenario Assemble(const ImportOptions& options)
{
    Readings readings = ReadCaptures(options);
    ImportedScenario imported = AssembleScenario(readings.captures, options.withProfiles);
    imported.warnings.insert(imported.warnings.begin(), readings.warnings.begin(), readings.warnings.end());
    return imported;
}

/// The text for the file, known to be readable again.
std::string CheckedText(const simulation::Scenario& scenario)
{
    std::string text = simulation::WriteScenario(scenario);
    simulation::ParseScenario(text, "the imported scenario");
    return text;
}

void PrintCounts(std::ostream& out, const ScenarioCounts& counts)
{
    out << "Adapters       " << counts.adapters << "\n"
        << "Access points  " << counts.accessPoints << " (" << counts.hidden << " hidden)\n"
        << "Networks       " << counts.networks << "\n"
        << "Profiles       " << counts.profiles << "\n";
}

void Report(Host& host, const ImportedScenario& imported, const std::string& output)
{
    for (const std::string& warning : imported.warnings)
        host.err() << "warning: " << warning << "\n";
    // The scenario itself has standard output then.
    std::ostream& out = output == kStandardOutput ? host.err() : host.out();
    const ScenarioCounts counts = CountScenario(imported.scenario);
    if (host.json())
        return PrintJson(out, ImportFacts{counts, imported.warnings, output});
    PrintCounts(out, counts);
    if (output != kStandardOutput)
        out << "Written to     " << output << "\n";
}

void Import(Host& host, const ImportOptions& options)
{
    try
    {
        const ImportedScenario imported = Assemble(options);
        const std::string text = CheckedText(imported.scenario);
        if (options.output == kStandardOutput)
            host.out() << text;
        else
            WriteWholeFile(options.output, text);
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
        .Add("import", "Make a scenario from what netsh, iw or nmcli printed",
             [options](Host& host) { Import(host, *options); })
        .Text("--networks", options->networks,
              "Output of \"netsh wlan show networks mode=bssid\", \"iw dev wlan0 scan\" or \"nmcli dev wifi list\"")
        .Takes(ValueKind::file)
        .Text("--interfaces", options->interfaces, "Output of \"netsh wlan show interfaces\"")
        .Takes(ValueKind::file)
        .Text("--profiles", options->profiles, "Folder of \"netsh wlan export profile\"")
        .Takes(ValueKind::folder)
        .Flag("--with-profiles", options->withProfiles,
              "Make an automatic profile, with a made-up key, for every named network that has none")
        .Number("--code-page", options->codePage, "The code page of captures that are not Unicode; 0: the likeliest")
        .Texts("--word", options->words, "WORD=MEANING: what a word of another language means, as profiles say it")
        .Text("--columns", options->columns, "What was given to nmcli's -f, for a list without names of columns")
        .Texts("[CAPTURES]", options->captures, "The same files and folders, told apart by what they hold")
        .Takes(ValueKind::file)
        .Text("-o,--output", options->output, "Scenario file to write, - for standard output")
        .Takes(ValueKind::scenario)
        .Required()
        .Examples(kImportExamples);
}

} // namespace calvix::host
