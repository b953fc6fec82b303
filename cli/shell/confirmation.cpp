#include "shell/confirmation.h"

#include "host/interrupt.h"
#include "output/failure.h"

#include <algorithm>
#include <cctype>

namespace calvix::host
{

namespace
{

bool MeansYes(std::string answer)
{
    std::erase_if(answer, [](unsigned char c) { return std::isspace(c) != 0; });
    std::transform(answer.begin(), answer.end(), answer.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return answer == "yes" || answer == "y";
}

} // namespace

void Confirm(Output& output, const std::string& whatHappens, bool answered)
{
    if (answered)
        return;
    output.err() << whatHappens << " Go on? yes/no: " << std::flush;
    std::string answer;
    const bool read = static_cast<bool>(std::getline(output.in(), answer));
    if (read && MeansYes(answer) && !Interrupted())
        return;
    // Who typed an answer has ended the line; otherwise it is still open.
    if (!read)
        output.err() << '\n';
    FailureReport report;
    report.exitCode = ExitCode::notConfirmed;
    report.message = "not confirmed: nothing was done";
    report.advice = "answer yes, or use --yes in a script";
    throw Failure(report);
}

} // namespace calvix::host
