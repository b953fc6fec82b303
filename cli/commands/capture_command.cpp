#include "capture/anonymous_scenario.h"
#include "capture/computer_capture.h"
#include "commands/commands.h"

namespace calvix::host
{

namespace
{

struct CaptureOptions
{
    std::string output;
    unsigned seconds = 0;
};

/// A scan takes four seconds at most, and a timetable of a scenario has 4096 points at most.
constexpr unsigned kMostSeconds = 4 * 60 * 60;

void TakeCapture(Host& host, const CaptureOptions& options)
{
    if (options.seconds > kMostSeconds)
        throw BadInput("--for is at most " + std::to_string(kMostSeconds) + " seconds", "capture a shorter time");
    MadeScenario made = CaptureComputer(host, options.seconds);
    if (host.options().anonymise)
        Anonymise(made.scenario);
    WriteMadeScenario(host, made, options.output);
}

} // namespace

void AddCaptureCommand(CommandSet& commands)
{
    const auto options = std::make_shared<CaptureOptions>();
    commands
        .Add("capture", "Make a scenario of this computer, its air and its profiles, without their keys", options,
             TakeCapture)
        .Text("-o,--output", options->output, "Scenario file to write, - for standard output")
        .Takes(ValueKind::scenario)
        .Required()
        .Number("--for", options->seconds,
                "Seconds to keep scanning, so that the scenario changes as the air did; 0: only how it is now")
        .Anonymises()
        .Prints("import")
        .Examples("Take an airspace home:\n"
                  "  calvix scan\n"
                  "  calvix capture -o air.json\n"
                  "A walk of four minutes, for others to see:\n"
                  "  calvix capture -o walk.json --for 240 --anonymise");
}

} // namespace calvix::host
