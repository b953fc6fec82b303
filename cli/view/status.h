#pragma once

#include "host/host.h"
#include "output/facts.h"

namespace calvix::host
{

ConnectionFacts DescribeConnection(const WLAN_CONNECTION_ATTRIBUTES& attributes);

/// Whether an adapter in this state has a connection.
inline bool IsConnectedState(WLAN_INTERFACE_STATE state)
{
    return state == wlan_interface_state_connected || state == wlan_interface_state_ad_hoc_network_formed;
}
/// The adapter's state and connection now.
StatusFacts ReadStatus(Host& host);
void PrintStatus(Output& output, const StatusFacts& status);

} // namespace calvix::host
