#pragma once

#include "shell/command_description.h"

#include <string>

namespace calvix::host
{

/// The manual page calvix(1) in man's own macros, for `man -l` and packages.
std::string ManualPage(const ProgramDescription& program);

} // namespace calvix::host
