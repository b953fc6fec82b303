#pragma once

#include "simulation/scenario.h"

#include <optional>
#include <string>
#include <vector>

namespace calvix::host
{

/// A profile for an access point's network, as a user would have stored it. Captures keep neither passphrases nor keys, so
/// that the key is made up. Nothing for a network that no profile can be made for, such as one of vendor-made security.
std::optional<simulation::StoredProfile>
MakeProfile(const std::string& name, const simulation::AccessPoint& accessPoint, bool automatic);

/// The profile of a name, or null.
const simulation::StoredProfile* FindProfile(const std::vector<simulation::StoredProfile>& profiles,
                                             const std::string& name);

/// Whether a stored profile leads to the access point.
bool FitsProfile(const simulation::StoredProfile& profile, const simulation::AccessPoint& accessPoint);

} // namespace calvix::host
