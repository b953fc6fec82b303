#include "paired_benchmark.h"

#include <cstring>

namespace calvix::benchmarks
{

namespace
{

using platform::WlanService;

const GUID kInterface{};
constexpr Shape kHousehold{10, 20, 3};

/// What a program without the library would write in the method's place, its client handle being open.

int ReadSignalQuality(WlanService& service)
{
    DWORD size = sizeof(WLAN_CONNECTION_ATTRIBUTES);
    PVOID data = nullptr;
    if (service.WlanQueryInterface(&service, &kInterface, wlan_intf_opcode_current_connection, nullptr, &size, &data,
                                   nullptr) != 0)
        return -4;
    const auto& connection = *static_cast<const WLAN_CONNECTION_ATTRIBUTES*>(data);
    const int quality = static_cast<int>(connection.wlanAssociationAttributes.wlanSignalQuality);
    service.WlanFreeMemory(data);
    return quality;
}

int ReadProfileCount(WlanService& service)
{
    WLAN_PROFILE_INFO_LIST* profiles = nullptr;
    if (service.WlanGetProfileList(&service, &kInterface, nullptr, &profiles) != 0)
        return -4;
    const int count = static_cast<int>(profiles->dwNumberOfItems);
    service.WlanFreeMemory(profiles);
    return count;
}

int ReadInterfaceState(WlanService& service)
{
    WLAN_INTERFACE_INFO_LIST* interfaces = nullptr;
    if (service.WlanEnumInterfaces(&service, nullptr, &interfaces) != 0)
        return -3;
    int state = -1;
    for (DWORD index = 0; index < interfaces->dwNumberOfItems; ++index)
    {
        const WLAN_INTERFACE_INFO& info = interfaces->InterfaceInfo[index];
        if (std::memcmp(&info.InterfaceGuid, &kInterface, sizeof(GUID)) == 0)
            state = static_cast<int>(info.isState);
    }
    service.WlanFreeMemory(interfaces);
    return state;
}

int RequestScan(WlanService& service)
{
    return service.WlanScan(&service, &kInterface, nullptr, nullptr, nullptr) == 0 ? 0 : -4;
}

} // namespace

void RegisterThinWrapperBenchmarks()
{
    const auto getSignalQuality = [](CWirelessManage& manager) { return manager.GetSignalQuality(&kInterface); };
    const auto getProfileCount = [](CWirelessManage& manager) { return manager.GetProfileCount(&kInterface); };
    const auto getWlanStatus = [](CWirelessManage& manager) { return manager.GetWlanStatus(&kInterface); };
    const auto rescan = [](CWirelessManage& manager)
    {
        unsigned long error = 0;
        return manager.Rescan(&kInterface, error);
    };
    RegisterPair("GetSignalQuality", kHousehold, getSignalQuality, ReadSignalQuality);
    RegisterPair("GetProfileCount", kHousehold, getProfileCount, ReadProfileCount);
    RegisterPair("GetWlanStatus", kHousehold, getWlanStatus, ReadInterfaceState);
    RegisterPair("Rescan", kHousehold, rescan, RequestScan);
}

} // namespace calvix::benchmarks
