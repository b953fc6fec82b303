#pragma once

#include "simulation/blocks.h"
#include "simulation/heard_bss.h"
#include "simulation/profile_store.h"

#include <calvix/platform_records.h>

#include <vector>

namespace calvix::simulation
{

struct Link;

/// What the list of available networks is made from.
struct NetworkListInput
{
    const std::vector<HeardBss>& heard;
    const ProfileStore& profiles;
    const Link* link;       ///< the connection that is up, or null
    bool allAdHocProfiles;  ///< also the ad hoc profiles whose networks are not heard
    bool allHiddenProfiles; ///< also the profiles of hidden networks, heard or not
};

/// The networks as the service lists them: access points that share SSID, BSS type and security are one network; it has
/// an entry for each profile that fits it, or one without a profile. In the order in which they were heard; behind them
/// what is listed for its profile's sake. The block belongs to the caller.
WLAN_AVAILABLE_NETWORK_LIST* MakeNetworkList(Blocks& blocks, const NetworkListInput& input);

} // namespace calvix::simulation
