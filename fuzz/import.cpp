// Captures: whatever can be imported makes a scenario that loads as it was written.

#include "input.h"
#include "promise.h"
#include "targets.h"

#include "import/import.h"
#include "import/read_capture.h"

namespace calvix::fuzz
{

namespace
{

/// What stands between the files of an input.
constexpr std::string_view kNextFile = "\n=====\n";

host::Captures ReadFiles(Input& input)
{
    constexpr int kMostFiles = 4;
    host::Captures captures;
    for (int file = 0; file < kMostFiles && !input.IsEmpty(); ++file)
        host::ReadCapture(input.Until(kNextFile), "capture.txt", {}, captures);
    return captures;
}

void CheckImported(const host::MadeScenario& imported)
{
    const std::string written = simulation::WriteScenario(imported.scenario);
    Promise(simulation::ParseScenario(written, "the imported scenario") == imported.scenario,
            "an imported scenario loads as it was written");
    const host::ScenarioCounts counts = host::CountScenario(imported.scenario);
    Promise(counts.accessPoints == imported.scenario.accessPoints.size() &&
                counts.networks <= counts.accessPoints + counts.profiles && counts.hidden <= counts.accessPoints,
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
