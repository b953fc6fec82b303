#include "commands/commands.h"
#include "files/files.h"
#include "report/page.h"
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

void MakeReport(Host& host, const ReportOptions& options)
{
    if (options.picture.roamEvery != 0 && options.picture.seconds == 0)
        throw BadInput("--roam needs --for", "give the time: --for SECONDS");
    ReportFacts report = TakePicture(host, options.picture);
    // The recording of another command makes no page; one that breaks off shows what it has.
    if (const auto trouble = host.EndReplay(); trouble && trouble->exitCode == ExitCode::differs)
        throw Failure(*trouble);
    report.title = options.title;
    WritePage(host, options, report);
    // With JSON a failure is the only object.
    if (!report.missing.empty())
        throw Failure(report.missing.front().failure);
    if (host.json())
        PrintJson(host.out(), report);
}

} // namespace

void AddReportCommand(CommandSet& commands)
{
    const auto options = std::make_shared<ReportOptions>();
    commands.Add("report", "Write a page with a picture of the air", options, MakeReport)
        .Text("-o,--output", options->file, "The page's file, - for standard output (default: air.html)")
        .Takes(ValueKind::file)
        .Text("--title", options->title, "The page's title")
        .Number("--for", options->picture.seconds, "Seconds to follow the signal first; 0: only how it is now")
        .Number("--roam", options->picture.roamEvery, "Meanwhile decide about roaming every N seconds; 0: never")
        .Prints("report", [] { return std::vector{Describe(ReportFacts{})}; })
        .Examples("With a minute of the signal:\n"
                  "  calvix report -o air.html --for 60\n"
                  "A recorded walk, drawn on any computer:\n"
                  "  calvix report -o walk.html --for 240 --roam 1 --record walk.jsonl\n"
                  "  calvix report -o walk.html --for 240 --roam 1 --replay walk.jsonl");
}

} // namespace calvix::host
