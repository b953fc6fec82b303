#include "simulation/service_records.h"
#include "simulation/wlan_service.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace calvix::simulation
{

namespace
{

// What makes access points one network, and a profile fit it, as one text: quick to look up among thousands.
std::string NetworkKey(const Bytes& ssid, std::uint32_t bssType, SecuritySuite security)
{
    std::string key(ssid.begin(), ssid.end());
    for (const std::uint32_t number : {static_cast<std::uint32_t>(security.authentication),
                                       static_cast<std::uint32_t>(security.encryption), bssType})
        key.append(reinterpret_cast<const char*>(&number), sizeof(number));
    return key;
}

std::string NetworkKey(const ProfileDocument& profile)
{
    return NetworkKey(profile.ssid, static_cast<std::uint32_t>(profile.bssType), profile.security);
}

struct Network
{
    Bytes ssid; ///< empty: unknown
    DOT11_BSS_TYPE bssType{};
    SecuritySuite security;
    std::vector<const HeardBss*> stations;
};

using Profiles = std::vector<const Profile*>;

/// An entry to be: a network, by its index, and a profile, or null.
struct Entry
{
    std::size_t network;
    const Profile* profile;
};

/// The networks as the service lists them: access points that share SSID, BSS type and security are one network; it has
/// an entry for each profile that fits it, or one without a profile. In the order in which they were heard; behind them
/// what is listed for its profile's sake.
class Listing
{
public:
    Listing(Adapter& adapter, DWORD flags)
        : m_heard(adapter.Heard()), m_profiles(adapter.Profiles().InOrder()), m_link(adapter.CurrentLink()),
          m_allAdHocProfiles((flags & WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_ADHOC_PROFILES) != 0),
          m_allHiddenProfiles((flags & WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_MANUAL_HIDDEN_PROFILES) != 0)
    {
        for (const auto& profile : m_profiles)
            m_profilesOf[NetworkKey(profile->document)].push_back(profile.get());
    }

    WLAN_AVAILABLE_NETWORK_LIST* Make(Blocks& blocks)
    {
        for (const HeardBss& bss : m_heard)
            m_networks[NetworkOf(bss)].stations.push_back(&bss);
        for (std::size_t network = 0, count = m_networks.size(); network < count; ++network)
            AddEntries(network);
        AddUnheardProfiles();
        const std::size_t size =
            offsetof(WLAN_AVAILABLE_NETWORK_LIST, Network) + m_entries.size() * sizeof(WLAN_AVAILABLE_NETWORK);
        auto* const list = NewRecord<WLAN_AVAILABLE_NETWORK_LIST>(blocks, size, "available network list");
        list->dwNumberOfItems = static_cast<DWORD>(m_entries.size());
        WLAN_AVAILABLE_NETWORK* record = list->Network;
        for (const Entry& entry : m_entries)
            Fill(m_networks[entry.network], entry.profile, *record++);
        return list;
    }

private:
    // A hidden network is listed by name when profiles of hidden networks are wanted and one fits.
    const Bytes& KnownSsid(const HeardBss& bss) const
    {
        return IsToldByProfile(bss) ? bss.accessPoint.ssid : bss.Ssid();
    }

    bool IsToldByProfile(const HeardBss& bss) const
    {
        if (!m_allHiddenProfiles || bss.ssidHeard)
            return false;
        const auto& point = bss.accessPoint;
        const auto found = m_profilesOf.find(NetworkKey(point.ssid, point.bssType, bss.security));
        return found != m_profilesOf.end() &&
               std::any_of(found->second.begin(), found->second.end(),
                           [](const Profile* profile) { return profile->document.hidden; });
    }

    std::size_t NetworkOf(const HeardBss& bss)
    {
        const Bytes& ssid = KnownSsid(bss);
        const auto [found, isNew] =
            m_networkIndex.emplace(NetworkKey(ssid, bss.accessPoint.bssType, bss.security), m_networks.size());
        if (isNew)
            m_networks.push_back({ssid, static_cast<DOT11_BSS_TYPE>(bss.accessPoint.bssType), bss.security, {}});
        return found->second;
    }

    void AddEntries(std::size_t index)
    {
        const Network& network = m_networks[index];
        const auto bssType = static_cast<std::uint32_t>(network.bssType);
        const auto found = network.ssid.empty()
                               ? m_profilesOf.end()
                               : m_profilesOf.find(NetworkKey(network.ssid, bssType, network.security));
        if (found == m_profilesOf.end())
        {
            m_entries.push_back({index, nullptr});
            return;
        }
        for (const Profile* const profile : found->second)
        {
            m_entries.push_back({index, profile});
            m_listed.insert(profile);
        }
    }

    void AddUnheardProfiles()
    {
        for (const auto& profile : m_profiles)
        {
            const ProfileDocument& document = profile->document;
            const bool isAdHoc = document.bssType == dot11_BSS_type_independent;
            const bool isWanted = (isAdHoc && m_allAdHocProfiles) || (document.hidden && m_allHiddenProfiles);
            if (isWanted && m_listed.count(profile.get()) == 0)
            {
                m_entries.push_back({m_networks.size(), profile.get()});
                m_networks.push_back({document.ssid, document.bssType, document.security, {}});
            }
        }
    }

    void Fill(const Network& network, const Profile* profile, WLAN_AVAILABLE_NETWORK& entry) const
    {
        entry.dot11Ssid = MakeSsid(network.ssid);
        entry.dot11BssType = network.bssType;
        entry.uNumberOfBssids = static_cast<ULONG>(network.stations.size());
        entry.bSecurityEnabled = IsSecured(network.security) ? TRUE : FALSE;
        entry.dot11DefaultAuthAlgorithm = network.security.authentication;
        entry.dot11DefaultCipherAlgorithm = network.security.encryption;
        SetConnectable(network, entry);
        SetReception(network, entry);
        if (profile != nullptr)
        {
            CopyText(profile->document.name, entry.strProfileName);
            entry.dwFlags |= WLAN_AVAILABLE_NETWORK_HAS_PROFILE;
        }
        if (IsConnected(network, profile))
            entry.dwFlags |= WLAN_AVAILABLE_NETWORK_CONNECTED;
    }

    // Chosen: an ad hoc network can be joined, and so formed, when no station is heard in it; any other has to be heard.
    static void SetConnectable(const Network& network, WLAN_AVAILABLE_NETWORK& entry)
    {
        if (!IsSupported(network.security))
            entry.wlanNotConnectableReason = WLAN_REASON_CODE_UNSUPPORTED_SECURITY_SET;
        else if (network.stations.empty() && network.bssType == dot11_BSS_type_infrastructure)
            entry.wlanNotConnectableReason = WLAN_REASON_CODE_NOT_VISIBLE;
        entry.bNetworkConnectable = entry.wlanNotConnectableReason == WLAN_REASON_CODE_SUCCESS ? TRUE : FALSE;
    }

    static void SetReception(const Network& network, WLAN_AVAILABLE_NETWORK& entry)
    {
        for (const HeardBss* const bss : network.stations)
        {
            entry.wlanSignalQuality = std::max(entry.wlanSignalQuality, SignalQuality(bss->accessPoint.rssi));
            AddPhyType(static_cast<DOT11_PHY_TYPE>(bss->accessPoint.phyType), entry);
        }
    }

    static void AddPhyType(DOT11_PHY_TYPE type, WLAN_AVAILABLE_NETWORK& entry)
    {
        const DOT11_PHY_TYPE* const begin = entry.dot11PhyTypes;
        const DOT11_PHY_TYPE* const end = begin + entry.uNumberOfPhyTypes;
        if (std::find(begin, end, type) != end)
            return;
        if (entry.uNumberOfPhyTypes == WLAN_MAX_PHY_TYPE_NUMBER)
        {
            entry.bMorePhyTypes = TRUE;
            return;
        }
        entry.dot11PhyTypes[entry.uNumberOfPhyTypes++] = type;
    }

    // Of a network's entries only the one of the profile in use is marked; all of them where it is none of the stored ones.
    bool IsConnected(const Network& network, const Profile* profile) const
    {
        if (m_link == nullptr)
            return false;
        const ProfileDocument& used = m_link->Profile();
        const bool isSameProfile =
            m_link->request.HasTemporaryProfile() || (profile != nullptr && profile->document.name == used.name);
        return isSameProfile && network.ssid == used.ssid && network.security == used.security &&
               network.bssType == used.bssType;
    }

    const std::vector<HeardBss>& m_heard;
    const ProfileStore::List& m_profiles;
    const Link* m_link;       ///< the connection that is up, or null
    bool m_allAdHocProfiles;  ///< also those whose networks are not heard
    bool m_allHiddenProfiles; ///< also those of hidden networks, heard or not
    std::unordered_map<std::string, Profiles> m_profilesOf;
    std::unordered_map<std::string, std::size_t> m_networkIndex;
    std::vector<Network> m_networks;
    std::unordered_set<const Profile*> m_listed;
    std::vector<Entry> m_entries;
};

} // namespace

DWORD SimulatedWlanService::WlanGetAvailableNetworkList(
    HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list)
{
    const Request request(m_machine, "WlanGetAvailableNetworkList", client, interfaceGuid, {list}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    if (!m_machine.present.locationConsent)
        return ERROR_ACCESS_DENIED;
    if (!request.adapter->IsRadioOn())
        return ERROR_NDIS_DOT11_POWER_STATE_INVALID;
    *list = Listing(*request.adapter, flags).Make(m_machine.wlanBlocks);
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
