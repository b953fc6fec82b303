#pragma once

#include "output/output.h"

#include <string>

namespace calvix::host
{

/// Tells what is about to happen and asks whether it should. Returns when the answer is yes, or was given beforehand
/// (`answered`, from --yes); whatever else is answered, and no answer at all, ends the command.
void Confirm(Output& output, const std::string& whatHappens, bool answered);

} // namespace calvix::host
