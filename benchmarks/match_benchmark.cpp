#include "paired_benchmark.h"

#include <vector>

namespace calvix::benchmarks
{

namespace
{

using platform::WlanService;

const GUID kInterface{};

constexpr Shape kShapes[] = {
    {1000, 100, 100}, {1000, 1000, 100}, {1000, 1000, 1000}, {10000, 10000, 100}, {10000, 10000, 10000}};

/// The platform calls of a method that matches profiles with networks, made one after the other by code that knows the
/// matches beforehand: what no implementation can do without.
class BareCalls
{
public:
    BareCalls(WlanService& service, const Shape& shape) : m_service(service), m_shape(shape)
    {
        m_service.WlanGetProfileList(this, &kInterface, nullptr, &m_profiles);
        m_service.WlanGetAvailableNetworkList(this, &kInterface, 0, nullptr, &m_networks);
    }
    BareCalls(const BareCalls&) = delete;
    BareCalls& operator=(const BareCalls&) = delete;
    ~BareCalls()
    {
        m_service.WlanFreeMemory(m_networks);
        m_service.WlanFreeMemory(m_profiles);
    }

    int Matches() const { return static_cast<int>(m_shape.matches); }

    void ReadEntries()
    {
        const WLAN_AVAILABLE_NETWORK& network = m_networks->Network[0];
        WLAN_BSS_LIST* entries = nullptr;
        m_service.WlanGetNetworkBssList(this, &kInterface, &network.dot11Ssid, network.dot11BssType,
                                        network.bSecurityEnabled, nullptr, &entries);
        m_service.WlanFreeMemory(entries);
    }

    void ReadProfile()
    {
        DWORD flags = WLAN_PROFILE_GET_PLAINTEXT_KEY;
        DWORD access = WLAN_READ_ACCESS;
        wchar_t* xml = nullptr;
        m_service.WlanGetProfile(this, &kInterface, m_profiles->ProfileInfo[0].strProfileName, nullptr, &xml, &flags,
                                 &access);
        m_service.WlanFreeMemory(xml);
    }

    void Connect()
    {
        WLAN_CONNECTION_PARAMETERS parameters{};
        parameters.strProfile = m_profiles->ProfileInfo[0].strProfileName;
        parameters.dot11BssType = dot11_BSS_type_infrastructure;
        m_service.WlanConnect(this, &kInterface, &parameters, nullptr);
    }

private:
    WlanService& m_service;
    Shape m_shape;
    WLAN_PROFILE_INFO_LIST* m_profiles = nullptr;
    WLAN_AVAILABLE_NETWORK_LIST* m_networks = nullptr;
};

int CountNetworks(CWirelessManage& manager)
{
    return manager.GetConnectableNetworkCount(&kInterface);
}

int BareCountNetworks(BareCalls& calls)
{
    return calls.Matches();
}

int ListEntries(CWirelessManage& manager)
{
    std::vector<WLAN_BSS_ENTRY> entries;
    return manager.GetMatchAPList(&kInterface, &entries);
}

int BareListEntries(BareCalls& calls)
{
    for (int match = 0; match < calls.Matches(); ++match)
        calls.ReadEntries();
    return calls.Matches() * kAccessPoints;
}

int NameNetworks(CWirelessManage& manager)
{
    std::vector<std::wstring> names;
    return manager.GetMatchAPCount(&kInterface, &names, 0);
}

int BareNameNetworks(BareCalls& calls)
{
    for (int match = 0; match < calls.Matches(); ++match)
        calls.ReadEntries();
    return calls.Matches();
}

int NameAutomaticNetworks(CWirelessManage& manager)
{
    std::vector<std::wstring> names;
    return manager.GetMatchAPCount(&kInterface, &names, 1);
}

int BareNameAutomaticNetworks(BareCalls& calls)
{
    for (int match = 0; match < calls.Matches(); ++match)
    {
        calls.ReadProfile();
        calls.ReadEntries();
    }
    return calls.Matches();
}

int ConnectBest(CWirelessManage& manager)
{
    return manager.ConnectBestAP(&kInterface);
}

int BareConnectBest(BareCalls& calls)
{
    for (int match = 0; match < calls.Matches(); ++match)
        calls.ReadProfile();
    calls.ReadEntries();
    calls.Connect();
    return 0;
}

std::string NameOf(const char* method, const Shape& shape)
{
    std::string name = method;
    name += '/';
    name += std::to_string(shape.profiles);
    name += 'x';
    name += std::to_string(shape.networks);
    name += '/';
    name += std::to_string(shape.matches);
    return name;
}

using Method = int (*)(CWirelessManage&);
using Bare = int (*)(BareCalls&);

void RegisterMethod(const char* method, Method library, Bare bare)
{
    for (const Shape& shape : kShapes)
    {
        const auto bareCalls = [shape, bare](WlanService& service)
        {
            BareCalls calls(service, shape);
            return bare(calls);
        };
        RegisterPair(NameOf(method, shape), shape, library, bareCalls);
    }
}

} // namespace

void RegisterMatchBenchmarks()
{
    RegisterMethod("GetConnectableNetworkCount", CountNetworks, BareCountNetworks);
    RegisterMethod("GetMatchAPList", ListEntries, BareListEntries);
    RegisterMethod("GetMatchAPCount mode 0", NameNetworks, BareNameNetworks);
    RegisterMethod("GetMatchAPCount mode 1", NameAutomaticNetworks, BareNameAutomaticNetworks);
    RegisterMethod("ConnectBestAP", ConnectBest, BareConnectBest);
}

} // namespace calvix::benchmarks
