#pragma once

#include "platform/platform.h"

#include <string_view>

namespace calvix::wrappers
{

/// The platform's names of its numbers, without their common beginning; empty for a number that has none.
std::string_view NameOf(WLAN_INTF_OPCODE opcode);
std::string_view NameOf(WLAN_AUTOCONF_OPCODE opcode);
std::string_view NameOf(WLAN_CONNECTION_MODE mode);
std::string_view NameOf(DOT11_BSS_TYPE type);
std::string_view NameOf(POWER_INFORMATION_LEVEL level);

} // namespace calvix::wrappers
