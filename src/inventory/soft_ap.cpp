#include <calvix/wireless_manage.h>

#include "core/fixed_text.h"
#include "core/out_of_memory.h"
#include "core/service_steps.h"
#include "core/wlan_lists.h"

#include <cstring>
#include <iterator>

using namespace calvix;
using platform::text;

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
    if (ListInterfaces(hClient, interfaces, trace, {.notOpened = -1, .enumerationFailed = -1, .none = -1}) != 0)
        return false;
    if (QueryCurrentConnection(hClient, &interfaces->InterfaceInfo[0].InterfaceGuid, connection, kUpToProfileName,
                               trace) != 0)
        return false;
    return FixedText(connection->strProfileName).find(L"LC#") != std::wstring_view::npos;
}
