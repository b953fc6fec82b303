#pragma once

#include "output/facts.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace calvix::host
{

/// What the program ends with.
enum class ExitCode
{
    success = 0,
    failed = 1,       ///< the operation failed
    badInput = 2,     ///< bad usage, or a file that cannot be used
    unavailable = 3,  ///< no adapter, or the WLAN service cannot be reached
    notConfirmed = 4, ///< the confirmation was not answered with yes
    differs = 5       ///< the command differs from the recording that it replays
};

/// Why a command ended without success, in words and in numbers.
struct FailureReport
{
    ExitCode exitCode = ExitCode::failed;
    std::string message; ///< what failed
    std::string advice;  ///< what to do about it; may be empty
    std::string method;  ///< the library's method that failed; empty: none
    std::optional<int> code;
    std::string operation; ///< the operation of the platform that was refused last; may be empty
    std::uint32_t platformError = 0;
    std::uint32_t reasonCode = 0; ///< why the service did not make a connection or store a profile; 0: unknown
    std::string reason;           ///< its text
    std::vector<CandidateFacts> candidates; ///< whose requests were refused
    std::vector<CheckFacts> checks;         ///< of the doctor, some of which failed
};

/// Ends a command.
class Failure : public std::runtime_error
{
public:
    explicit Failure(FailureReport report) : std::runtime_error(report.message), m_report(std::move(report)) {}

    const FailureReport& report() const { return m_report; }

private:
    FailureReport m_report;
};

/// A file or an argument that cannot be used: `throw BadInput("networks.txt:12: no signal line", "...")`.
inline Failure BadInput(std::string message, std::string advice = {})
{
    FailureReport report;
    report.exitCode = ExitCode::badInput;
    report.message = std::move(message);
    report.advice = std::move(advice);
    return Failure(std::move(report));
}

} // namespace calvix::host
