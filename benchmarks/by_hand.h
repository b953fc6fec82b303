#pragma once

#include <calvix/wireless_manage.h>

#include <vector>

namespace calvix::benchmarks
{

/// The same questions answered without the library's methods: the WLAN API called directly, lists walked by nested loops,
/// no traces. The results mean the same as the library's; failures only fail. Memory has the library's owner.
class ByHand
{
public:
    ByHand();
    ByHand(const ByHand&) = delete;
    ByHand& operator=(const ByHand&) = delete;
    ~ByHand();

    int GetWlanStatus(const GUID* adapter);
    int PhyRadioIsOn(const GUID* adapter);
    int GetRssi(const GUID* adapter, int& rssi);
    int GetSignalQuality(const GUID* adapter);
    int GetCurrentConnection(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes);
    int Rescan(const GUID* adapter, unsigned long& error);
    int GetAvailableNetworkCount(const GUID* adapter);
    int GetNetworkBssCount();
    int GetProfile(const GUID* adapter, const wchar_t* name, wchar_t* xml, int capacity);
    int GetConnectableNetworkCount(const GUID* adapter);
    int GetMatchAPList(const GUID* adapter, std::vector<WLAN_BSS_ENTRY>* list);
    int ConnectBestAP(const GUID* adapter);

private:
    HANDLE m_client = nullptr;
};

} // namespace calvix::benchmarks
