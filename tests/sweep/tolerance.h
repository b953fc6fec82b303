#pragma once

#include "sweep/bench.h"

namespace calvix::test::sweep
{

/// Whether a method deliberately goes on, or answers no, when a call of the operation fails, and the outcome is that.
bool IsTolerated(const MethodCall& method, const Failure& failure, const Outcome& outcome, const Reference& reference);

/// Whether a method that fails has by then emptied its list, zeroed its text or told the platform's error number.
bool WritesWhenFailing(const MethodCall& method);

} // namespace calvix::test::sweep
