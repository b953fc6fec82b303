#include "import/import_command.h"

#include "files/file_path.h"
#include "files/files.h"
#include "host/host.h"
#include "import/capture_encoding.h"
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

struct ImportOptions
{
    std::string networks;
    std::string interfaces;
    std::string profiles;
    std::vector<std::string> captures;
    std::vector<std::string> words;
    std::string output;
    unsigned codePage = 0; ///< 0: find out
    bool withProfiles = false;
};

constexpr const char* kImportExamples = R"(Captures of Windows, in any language of it and any code page:
  netsh wlan show networks mode=bssid > networks.txt
  netsh wlan show interfaces > interfaces.txt
  netsh wlan export profile folder=profiles
  calvix import networks.txt interfaces.txt profiles -o air.json

Captures of Linux:
  sudo iw dev wlan0 scan > networks.txt
  nmcli -t -f IN-USE,BSSID,SSID,MODE,CHAN,FREQ,RATE,SIGNAL,SECURITY,WPA-FLAGS,RSN-FLAGS dev wifi list > networks.txt
  calvix import networks.txt -o air.json

What captures do not show, options say:
  calvix import old.txt --code-page 852 -o air.json
  calvix import networks.txt --word "WPA2-Tajne=WPA2PSK" -o air.json)";

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
            throw BadInput("\"" + argument + "\" is not WORD=MEANING with a known meaning",
                           "meanings are the names in profiles (WPA2PSK, WPA3SAE, open, AES, none ...), "
                           "infrastructure, independent, auto and manual");
        words.emplace_back(argument.substr(0, sign), meaning);
    }
    return words;
}

void AddFolder(Captures& captures, const std::string& path)
{
    for (ExportedProfile& profile : ReadProfileFolder(path))
        captures.profiles.push_back(std::move(profile));
}

Captures ReadCaptures(const ImportOptions& options)
{
    CaptureHints hints;
    hints.words = WordsOf(options.words);
    if (options.codePage != 0)
        hints.codePage = options.codePage;
    std::vector<std::string> paths{options.networks, options.interfaces};
    paths.insert(paths.end(), options.captures.begin(), options.captures.end());
    Captures captures;
    std::error_code ignored;
    if (!options.profiles.empty())
        AddFolder(captures, options.profiles);
    for (const std::string& path : paths)
        if (std::filesystem::is_directory(PathOf(path), ignored))
            AddFolder(captures, path);
        else if (!path.empty())
            ReadCapture(ReadWholeFile(path), path, hints, captures);
    if (!captures.networks && !captures.interfaces && captures.profiles.empty())
        throw BadInput("there is nothing to import", "give at least one file: networks, interfaces or profiles");
    return captures;
}

void Import(Host& host, const ImportOptions& options)
{
    try
    {
        WriteMadeScenario(host, AssembleScenario(ReadCaptures(options), options.withProfiles), options.output);
    }
    catch (const CaptureError& error)
    {
        throw BadInput(error.what());
    }
}

} // namespace

void AddImportCommand(CommandSet& commands)
{
    const auto options = std::make_shared<ImportOptions>();
    commands
        .Add("import", "Make a scenario from the output of netsh, iw or nmcli",
             [options](Host& host) { Import(host, *options); })
        .Text("--networks", options->networks,
              "Output of \"netsh wlan show networks mode=bssid\", \"iw dev wlan0 scan\" or \"nmcli dev wifi list\"")
        .Takes(ValueKind::file)
        .Text("--interfaces", options->interfaces, "Output of \"netsh wlan show interfaces\"")
        .Takes(ValueKind::file)
        .Text("--profiles", options->profiles, "Folder of \"netsh wlan export profile\"")
        .Takes(ValueKind::folder)
        .Flag("--with-profiles", options->withProfiles,
              "Make an automatic profile, with an invented key, for every named network that has none")
        .Number("--code-page", options->codePage,
                "The code page of captures that are not Unicode; 0: the most likely one")
        .Texts("--word", options->words, "WORD=MEANING: the meaning of a word of another language, as in profiles")
        .Texts("[CAPTURES]", options->captures, "The same files and folders; their content shows what they are")
        .Takes(ValueKind::file)
        .Text("-o,--output", options->output, "Scenario file to write, - for standard output")
        .Takes(ValueKind::scenario)
        .Required()
        .Prints("import", [] { return std::vector{Describe(ImportFacts{})}; })
        .Examples(kImportExamples);
}

} // namespace calvix::host
