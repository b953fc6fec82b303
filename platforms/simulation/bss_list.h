#pragma once

#include "simulation/blocks.h"
#include "simulation/heard_bss.h"

#include <calvix/platform_records.h>

#include <vector>

namespace calvix::simulation
{

/// The BSS list in the service's form: the entries, and behind them their information elements. `chosen` are listed
/// in their order; `phys` tell which of the adapter's PHYs heard an entry. The block belongs to the caller.
WLAN_BSS_LIST*
MakeBssList(Blocks& blocks, const std::vector<const HeardBss*>& chosen, const std::vector<PhyDescription>& phys);

} // namespace calvix::simulation
