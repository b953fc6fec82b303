#include <calvix/wireless_manage.h>

#include "core/memory.h"
#include "core/service_steps.h"
#include "core/wlan_records.h"

#include <cstdint>
#include <cstring>
#include <iterator>

using namespace calvix;
using platform::text;
using platform::wlan;

namespace
{

/// Deliberate: UTF-8 conversion does not take these flags on Windows, so there every conversion fails and the list of
/// software access points stays empty; hosts know it so.
constexpr DWORD kFlags = MB_PRECOMPOSED | MB_ERR_INVALID_CHARS;

/// The SSID up to its first zero byte, in the active code page. Whether both conversions succeeded; else there is no name.
bool NarrowSsid(const DOT11_SSID& ssid, char (&name)[128])
{
    char bytes[sizeof(ssid.ucSSID) + 1] = {};
    std::memcpy(bytes, ssid.ucSSID, sizeof(ssid.ucSSID));
    wchar_t wide[256];
    return text().MultiByteToWideChar(CP_UTF8, kFlags, bytes, -1, wide, 256) != 0 &&
           text().WideCharToMultiByte(CP_ACP, kFlags, wide, -1, name, sizeof(name), nullptr, nullptr) != 0;
}

} // namespace

int CWirelessManage::GetAvailableNetworkCount(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    NetworkList networks;
    if (OpenClient(hClient, trace) != 0)
        return -2;
    if (ListAvailableNetworks(hClient, pInterfaceGuid, networks, trace) != 0)
        return -5;
    return static_cast<int>(networks->dwNumberOfItems);
}

int CWirelessManage::GetNetworkBssCount()
{
    LocalTrace<256> trace;
    InterfaceList interfaces;
    BssList entries;
    if (const int code =
            ListInterfaces(hClient, interfaces, trace, {.notOpened = -2, .enumerationFailed = -3, .none = -4}))
        return code;
    if (ListAllBss(hClient, &interfaces->InterfaceInfo[0].InterfaceGuid, entries, trace) != 0)
        return -5;
    return static_cast<int>(entries->dwNumberOfItems);
}

int CWirelessManage::Rescan(const GUID* pInterfaceGuid, unsigned long& dwError)
{
    SharedTrace trace;
    if (const ErrorNumber error = OpenClient(hClient, trace))
    {
        dwError = error;
        return -1;
    }
    const DWORD error = wlan().WlanScan(hClient, pInterfaceGuid, nullptr, nullptr, nullptr);
    if (trace.Failed(error, "WlanScan failed with error: %u"))
    {
        dwError = error;
        return -4;
    }
    return 0;
}

int CWirelessManage::Rescan()
{
    SharedTrace trace;
    InterfaceList interfaces;
    if (const int code =
            ListInterfaces(hClient, interfaces, trace, {.notOpened = -1, .enumerationFailed = -2, .none = -3}))
        return code;
    const GUID* const first = &interfaces->InterfaceInfo[0].InterfaceGuid;
    if (trace.Failed(wlan().WlanScan(hClient, first, nullptr, nullptr, nullptr), "WlanScan failed with error: %u"))
        return -4;
    return 0;
}

int CWirelessManage::GetAP(const GUID* pInterfaceGuid, DOT11_SSID* pSsid)
{
    if (pSsid == nullptr)
        return -14;
    LocalTrace<128> trace;
    NetworkList networks("WlanFreeMemory(pAvailableList)");
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ListAvailableNetworks(hClient, pInterfaceGuid, networks, trace) != 0)
        return -3;
    // Deliberate: an empty SSID is never found, although hidden networks are listed with one.
    if (pSsid->uSSIDLength == 0)
        return -4;
    for (const WLAN_AVAILABLE_NETWORK& network : Items(*networks))
        if (SameSsid(network.dot11Ssid, *pSsid))
            return 0;
    return -4;
}

long CWirelessManage::GetNotConnectableReason(
    const GUID* pInterfaceGuid, DOT11_SSID* pSsid, unsigned long dwBssType, int& bConnectable, unsigned long& dwReason)
{
    if (pSsid == nullptr)
        return -14;
    LocalTrace<128> trace;
    NetworkList networks;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ListAvailableNetworks(hClient, pInterfaceGuid, networks, trace) != 0)
        return -4;
    if (networks->dwNumberOfItems == 0)
        return -5;
    for (const WLAN_AVAILABLE_NETWORK& network : Items(*networks))
    {
        if (static_cast<std::uint32_t>(network.dot11BssType) != dwBssType)
            continue;
        if (!SameSsid(network.dot11Ssid, *pSsid))
            continue;
        bConnectable = network.bNetworkConnectable;
        dwReason = network.wlanNotConnectableReason;
        return 0;
    }
    return -6;
}

int CWirelessManage::GetSoftAPList(const GUID* pInterfaceGuid, std::vector<std::string>* pList)
{
    if (pList == nullptr)
        return -13;
    LocalTrace<128> trace;
    NetworkList networks;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    // Deliberate: the platform's own error number, beside -1 for the client handle.
    if (const ErrorNumber error = ListAvailableNetworks(hClient, pInterfaceGuid, networks, trace))
        return static_cast<int>(error);
    std::vector<std::string> names;
    const auto collect = [&]
    {
        for (const WLAN_AVAILABLE_NETWORK& network : Items(*networks))
        {
            char name[128];
            if (NarrowSsid(network.dot11Ssid, name) && std::strstr(name, "LC#") != nullptr)
                names.emplace_back(name);
        }
        pList->reserve(names.size());
    };
    if (OutOfMemoryIn(collect))
        return static_cast<int>(ERROR_NOT_ENOUGH_MEMORY);
    // Not exchanged for the new one: the caller's vector keeps its capacity.
    pList->assign(std::make_move_iterator(names.begin()), std::make_move_iterator(names.end()));
    return 0;
}

bool CWirelessManage::SpecialSoftAP()
{
    LocalTrace<128> trace;
    InterfaceList interfaces;
    ConnectionAttributes connection;
    if (!HasInterface(hClient, interfaces, trace))
        return false;
    if (QueryCurrentConnection(hClient, &interfaces->InterfaceInfo[0].InterfaceGuid, connection, kUpToProfileName,
                               trace) != 0)
        return false;
    return FixedText(connection->strProfileName).find(L"LC#") != std::wstring_view::npos;
}
