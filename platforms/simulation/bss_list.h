#pragma once

#include "simulation/blocks.h"
#include "simulation/heard_bss.h"

#include <calvix/platform_records.h>

#include <vector>

namespace calvix::simulation
{

/// The BSS list in the service's form: the entries, then their information elements. `chosen` are listed
/// in their order; `phys` has the adapter's PHY that heard an entry. The block belongs to the caller.
WLAN_BSS_LIST*
MakeBssList(Blocks& blocks, const std::vector<const HeardBss*>& chosen, const std::vector<PhyDescription>& phys);

} // namespace calvix::simulation
