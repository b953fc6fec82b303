#pragma once

#include "shell/command.h"

#include <string>

namespace calvix::host
{

/// docs/output.schema.json: what the commands print with --json, one definition for each kind of output.
std::string OutputSchema(const CommandSet& commands);

} // namespace calvix::host
