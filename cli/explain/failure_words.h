#pragma once

#include "output/failure.h"
#include "output/terminal.h"

#include <calvix/platform_records.h>

#include <optional>
#include <ostream>

namespace calvix::host
{

/// An operation that the WLAN service, or the rest of the system, refused.
struct Refusal
{
    std::string operation; ///< empty: none was
    std::uint32_t error = 0;
    DWORD reasonCode = 0;  ///< of a refused profile, 0 otherwise
    bool bySystem = false; ///< not by the WLAN service
};

/// The failure of a library method, with what the service refused on the way where that explains it.
Failure MethodFailureInWords(const char* method, long code, const Refusal& refusal);

/// The failure of an operation of the service that this program called itself.
Failure ServiceFailure(const char* operation, std::uint32_t error);

/// The failure of a method whose result does not show it, with the system's refusal, if any.
Failure SystemFailure(const char* method, std::optional<int> code, std::string message, const Refusal& refusal);

/// A failure without a result code: a time-out, a connection that was never made.
Failure OperationFailure(std::string message, std::string advice);

/// The failure for people.
void PrintFailure(std::ostream& err, const FailureReport& report, const TerminalTraits& terminal = {});

} // namespace calvix::host
