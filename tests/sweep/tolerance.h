#pragma once

#include "sweep/bench.h"

#include "explain/result_codes.h"

namespace calvix::test::sweep
{

/// Whether a method deliberately goes on, or answers no, when a call of the operation fails, and the outcome is that.
bool IsTolerated(const Method& method, const Failure& failure, const Outcome& outcome, const Reference& reference);

/// Whether a failure can be why a method reports this cause.
bool CanCause(const Method& method, const Failure& failure, host::Cause cause);

/// The outputs of a method that reports a failure: as they were, but for the methods that empty their list first, or tell
/// the platform's error number.
std::vector<std::string> OutputsOfFailure(const Method& method, const Failure& failure, const Outcome& outcome);

} // namespace calvix::test::sweep
