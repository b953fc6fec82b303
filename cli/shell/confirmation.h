#pragma once

#include "output/output.h"

#include <string>

namespace calvix::host
{

/// Shows what is about to happen and asks for confirmation. Returns if the answer is yes, or was given before
/// (`answered`, from --yes); any other answer, and none, ends the command.
void Confirm(Output& output, const std::string& whatHappens, bool answered);

} // namespace calvix::host
