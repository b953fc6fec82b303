#pragma once

#include "host/host.h"
#include "output/facts.h"
#include "output/table.h"

namespace calvix::host
{

/// From the platform's records to what is shown of them.

SsidFacts DescribeSsid(const DOT11_SSID& ssid);
AdapterFacts DescribeAdapter(const WLAN_INTERFACE_INFO& info, unsigned number);
NetworkFacts DescribeNetwork(const WLAN_AVAILABLE_NETWORK& network);
AccessPointFacts DescribeAccessPoint(const WLAN_BSS_ENTRY& entry);

/// A table of access points: its first columns, and a row of them. Commands that know more append theirs.
std::vector<Column> AccessPointColumns();
std::vector<Cell> AccessPointRow(Host& host, const AccessPointFacts& facts);

/// The service's time stamp as the computer's calendar has it; empty for one that is none.
std::string MomentText(std::uint64_t hostTime);

/// "1 network", "3 networks"
std::string Counted(std::size_t count, const char* noun);

} // namespace calvix::host
