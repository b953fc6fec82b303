#pragma once

#include "import/made_scenario.h"

namespace calvix::host
{

/// An adapter with its radio switches, profiles and settings. The service reports neither the types of its PHYs nor its
/// address: the types come from the access points that it hears, the address is made up.
simulation::AdapterDescription CaptureAdapter(Host& host, const WLAN_INTERFACE_INFO& info, MadeScenario& made);

/// Its connection, if the scenario has the access point and the profile; otherwise a warning says what is missing. A
/// hidden access point gets the name that the connection knows.
void CaptureConnection(Host& host, const GUID& guid, simulation::AdapterDescription& adapter, MadeScenario& made);

} // namespace calvix::host
