#include "shell/command.h"

#include "host/common_options.h"

namespace calvix::host
{

void DeclareCommonOptions(Arguments& arguments, CommonOptions& options)
{
    arguments.Flag("--json", options.json, "Print one JSON object instead of text")
        .Text("--interface", options.adapter,
              "The adapter: its GUID, its number or its description (default: the first)")
        .Takes(ValueKind::adapter)
        .Text("--scenario", options.scenario, "Run on the simulated computer that this file describes")
        .Takes(ValueKind::scenario)
        .Text("--save", options.save, "Write the simulated computer to this scenario file afterwards")
        .Takes(ValueKind::scenario)
        .Text("--record", options.record, "Write every call of the platform with its results to this file")
        .Takes(ValueKind::file)
        .Flag("--anonymise", options.anonymise, "Make up the names and addresses in the file of --record")
        .Text("--replay", options.replay, "Answer from this recording, in place of a computer")
        .Takes(ValueKind::file)
        .Flag("--trace", options.trace, "Show the library's trace lines on standard error")
        .OneOf("--color", options.color, {"auto", "always", "never"},
               "Colours: on terminals unless NO_COLOR is set (auto, default), always or never")
        .Flag("--no-color", options.noColor, "The same as --color never");
}

} // namespace calvix::host
