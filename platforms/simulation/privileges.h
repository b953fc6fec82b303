#pragma once

#include "platform/records/system_records.h"

#include <optional>
#include <string>
#include <string_view>

namespace calvix::simulation
{

/// The identifier of a privilege, by its name in any case; nothing for a name that the platform does not know.
std::optional<LUID> PrivilegeLuid(std::string_view name);

/// The name of an identifier, empty if no privilege has it.
std::string PrivilegeName(const LUID& luid);

} // namespace calvix::simulation
