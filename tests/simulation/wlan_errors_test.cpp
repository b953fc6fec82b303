// What every operation of the WLAN service refuses, and with which error.
#include "service_fixture.h"

#include <functional>

namespace calvix::simulation::wlan_errors_test
{

namespace
{

struct Call
{
    HANDLE client;
    const GUID* guid;
    PVOID reserved;
    bool withOutput;
};

/// One operation, with arguments that are right but for what the call says.
struct Operation
{
    const char* name;
    std::function<DWORD(platform::WlanService&, const Call&)> run;
    DWORD onMissingInterface = ERROR_INVALID_PARAMETER;
    bool takesInterface = true;
    bool takesReserved = true;
    bool hasOutput = true;
    bool tellsWhereItIs = false; ///< refused without location consent
    bool needsRadio = false;
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

template <typename Pointer>
struct Output
{
    explicit Output(const Call& call) : pointer(call.withOutput ? &value : nullptr) {}
    Pointer value{};
    Pointer* pointer;
};

/// Calls an operation that gives a block, and gives the block back.
template <typename Record, typename Run>
DWORD WithBlock(platform::WlanService& wlan, const Call& call, Run run)
{
    Output<Record*> block(call);
    const DWORD error = run(block.pointer);
    wlan.WlanFreeMemory(block.value);
    return error;
}

DWORD Query(platform::WlanService& wlan, const Call& call, WLAN_INTF_OPCODE opcode)
{
    DWORD size = 0;
    Output<PVOID> data(call);
    const DWORD error =
        wlan.WlanQueryInterface(call.client, call.guid, opcode, call.reserved, &size, data.pointer, nullptr);
    wlan.WlanFreeMemory(data.value);
    return error;
}

const BOOL setting = TRUE;

std::vector<Operation> Operations()
{
    using Wlan = platform::WlanService;
    std::vector<Operation> all;

    Operation& enumerate = all.emplace_back();
    enumerate.name = "WlanEnumInterfaces";
    enumerate.takesInterface = false;
    enumerate.run = [](Wlan& wlan, const Call& call)
    {
        return WithBlock<WLAN_INTERFACE_INFO_LIST>(
            wlan, call, [&](auto** list) { return wlan.WlanEnumInterfaces(call.client, call.reserved, list); });
    };

    Operation& scan = all.emplace_back();
    scan.name = "WlanScan";
    scan.hasOutput = false;
    scan.tellsWhereItIs = scan.needsRadio = true;
    scan.run = [](Wlan& wlan, const Call& call)
    { return wlan.WlanScan(call.client, call.guid, nullptr, nullptr, call.reserved); };

    Operation& networks = all.emplace_back();
    networks.name = "WlanGetAvailableNetworkList";
    networks.tellsWhereItIs = networks.needsRadio = true;
    networks.run = [](Wlan& wlan, const Call& call)
    {
        return WithBlock<WLAN_AVAILABLE_NETWORK_LIST>(
            wlan, call,
            [&](auto** list)
            { return wlan.WlanGetAvailableNetworkList(call.client, call.guid, 0, call.reserved, list); });
    };

    Operation& stations = all.emplace_back();
    stations.name = "WlanGetNetworkBssList";
    stations.onMissingInterface = ERROR_NOT_FOUND;
    stations.tellsWhereItIs = stations.needsRadio = true;
    stations.run = [](Wlan& wlan, const Call& call)
    {
        return WithBlock<WLAN_BSS_LIST>(wlan, call,
                                        [&](auto** list)
                                        {
                                            return wlan.WlanGetNetworkBssList(call.client, call.guid, nullptr,
                                                                              dot11_BSS_type_any, FALSE, call.reserved,
                                                                              list);
                                        });
    };

    Operation& connection = all.emplace_back();
    connection.name = "WlanQueryInterface(current connection)";
    connection.tellsWhereItIs = true;
    connection.run = [](Wlan& wlan, const Call& call)
    { return Query(wlan, call, wlan_intf_opcode_current_connection); };

    Operation& radio = all.emplace_back();
    radio.name = "WlanQueryInterface(radio state)";
    radio.run = [](Wlan& wlan, const Call& call) { return Query(wlan, call, wlan_intf_opcode_radio_state); };

    Operation& set = all.emplace_back();
    set.name = "WlanSetInterface";
    set.run = [](Wlan& wlan, const Call& call)
    {
        return wlan.WlanSetInterface(call.client, call.guid, wlan_intf_opcode_autoconf_enabled, sizeof(setting),
                                     call.withOutput ? &setting : nullptr, call.reserved);
    };

    Operation& profiles = all.emplace_back();
    profiles.name = "WlanGetProfileList";
    profiles.run = [](Wlan& wlan, const Call& call)
    {
        return WithBlock<WLAN_PROFILE_INFO_LIST>(
            wlan, call,
            [&](auto** list) { return wlan.WlanGetProfileList(call.client, call.guid, call.reserved, list); });
    };

    Operation& profile = all.emplace_back();
    profile.name = "WlanGetProfile";
    profile.run = [](Wlan& wlan, const Call& call)
    {
        return WithBlock<wchar_t>(
            wlan, call,
            [&](wchar_t** text)
            { return wlan.WlanGetProfile(call.client, call.guid, L"HomeNet", call.reserved, text, nullptr, nullptr); });
    };

    Operation& store = all.emplace_back();
    store.name = "WlanSetProfile";
    store.run = [](Wlan& wlan, const Call& call)
    {
        const std::string xml = MakeProfile("New", "New");
        Output<DWORD> reason(call);
        return wlan.WlanSetProfile(call.client, call.guid, 0, std::wstring(xml.begin(), xml.end()).c_str(), nullptr,
                                   TRUE, call.reserved, reason.pointer);
    };

    Operation& position = all.emplace_back();
    position.name = "WlanSetProfilePosition";
    position.hasOutput = false;
    position.run = [](Wlan& wlan, const Call& call)
    { return wlan.WlanSetProfilePosition(call.client, call.guid, L"HomeNet", 0, call.reserved); };

    Operation& connect = all.emplace_back();
    connect.name = "WlanConnect";
    connect.needsRadio = true;
    connect.run = [](Wlan& wlan, const Call& call)
    {
        WLAN_CONNECTION_PARAMETERS parameters{};
        parameters.strProfile = L"HomeNet";
        parameters.dot11BssType = dot11_BSS_type_infrastructure;
        return wlan.WlanConnect(call.client, call.guid, call.withOutput ? &parameters : nullptr, call.reserved);
    };

    Operation& remove = all.emplace_back();
    remove.name = "WlanDeleteProfile";
    remove.hasOutput = false;
    remove.run = [](Wlan& wlan, const Call& call)
    { return wlan.WlanDeleteProfile(call.client, call.guid, L"HomeNet", call.reserved); };

    Operation& disconnect = all.emplace_back();
    disconnect.name = "WlanDisconnect";
    disconnect.hasOutput = false;
    disconnect.run = [](Wlan& wlan, const Call& call)
    { return wlan.WlanDisconnect(call.client, call.guid, call.reserved); };
    return all;
}

class WlanErrors : public ServiceTest, public ::testing::WithParamInterface<Operation>
{
protected:
    WlanErrors() { scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt}; }

    void SetUp() override { Start(); }

    Call Right() const { return {client, &first, nullptr, true}; }
    DWORD Run(const Call& call) { return GetParam().run(Wlan(), call); }
};

TEST_P(WlanErrors, NoneWhenAllIsRight)
{
    EXPECT_EQ(Run(Right()), ERROR_SUCCESS);
}

TEST_P(WlanErrors, InvalidParameterForNullAndForReserved)
{
    Call call = Right();
    call.client = nullptr;
    EXPECT_EQ(Run(call), ERROR_INVALID_PARAMETER);
    if (GetParam().takesInterface)
    {
        call = Right();
        call.guid = nullptr;
        EXPECT_EQ(Run(call), ERROR_INVALID_PARAMETER);
    }
    if (GetParam().hasOutput)
    {
        call = Right();
        call.withOutput = false;
        EXPECT_EQ(Run(call), ERROR_INVALID_PARAMETER);
    }
    call = Right();
    call.reserved = &call;
    EXPECT_EQ(Run(call), ERROR_INVALID_PARAMETER);
}

TEST_P(WlanErrors, InvalidHandleForAClosedOneWhichIsNoticed)
{
    ASSERT_EQ(Wlan().WlanCloseHandle(client, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(Run(Right()), ERROR_INVALID_HANDLE);
    const auto defects = computer->Audit().defects;
    ASSERT_EQ(defects.size(), 1u);
    EXPECT_NE(defects[0].find(": use of closed client handle"), std::string::npos);
    computer.reset();
}

TEST_P(WlanErrors, ServiceNotActiveWhileItIsStopped)
{
    computer->SetServiceRunning(false);
    EXPECT_EQ(Run(Right()), ERROR_SERVICE_NOT_ACTIVE);
    computer->SetServiceRunning(true);
    EXPECT_EQ(Run(Right()), ERROR_SUCCESS);
}

TEST_P(WlanErrors, ForAnInterfaceThatIsNotThere)
{
    Call call = Right();
    call.guid = &missing;
    EXPECT_EQ(Run(call), GetParam().takesInterface ? GetParam().onMissingInterface : ERROR_SUCCESS);
}

TEST_P(WlanErrors, AccessDeniedWithoutLocationConsent)
{
    computer->SetLocationConsent(false);
    EXPECT_EQ(Run(Right()), GetParam().tellsWhereItIs ? ERROR_ACCESS_DENIED : ERROR_SUCCESS);
}

TEST_P(WlanErrors, PowerStateWhileTheRadioIsOff)
{
    const auto isPowerState = [this] { return Run(Right()) == ERROR_NDIS_DOT11_POWER_STATE_INVALID; };
    for (const bool bySoftware : {true, false})
    {
        const RadioSwitch software = bySoftware ? RadioSwitch::off : RadioSwitch::on;
        const RadioSwitch hardware = bySoftware ? RadioSwitch::on : RadioSwitch::off;
        computer->SetRadio(0, 0, software, hardware);
        EXPECT_FALSE(isPowerState()) << "one PHY is still on";
        computer->SetRadio(0, 1, software, hardware);
        EXPECT_EQ(isPowerState(), GetParam().needsRadio);
        computer->SetRadio(0, 0, RadioSwitch::on, RadioSwitch::on);
        computer->SetRadio(0, 1, RadioSwitch::on, RadioSwitch::on);
        EXPECT_FALSE(isPowerState());
    }
}

INSTANTIATE_TEST_SUITE_P(EveryOperation, WlanErrors, ::testing::ValuesIn(Operations()));

using WlanHandles = ServiceTest;

TEST_F(WlanHandles, OpeningChecksArgumentsThenTheServiceThenTheVersion)
{
    Start();
    DWORD version = 0;
    HANDLE handle = nullptr;
    EXPECT_EQ(Wlan().WlanOpenHandle(2, &handle, &version, &handle), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Wlan().WlanOpenHandle(2, nullptr, nullptr, &handle), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Wlan().WlanOpenHandle(2, nullptr, &version, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Wlan().WlanOpenHandle(0, nullptr, &version, &handle), ERROR_NOT_SUPPORTED);
    EXPECT_EQ(Wlan().WlanOpenHandle(3, nullptr, &version, &handle), ERROR_NOT_SUPPORTED);
    computer->SetServiceRunning(false);
    EXPECT_EQ(Wlan().WlanOpenHandle(0, nullptr, &version, &handle), ERROR_SERVICE_NOT_ACTIVE);
    EXPECT_EQ(handle, nullptr);
}

TEST_F(WlanHandles, TheVersionAskedForIsTheOneNegotiated)
{
    Start();
    for (const DWORD asked : {1u, 2u})
    {
        DWORD version = 0;
        HANDLE handle = nullptr;
        ASSERT_EQ(Wlan().WlanOpenHandle(asked, nullptr, &version, &handle), ERROR_SUCCESS);
        EXPECT_EQ(version, asked);
        EXPECT_EQ(Wlan().WlanCloseHandle(handle, nullptr), ERROR_SUCCESS);
    }
}

TEST_F(WlanHandles, ThereIsALimitToThem)
{
    Start();
    std::vector<HANDLE> handles;
    DWORD version = 0;
    HANDLE handle = nullptr;
    DWORD error = ERROR_SUCCESS;
    while (handles.size() < 10'000 && (error = Wlan().WlanOpenHandle(2, nullptr, &version, &handle)) == ERROR_SUCCESS)
        handles.push_back(handle);
    EXPECT_EQ(error, ERROR_REMOTE_SESSION_LIMIT_EXCEEDED);
    for (const HANDLE open : handles)
        EXPECT_EQ(Wlan().WlanCloseHandle(open, nullptr), ERROR_SUCCESS);
}

TEST_F(WlanHandles, ClosingNullAndClosedOnes)
{
    Start();
    EXPECT_EQ(Wlan().WlanCloseHandle(nullptr, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Wlan().WlanCloseHandle(client, this), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Wlan().WlanCloseHandle(client, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(Wlan().WlanCloseHandle(client, nullptr), ERROR_INVALID_HANDLE);
    EXPECT_EQ(computer->Audit().defects.size(), 1u);
    computer.reset();
}

TEST_F(WlanHandles, OpenOnesAndUnreleasedBlocksAreAccountedFor)
{
    Start();
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    ASSERT_EQ(Wlan().WlanEnumInterfaces(client, nullptr, &list), ERROR_SUCCESS);
    Accounts accounts = computer->Audit();
    EXPECT_EQ(accounts.liveBlocks, 1u);
    EXPECT_EQ(accounts.openClients, 1u);
    EXPECT_EQ(accounts.openHandles, 0u);
    Wlan().WlanFreeMemory(list);
    EXPECT_EQ(computer->Audit().liveBlocks, 0u);
}

} // namespace

} // namespace calvix::simulation::wlan_errors_test
