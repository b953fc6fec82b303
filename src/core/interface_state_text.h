#pragma once

#include <string_view>

namespace calvix
{

/// The words for an interface's state; empty for a number that is none.
std::string_view InterfaceStateText(unsigned long state);

} // namespace calvix
