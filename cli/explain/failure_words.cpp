#include "explain/failure_words.h"

#include "explain/platform_errors.h"
#include "explain/result_codes.h"
#include "output/table.h"
#include "output/words.h"
#include "platform/records/error_numbers.h"

namespace calvix::host
{

namespace
{

/// Errors that mean that the service cannot be reached, whatever the operation.
bool MeansUnavailable(std::uint32_t error)
{
    return error == ERROR_SERVICE_NOT_ACTIVE || error == ERROR_SERVICE_DISABLED ||
           error == ERROR_SERVICE_DOES_NOT_EXIST || error == ERROR_MOD_NOT_FOUND;
}

void AddRefusal(FailureReport& report, const Refusal& refusal)
{
    report.operation = refusal.operation;
    report.platformError = refusal.error;
    report.message += (report.message.empty() ? "" : ": ") +
                      std::string(refusal.bySystem ? "the system" : "the WLAN service") + " refused " +
                      refusal.operation + " (" + DescribePlatformError(refusal.error) + ")";
    if (refusal.reasonCode != 0)
    {
        report.reasonCode = static_cast<std::uint32_t>(refusal.reasonCode);
        report.reason = ReasonText(refusal.reasonCode);
        report.message += ", because: " + report.reason;
    }
    if (!refusal.bySystem && MeansUnavailable(refusal.error))
        report.exitCode = ExitCode::unavailable;
    const std::string advice = refusal.bySystem ? AdviseOnSystemError(refusal.error, refusal.operation)
                                                : AdviseOnPlatformError(refusal.error, refusal.operation);
    if (!advice.empty())
        report.advice = advice;
}

/// Ends a sentence that may have its full stop already.
const char* FullStop(const std::string& text)
{
    return text.empty() || text.back() != '.' ? "." : "";
}

/// Error numbers with the top bit set come through an int as negative numbers, which nobody recognises.
std::string CodeText(int code)
{
    const std::string number = std::to_string(code);
    return code < -0x10000 ? number + " (" + DescribePlatformError(static_cast<std::uint32_t>(code)) + ")" : number;
}

} // namespace

Failure MethodFailureInWords(const char* method, long code, const Refusal& refusal)
{
    FailureReport report;
    report.method = method;
    report.code = static_cast<int>(code);
    const MethodResults* const results = FindMethod(method);
    const std::optional<Cause> cause = results != nullptr ? FindCause(*results, code) : std::nullopt;
    if (!cause)
    {
        const Explanation explanation = results != nullptr ? Explain(*results, code) : Explanation{};
        report.message = explanation.known ? explanation.meaning : "the method returned an unknown result";
        report.advice = explanation.advice;
        if (!refusal.operation.empty() && refusal.error == static_cast<std::uint32_t>(code))
        {
            report.message = std::string(method) + " did not succeed";
            AddRefusal(report, refusal);
        }
        return Failure(report);
    }
    const CauseText& text = Describe(*cause);
    report.exitCode = text.exitCode;
    report.message = text.meaning;
    report.advice = text.advice;
    // What the system refuses ends a method at once; the WLAN service is asked about other things meanwhile.
    const bool itsRefusal = text.operation != nullptr && refusal.operation == text.operation;
    if (itsRefusal || (refusal.bySystem && text.operation == nullptr))
        AddRefusal(report, refusal);
    return Failure(report);
}

Failure ServiceFailure(const char* operation, std::uint32_t error)
{
    FailureReport report;
    AddRefusal(report, {operation, error});
    return Failure(report);
}

Failure SystemFailure(const char* method, std::optional<int> code, std::string message, const Refusal& refusal)
{
    FailureReport report;
    report.method = method;
    report.code = code;
    report.message = std::move(message);
    if (!refusal.operation.empty())
        AddRefusal(report, refusal);
    return Failure(report);
}

Failure OperationFailure(std::string message, std::string advice)
{
    FailureReport report;
    report.message = std::move(message);
    report.advice = std::move(advice);
    return Failure(report);
}

void PrintFailure(std::ostream& err, const FailureReport& report, const TerminalTraits& terminal)
{
    TerminalTraits ofError;
    ofError.color = terminal.errorColor;
    err << Toned("calvix:", Tone::poor, ofError) << ' ' << report.message << FullStop(report.message) << '\n';
    if (!report.method.empty() && report.code)
        err << "  Result: " << report.method << " returned " << CodeText(*report.code) << ".\n";
    if (!report.advice.empty())
        err << "  What to do: " << report.advice << FullStop(report.advice) << '\n';
}

} // namespace calvix::host
