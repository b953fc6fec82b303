#pragma once

#include "import/made_scenario.h"

namespace calvix::host
{

/// The computer that the program runs on as a scenario: its adapters (only the one that was named, if any), the access
/// points that they hear, profiles without keys, connections, settings and power. For `seconds` it keeps scanning, so that
/// the scenario changes as the air did. What cannot be read is left out with a warning.
MadeScenario CaptureComputer(Host& host, unsigned seconds);

} // namespace calvix::host
