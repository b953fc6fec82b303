#include "simulation/information_elements.h"
#include "simulation/service_records.h"
#include "simulation/wlan_service.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace calvix::simulation
{

namespace
{

// The longest that the service passes on.
constexpr std::size_t mostInformationElements = 2324;

constexpr USHORT capabilityEss = 0x0001;
constexpr USHORT capabilityIbss = 0x0002;
constexpr USHORT capabilityPrivacy = 0x0010;

/// The platform's time, in 100 ns since the beginning of 1601, at a moment of simulated time. Every computer starts
/// on 1 January 2026 (chosen), so that what it does can be repeated exactly.
constexpr std::uint64_t HostTime(std::chrono::milliseconds now)
{
    constexpr std::uint64_t unitsPerMillisecond = 10'000;
    constexpr std::uint64_t unitsPerDay = 24ull * 60 * 60 * 1000 * unitsPerMillisecond;
    constexpr std::uint64_t daysFrom1601To1970 = 134'774;
    constexpr std::uint64_t daysFrom1970To2026 = 20'454;
    return (daysFrom1601To1970 + daysFrom1970To2026) * unitsPerDay +
           static_cast<std::uint64_t>(now.count()) * unitsPerMillisecond;
}

USHORT Capabilities(const HeardBss& bss)
{
    const USHORT kind = bss.accessPoint.bssType == dot11_BSS_type_independent ? capabilityIbss : capabilityEss;
    return IsSecured(bss.security) ? static_cast<USHORT>(kind | capabilityPrivacy) : kind;
}

// The record's length counts bytes; beacons give rates in units of 500 kbit/s, with the basic ones marked, and so
// does the record.
WLAN_RATE_SET RateSet(const AccessPoint& accessPoint)
{
    WLAN_RATE_SET set{};
    std::size_t count = 0;
    for (const std::uint8_t rate : SupportedRates(accessPoint))
    {
        const int basic = (rate & 0x80) != 0 ? 0x8000 : 0;
        set.usRateSet[count++] = static_cast<USHORT>((rate & 0x7f) | basic);
    }
    set.uRateSetLength = static_cast<ULONG>(count * sizeof(set.usRateSet[0]));
    return set;
}

void FillEntry(const HeardBss& bss, const std::vector<PhyDescription>& phys, WLAN_BSS_ENTRY& entry)
{
    const AccessPoint& point = bss.accessPoint;
    entry.dot11Ssid = MakeSsid(bss.Ssid());
    entry.uPhyId = PhyIndex(phys, point.phyType);
    std::copy(point.bssid.begin(), point.bssid.end(), entry.dot11Bssid);
    entry.dot11BssType = static_cast<DOT11_BSS_TYPE>(point.bssType);
    entry.dot11BssPhyType = static_cast<DOT11_PHY_TYPE>(point.phyType);
    entry.lRssi = point.rssi;
    entry.uLinkQuality = SignalQuality(point.rssi);
    entry.bInRegDomain = TRUE;
    entry.usBeaconPeriod = point.beaconPeriod;
    // Chosen: every access point was switched on when the computer was.
    entry.ullTimestamp = static_cast<ULONGLONG>(std::chrono::microseconds(bss.heardAt).count());
    entry.ullHostTimestamp = HostTime(bss.heardAt);
    entry.usCapabilityInformation = Capabilities(bss);
    entry.ulChCenterFrequency = point.frequencyKhz;
    entry.wlanRateSet = RateSet(point);
}

struct BssFilter
{
    const DOT11_SSID* ssid; ///< null: all, and the other two have no effect
    DOT11_BSS_TYPE bssType;
    bool secured;
};

// Type and security count only together with an SSID, and an SSID together with "any" type finds nothing, as
// documented.
bool Passes(const HeardBss& bss, const BssFilter& filter)
{
    if (filter.ssid == nullptr)
        return true;
    return bss.Ssid() == SsidBytes(*filter.ssid) &&
           bss.accessPoint.bssType == static_cast<std::uint32_t>(filter.bssType) &&
           IsSecured(bss.security) == filter.secured && filter.bssType != dot11_BSS_type_any;
}

std::vector<const HeardBss*> Choose(const std::vector<HeardBss>& heard, const BssFilter& filter)
{
    std::vector<const HeardBss*> chosen;
    for (const HeardBss& bss : heard)
        if (Passes(bss, filter))
            chosen.push_back(&bss);
    return chosen;
}

/// The BSS list in the service's form: the entries, then their information elements. `chosen` are listed
/// in their order; `phys` has the adapter's PHY that heard an entry. The block belongs to the caller.
WLAN_BSS_LIST*
MakeBssList(Blocks& blocks, const std::vector<const HeardBss*>& chosen, const std::vector<PhyDescription>& phys)
{
    std::vector<Bytes> elements;
    const std::size_t entriesEnd = offsetof(WLAN_BSS_LIST, wlanBssEntries) + chosen.size() * sizeof(WLAN_BSS_ENTRY);
    std::size_t size = entriesEnd;
    for (const HeardBss* const bss : chosen)
    {
        elements.push_back(InformationElements(*bss));
        elements.back().resize(std::min(elements.back().size(), mostInformationElements));
        size += elements.back().size();
    }
    auto* const list = NewRecord<WLAN_BSS_LIST>(blocks, size, "BSS list");
    list->dwTotalSize = static_cast<DWORD>(size);
    list->dwNumberOfItems = static_cast<DWORD>(chosen.size());
    auto* const bytes = reinterpret_cast<std::uint8_t*>(list);
    std::size_t elementsAt = entriesEnd;
    for (std::size_t index = 0; index < chosen.size(); ++index)
    {
        const std::size_t entryAt = offsetof(WLAN_BSS_LIST, wlanBssEntries) + index * sizeof(WLAN_BSS_ENTRY);
        WLAN_BSS_ENTRY entry{};
        FillEntry(*chosen[index], phys, entry);
        entry.ulIeOffset = static_cast<ULONG>(elementsAt - entryAt);
        entry.ulIeSize = static_cast<ULONG>(elements[index].size());
        std::memcpy(bytes + entryAt, &entry, sizeof(entry));
        if (!elements[index].empty())
            std::memcpy(bytes + elementsAt, elements[index].data(), elements[index].size());
        elementsAt += elements[index].size();
    }
    return list;
}

} // namespace

DWORD SimulatedWlanService::WlanGetNetworkBssList(HANDLE client,
                                                  const GUID* interfaceGuid,
                                                  const DOT11_SSID* ssid,
                                                  DOT11_BSS_TYPE bssType,
                                                  BOOL securityEnabled,
                                                  PVOID reserved,
                                                  WLAN_BSS_LIST** list)
{
    const Request request(m_machine, "WlanGetNetworkBssList", client, {interfaceGuid, list}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if (ssid != nullptr && ssid->uSSIDLength > DOT11_SSID_MAX_LENGTH)
        return ERROR_INVALID_PARAMETER;
    // Alone among the operations this one says "not found" when there is no such interface.
    Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr)
        return ERROR_NOT_FOUND;
    if (!m_machine.present.locationConsent)
        return ERROR_ACCESS_DENIED;
    if (!adapter->IsRadioOn())
        return ERROR_NDIS_DOT11_POWER_STATE_INVALID;
    const auto chosen = Choose(adapter->Heard(), {ssid, bssType, securityEnabled != FALSE});
    *list = MakeBssList(m_machine.wlanBlocks, chosen, adapter->Phys());
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
