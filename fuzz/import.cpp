// Captures: whatever can be imported makes a scenario that loads as it was written.

#include "input.h"
#include "promise.h"
#include "targets.h"

#include "import/capture_text.h"
#include "import/import.h"

namespace calvix::fuzz
{

namespace
{

/// What stands between the files of an input.
constexpr std::string_view kNextFile = "\n=====\n";

void AddFile(host::Captures& captures, const std::string& bytes)
{
    const std::string text = host::ReadingFrom("capture.txt", [&] { return host::ToUtf8(bytes); });
    if (host::LooksLikeProfile(text))
        captures.profiles.push_back(host::ParseExportedProfile(text, "Wi-Fi-profile.xml"));
    else if (host::LooksLikeNetworks(text))
        captures.networks = host::ParseNetworks(text, "networks.txt");
    else if (host::LooksLikeInterfaces(text))
        captures.interfaces = host::ParseInterfaces(text, "interfaces.txt");
}

host::Captures ReadFiles(Input& input)
{
    constexpr int kMostFiles = 4;
    host::Captures captures;
    for (int file = 0; file < kMostFiles && !input.IsEmpty(); ++file)
        AddFile(captures, std::string(input.Until(kNextFile)));
    return captures;
}

void CheckImported(const host::ImportedScenario& imported)
{
    const std::string written = simulation::WriteScenario(imported.scenario);
    Promise(simulation::ParseScenario(written, "the imported scenario") == imported.scenario,
            "an imported scenario loads as it was written");
    const host::ScenarioCounts counts = host::CountScenario(imported.scenario);
    Promise(counts.accessPoints == imported.scenario.accessPoints.size() && counts.networks <= counts.accessPoints &&
                counts.hidden <= counts.accessPoints,
            "the counts are those of the scenario");
}

} // namespace

void RunImport(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const bool makeProfiles = input.Byte() % 2 != 0;
    try
    {
        const host::Captures captures = ReadFiles(input);
        if (captures.networks || captures.interfaces || !captures.profiles.empty())
            CheckImported(host::AssembleScenario(captures, makeProfiles));
    }
    catch (const host::CaptureError& error)
    {
        Promise(*error.what() != '\0', "a refusal says something");
    }
}

} // namespace calvix::fuzz
