#pragma once

#include "shell/command.h"

#include <string>

namespace calvix::host
{

/// The manual page calvix(1) in man's own macros, for `man -l` and packages.
std::string ManualPage(const CommandSet& program);

} // namespace calvix::host
