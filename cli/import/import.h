#pragma once

#include "import/made_scenario.h"
#include "import/read_capture.h"

namespace calvix::host
{

/// Puts captures together.
///
/// - The air is what the networks capture lists; without one, the access points that adapters are connected to.
/// - The adapters are those of the interfaces capture; without one, an adapter is made up for each that the list of
///   networks names, the first connected as the list shows it. Their PHYs are guessed from the newest radio type seen.
/// - An exported profile goes to the adapter whose name its file name begins with ("Wi-Fi-Home.xml"), else to all.
/// - A connected adapter whose profile was not exported gets one from what the capture says about the network, with a
///   made-up key. Its connection is kept if the air holds its access point.
///
/// `makeProfiles`: every visible network with a name and without a profile gets an automatic one, with a made-up key.
MadeScenario AssembleScenario(const Captures& captures, bool makeProfiles);

} // namespace calvix::host
