// What every operation of the WLAN service refuses, and with which error.
#include "service_fixture.h"

namespace calvix::simulation::wlan_errors_test
{

namespace
{

/// The arguments that all operations have in common: right ones, or one of them wrong.
struct Call
{
    /// Where the operation puts its block, or null. It is given back after the call.
    template <typename Record>
    Record** Block()
    {
        return withPointer ? reinterpret_cast<Record**>(&block) : nullptr;
    }

    DWORD* Number() { return withPointer ? &number : nullptr; }

    /// An input that must not be null.
    template <typename Input>
    Input Needed(Input input) const
    {
        return withPointer ? input : nullptr;
    }

    platform::WlanService* wlan;
    HANDLE client;
    const GUID* guid;
    PVOID reserved = nullptr;
    bool withPointer = true;
    void* block = nullptr;
    DWORD number = 0;
};

/// What is peculiar to an operation.
struct Peculiarities
{
    DWORD onMissingInterface = ERROR_INVALID_PARAMETER; ///< ERROR_SUCCESS: it takes no interface
    bool takesReserved = true;
    bool takesPointer = true;
    bool tellsWhereItIs = false; ///< refused without location consent
    bool needsRadio = false;
};

struct Operation
{
    const char* name;
    DWORD (*run)(Call&);
    Peculiarities has{};
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

DWORD Query(Call& call, WLAN_INTF_OPCODE opcode)
{
    DWORD size = 0;
    return call.wlan->WlanQueryInterface(call.client, call.guid, opcode, call.reserved, &size, call.Block<void>(),
                                         nullptr);
}

void WINAPI Ignore(L2_NOTIFICATION_DATA*, PVOID) {}

const BOOL kSetting = TRUE;

const Operation kOperations[] = {
    {"WlanEnumInterfaces",
     [](Call& call)
     { return call.wlan->WlanEnumInterfaces(call.client, call.reserved, call.Block<WLAN_INTERFACE_INFO_LIST>()); },
     {.onMissingInterface = ERROR_SUCCESS}},
    {"WlanScan",
     [](Call& call) { return call.wlan->WlanScan(call.client, call.guid, nullptr, nullptr, call.reserved); },
     {.takesPointer = false, .tellsWhereItIs = true, .needsRadio = true}},
    {"WlanGetAvailableNetworkList",
     [](Call& call)
     {
         return call.wlan->WlanGetAvailableNetworkList(call.client, call.guid, 0, call.reserved,
                                                       call.Block<WLAN_AVAILABLE_NETWORK_LIST>());
     },
     {.tellsWhereItIs = true, .needsRadio = true}},
    {"WlanGetNetworkBssList",
     [](Call& call)
     {
         return call.wlan->WlanGetNetworkBssList(call.client, call.guid, nullptr, dot11_BSS_type_any, FALSE,
                                                 call.reserved, call.Block<WLAN_BSS_LIST>());
     },
     {.onMissingInterface = ERROR_NOT_FOUND, .tellsWhereItIs = true, .needsRadio = true}},
    {"WlanQueryInterface(current connection)",
     [](Call& call) { return Query(call, wlan_intf_opcode_current_connection); },
     {.tellsWhereItIs = true}},
    {"WlanQueryInterface(radio state)", [](Call& call) { return Query(call, wlan_intf_opcode_radio_state); }},
    {"WlanSetInterface",
     [](Call& call)
     {
         return call.wlan->WlanSetInterface(call.client, call.guid, wlan_intf_opcode_autoconf_enabled, sizeof(kSetting),
                                            call.Needed(&kSetting), call.reserved);
     }},
    {"WlanGetProfileList",
     [](Call& call) {
         return call.wlan->WlanGetProfileList(call.client, call.guid, call.reserved,
                                              call.Block<WLAN_PROFILE_INFO_LIST>());
     }},
    {"WlanGetProfile",
     [](Call& call)
     {
         return call.wlan->WlanGetProfile(call.client, call.guid, L"HomeNet", call.reserved, call.Block<wchar_t>(),
                                          nullptr, nullptr);
     }},
    {"WlanSetProfile",
     [](Call& call)
     {
         const std::string xml = MakeProfile("New", "New");
         return call.wlan->WlanSetProfile(call.client, call.guid, 0, std::wstring(xml.begin(), xml.end()).c_str(),
                                          nullptr, TRUE, call.reserved, call.Number());
     }},
    {"WlanSetProfilePosition", [](Call& call)
     { return call.wlan->WlanSetProfilePosition(call.client, call.guid, call.Needed(L"HomeNet"), 0, call.reserved); }},
    {"WlanConnect",
     [](Call& call)
     {
         WLAN_CONNECTION_PARAMETERS parameters{};
         parameters.strProfile = L"HomeNet";
         parameters.dot11BssType = dot11_BSS_type_infrastructure;
         return call.wlan->WlanConnect(call.client, call.guid, call.Needed(&parameters), call.reserved);
     },
     {.needsRadio = true}},
    {"WlanDeleteProfile", [](Call& call)
     { return call.wlan->WlanDeleteProfile(call.client, call.guid, call.Needed(L"HomeNet"), call.reserved); }},
    {"WlanDisconnect",
     [](Call& call) { return call.wlan->WlanDisconnect(call.client, call.guid, call.reserved); },
     {.takesPointer = false}},
    {"WlanIhvControl",
     [](Call& call)
     {
         return call.wlan->WlanIhvControl(call.client, call.guid, wlan_ihv_control_type_driver, 0, nullptr, 0, nullptr,
                                          call.Number());
     },
     {.takesReserved = false}},
    {"WlanSetSecuritySettings",
     [](Call& call)
     { return call.wlan->WlanSetSecuritySettings(call.client, wlan_secure_ihv_control, call.Needed(L"D:")); },
     {.onMissingInterface = ERROR_SUCCESS, .takesReserved = false}},
    {"WlanQueryAutoConfigParameter",
     [](Call& call)
     {
         DWORD size = 0;
         return call.wlan->WlanQueryAutoConfigParameter(call.client, wlan_autoconf_opcode_power_setting, call.reserved,
                                                        &size, call.Block<void>(), nullptr);
     },
     {.onMissingInterface = ERROR_SUCCESS}},
    {"WlanRegisterNotification",
     [](Call& call)
     {
         return call.wlan->WlanRegisterNotification(call.client, WLAN_NOTIFICATION_SOURCE_ACM, FALSE,
                                                    call.Needed(&Ignore), nullptr, call.reserved, nullptr);
     },
     {.onMissingInterface = ERROR_SUCCESS}},
};

class WlanErrors : public ServiceTest, public ::testing::WithParamInterface<Operation>
{
protected:
    WlanErrors()
    {
        scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
        scenario.adapters[0].ihv[{}] = {};
    }

    void SetUp() override { Start(); }

    const Peculiarities& Has() const { return GetParam().has; }
    Call Right() { return {&Wlan(), client, &first}; }
    DWORD Run(Call call)
    {
        const DWORD error = GetParam().run(call);
        Wlan().WlanFreeMemory(call.block);
        return error;
    }
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
    call = Right();
    call.guid = nullptr;
    EXPECT_EQ(Run(call), Has().onMissingInterface != ERROR_SUCCESS ? ERROR_INVALID_PARAMETER : ERROR_SUCCESS);
    call = Right();
    call.withPointer = false;
    EXPECT_EQ(Run(call), Has().takesPointer ? ERROR_INVALID_PARAMETER : ERROR_SUCCESS);
    call = Right();
    call.reserved = &call;
    EXPECT_EQ(Run(call), Has().takesReserved ? ERROR_INVALID_PARAMETER : ERROR_SUCCESS);
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
    EXPECT_EQ(Run(call), Has().onMissingInterface);
}

TEST_P(WlanErrors, AccessDeniedWithoutLocationConsent)
{
    computer->SetLocationConsent(false);
    EXPECT_EQ(Run(Right()), Has().tellsWhereItIs ? ERROR_ACCESS_DENIED : ERROR_SUCCESS);
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
        EXPECT_EQ(isPowerState(), Has().needsRadio);
        computer->SetRadio(0, 0, RadioSwitch::on, RadioSwitch::on);
        computer->SetRadio(0, 1, RadioSwitch::on, RadioSwitch::on);
        EXPECT_FALSE(isPowerState());
    }
}

INSTANTIATE_TEST_SUITE_P(EveryOperation, WlanErrors, ::testing::ValuesIn(kOperations));

using WlanHandles = ServiceTest;

TEST_F(WlanHandles, AStoppedServiceIsReportedBeforeTheVersion)
{
    Start();
    DWORD version = 0;
    HANDLE handle = nullptr;
    computer->SetServiceRunning(false);
    EXPECT_EQ(Wlan().WlanOpenHandle(0, nullptr, &version, &handle), ERROR_SERVICE_NOT_ACTIVE);
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
