#pragma once

#include "failure.h"
#include "terminal.h"
#include "watched_wlan.h"

#include <optional>
#include <ostream>

namespace calvix::host
{

/// The failure of a library method, with what the service refused on the way where that explains it.
Failure MethodFailureInWords(const char* method, long code, const Refusal& refusal);

/// The failure of an operation of the service that this program called itself.
Failure ServiceFailure(const char* operation, std::uint32_t error);

/// The failure of a method whose result does not tell it, with what the system refused, if anything.
Failure SystemFailure(const char* method, std::optional<int> code, std::string message, const Refusal& refusal);

/// A failure that is nobody's code: a time-out, a connection that was never made.
Failure OperationFailure(std::string message, std::string advice);

/// The failure for people.
void PrintFailure(std::ostream& err, const FailureReport& report, const TerminalTraits& terminal = {});

} // namespace calvix::host
