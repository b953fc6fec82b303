#pragma once

#include "shell/command.h"

namespace calvix::host
{

void AddImportCommand(CommandSet& commands);

} // namespace calvix::host
