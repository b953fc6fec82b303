#include "benchmarks.h"
#include "core/memory.h"
#include "household.h"
#include "simulation/computer.h"
#include "testing/program.h"

#include <benchmark/benchmark.h>

#include <string>

namespace calvix::benchmarks
{

namespace
{

/// A client of a simulated computer.
struct Client
{
    explicit Client(std::size_t networks) : computer(HouseholdScenario(networks / 2, networks, networks / 5))
    {
        DWORD version = 0;
        wlan.WlanOpenHandle(2, nullptr, &version, &handle);
        constexpr char name[] = "network-0";
        for (ssid.uSSIDLength = 0; ssid.uSSIDLength < sizeof(name) - 1; ++ssid.uSSIDLength)
            ssid.ucSSID[ssid.uSSIDLength] = static_cast<UCHAR>(name[ssid.uSSIDLength]);
        DWORD flags = WLAN_PROFILE_GET_PLAINTEXT_KEY;
        DWORD access = 0;
        wlan.WlanGetProfile(handle, &kHouseholdAdapter, kHouseholdProfile, nullptr, xml.Receive(), &flags, &access);
    }

    simulation::Computer computer;
    test::Program program{computer};
    platform::WlanService& wlan = computer.wlan();
    HANDLE handle = nullptr;
    DOT11_SSID ssid{};
    ProfileText xml;
};

using Operation = DWORD (*)(Client&);

struct Simulated
{
    const char* name;
    Operation operation;
};

const GUID* const kAdapter = &kHouseholdAdapter;

DWORD OpenAndClose(Client& client)
{
    DWORD version = 0;
    HANDLE handle = nullptr;
    const DWORD error = client.wlan.WlanOpenHandle(2, nullptr, &version, &handle);
    client.wlan.WlanCloseHandle(handle, nullptr);
    return error;
}

DWORD EnumInterfaces(Client& client)
{
    InterfaceList list;
    return client.wlan.WlanEnumInterfaces(client.handle, nullptr, list.Receive());
}

DWORD ListNetworks(Client& client)
{
    NetworkList list;
    return client.wlan.WlanGetAvailableNetworkList(client.handle, kAdapter, 0, nullptr, list.Receive());
}

DWORD ListEveryBss(Client& client)
{
    BssList list;
    return client.wlan.WlanGetNetworkBssList(client.handle, kAdapter, nullptr, dot11_BSS_type_any, FALSE, nullptr,
                                             list.Receive());
}

DWORD ListBssOfOne(Client& client)
{
    BssList list;
    return client.wlan.WlanGetNetworkBssList(client.handle, kAdapter, &client.ssid, dot11_BSS_type_infrastructure, TRUE,
                                             nullptr, list.Receive());
}

DWORD QueryConnection(Client& client)
{
    DWORD size = 0;
    ConnectionAttributes connection;
    return client.wlan.WlanQueryInterface(client.handle, kAdapter, wlan_intf_opcode_current_connection, nullptr, &size,
                                          reinterpret_cast<PVOID*>(connection.Receive()), nullptr);
}

DWORD ListProfiles(Client& client)
{
    ProfileList list;
    return client.wlan.WlanGetProfileList(client.handle, kAdapter, nullptr, list.Receive());
}

DWORD ReadProfile(Client& client)
{
    DWORD flags = 0;
    DWORD access = 0;
    ProfileText xml;
    return client.wlan.WlanGetProfile(client.handle, kAdapter, kHouseholdProfile, nullptr, xml.Receive(), &flags,
                                      &access);
}

DWORD StoreProfile(Client& client)
{
    DWORD reason = 0;
    return client.wlan.WlanSetProfile(client.handle, kAdapter, 0, client.xml.get(), nullptr, TRUE, nullptr, &reason);
}

DWORD Scan(Client& client)
{
    return client.wlan.WlanScan(client.handle, kAdapter, nullptr, nullptr, nullptr);
}

DWORD Connect(Client& client)
{
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.strProfile = kHouseholdProfile;
    parameters.dot11BssType = dot11_BSS_type_infrastructure;
    return client.wlan.WlanConnect(client.handle, kAdapter, &parameters, nullptr);
}

constexpr Simulated kOperations[] = {
    {"WlanOpenHandle and WlanCloseHandle", OpenAndClose},
    {"WlanEnumInterfaces", EnumInterfaces},
    {"WlanGetAvailableNetworkList", ListNetworks},
    {"WlanGetNetworkBssList, all", ListEveryBss},
    {"WlanGetNetworkBssList, one network", ListBssOfOne},
    {"WlanQueryInterface, current connection", QueryConnection},
    {"WlanGetProfileList", ListProfiles},
    {"WlanGetProfile", ReadProfile},
    {"WlanSetProfile", StoreProfile},
    {"WlanScan", Scan},
    {"WlanConnect", Connect},
};

void MeasureOperation(benchmark::State& state, Operation operation, std::size_t networks)
{
    Client client(networks);
    if (operation(client) != 0)
        return state.SkipWithError("the simulated computer refuses");
    for (auto iteration : state)
    {
        static_cast<void>(iteration);
        benchmark::DoNotOptimize(operation(client));
    }
}

} // namespace

void RegisterSimulator()
{
    for (const Simulated& simulated : kOperations)
        for (const std::size_t networks : {std::size_t{20}, std::size_t{200}})
            benchmark::RegisterBenchmark(
                (std::string("simulator/") + simulated.name + "/" + std::to_string(networks)).c_str(),
                [simulated, networks](benchmark::State& state)
                { MeasureOperation(state, simulated.operation, networks); })
                ->MinTime(0.01)
                ->Repetitions(5);
}

} // namespace calvix::benchmarks
