#include "commands/commands.h"
#include "files/files.h"
#include "report/page.h"
#include "report/recorded_air.h"
#include "report/report_json.h"
#include "report/take_picture.h"
#include "view/describe.h"

namespace calvix::host
{

namespace
{

struct ReportOptions
{
    std::string file = "air.html";
    std::string title = "A picture of the air";
    std::string recording;
    PictureOptions picture;
};

void WritePage(Host& host, const ReportOptions& options, const ReportFacts& report)
{
    const std::string page = ReportPage(report);
    if (options.file == kStandardOutput)
    {
        if (!host.json())
            host.out() << page;
        return;
    }
    WriteWholeFile(options.file, page);
    if (!host.json())
        host.out() << "Wrote " << options.file << ": " << Counted(report.accessPoints.size(), "access point")
                   << ". Open it in a browser.\n";
}

/// A recording is one session, whose time and computer are what they are.
void RefuseBesideRecording(Host& host, const ReportOptions& options)
{
    if (options.recording.empty())
        return;
    const auto refuse = [](bool given, const std::string& option)
    {
        if (given)
            throw BadInput("--recording excludes " + option, "omit it: the page shows what the recording has");
    };
    refuse(options.picture.seconds != 0, "--for");
    refuse(options.picture.roamEvery != 0, "--roam");
    refuse(!host.options().scenario.empty(), "--scenario");
    refuse(!host.options().save.empty(), "--save");
    refuse(!host.options().record.empty(), "--record");
    refuse(!host.options().replay.empty(), "--replay");
}

/// What was refused on this computer is a failure; what was refused while recording belongs to the picture.
void TellFailureOf(const ReportFacts& report)
{
    if (report.recording && !report.recording->incomplete.empty())
        throw BadInput(report.recording->incomplete, "make the recording again");
    if (!report.recording && !report.missing.empty())
        throw Failure(report.missing.front().failure);
}

void MakeReport(Host& host, const ReportOptions& options)
{
    RefuseBesideRecording(host, options);
    if (options.picture.roamEvery != 0 && options.picture.seconds == 0)
        throw BadInput("--roam needs --for", "give the time: --for SECONDS");
    ReportFacts report = options.recording.empty() ? TakePicture(host, options.picture)
                                                   : ReadRecordedAir(options.recording, host.options().adapter);
    report.title = options.title;
    WritePage(host, options, report);
    // With JSON a failure is the only object.
    TellFailureOf(report);
    if (host.json())
        PrintJson(host.out(), report);
}

} // namespace

void AddReportCommand(CommandSet& commands)
{
    const auto options = std::make_shared<ReportOptions>();
    commands
        .Add("report", "Write a page with a picture of the air", [options](Host& host) { MakeReport(host, *options); })
        .Text("-o,--output", options->file, "The page's file, - for standard output (default: air.html)")
        .Takes(ValueKind::file)
        .Text("--title", options->title, "The page's title")
        .Number("--for", options->picture.seconds, "Seconds to follow the signal first; 0: only how it is now")
        .Number("--roam", options->picture.roamEvery, "Meanwhile decide about roaming every N seconds; 0: never")
        .Text("--recording", options->recording, "Draw what this recorded session of any command heard")
        .Takes(ValueKind::file)
        .Prints("report", [] { return std::vector{Describe(ReportFacts{})}; })
        .Examples("With a minute of the signal:\n"
                  "  calvix report -o air.html --for 60\n"
                  "A recorded walk, drawn on any computer:\n"
                  "  calvix report -o walk.html --recording walk.jsonl");
}

} // namespace calvix::host
