#pragma once

#include "host/host.h"
#include "output/facts.h"

namespace calvix::host
{

/// What the checks found, in order: each depends on those before it.
struct Diagnosis
{
    std::vector<CheckFacts> checks;
    ExitCode exitCode = ExitCode::success; ///< of the first check that failed
};

/// Checks the service, the adapter that was named (otherwise all adapters) and the internet, and changes nothing. After
/// a failed check it skips the checks that depend on it.
Diagnosis Diagnose(Host& host);

} // namespace calvix::host
