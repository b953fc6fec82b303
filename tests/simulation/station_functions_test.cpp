// What the WLAN API has beside the operations that the library calls.
#include "service_fixture.h"

#include "simulation/wlan_service.h"

namespace calvix::simulation::station_functions_test
{

using std::chrono::seconds;
using Names = std::vector<std::wstring>;

class StationFunctions : public ServiceTest
{
protected:
    SimulatedWlanService& Service() { return computer->service(); }

    void StartWith(const std::vector<std::string>& profiles)
    {
        scenario.adapters[0].profiles.clear();
        for (const std::string& name : profiles)
            scenario.adapters[0].profiles.push_back({MakeProfile(name, "HomeNet")});
        Start();
    }

    /// The notifications of the auto-configuration module while `action` runs.
    template <typename Action>
    Lines ToldDuring(const Action& action)
    {
        Register(WLAN_NOTIFICATION_SOURCE_ACM);
        action();
        const Lines told = Told();
        Register(WLAN_NOTIFICATION_SOURCE_NONE);
        return told;
    }

    DWORD Arrange(std::vector<const wchar_t*> names)
    {
        return Service().WlanSetProfileList(client, &first, static_cast<DWORD>(names.size()), names.data(), nullptr);
    }

    DWORD Rename(const wchar_t* name, const wchar_t* newName)
    {
        return Service().WlanRenameProfile(client, &first, name, newName, nullptr);
    }

    DWORD Save(const wchar_t* name, DWORD flags = 0, bool overwrite = false)
    {
        return Service().WlanSaveTemporaryProfile(client, &first, name, nullptr, flags, overwrite ? TRUE : FALSE,
                                                  nullptr);
    }

    DWORD ConnectTemporarily(const std::string& xml)
    {
        const std::wstring wide(xml.begin(), xml.end());
        return ConnectAndWait(wlan_connection_mode_temporary_profile, wide.c_str(), nullptr);
    }

    DWORD Discover(const std::string& name, WLAN_CONNECTION_MODE mode)
    {
        DOT11_SSID ssid = SsidOf(name);
        return ConnectAndWait(mode, nullptr, &ssid);
    }

    DWORD ConnectAndWait(WLAN_CONNECTION_MODE mode, const wchar_t* profile, DOT11_SSID* ssid)
    {
        WLAN_CONNECTION_PARAMETERS parameters{};
        parameters.wlanConnectionMode = mode;
        parameters.strProfile = profile;
        parameters.pDot11Ssid = ssid;
        parameters.dot11BssType = dot11_BSS_type_infrastructure;
        const DWORD error = Wlan().WlanConnect(client, &first, &parameters, nullptr);
        computer->Advance(seconds(5));
        return error;
    }

    DWORD SetData(const wchar_t* name, const Bytes& data)
    {
        return Service().WlanSetProfileCustomUserData(client, &first, name, static_cast<DWORD>(data.size()),
                                                      data.empty() ? nullptr : data.data(), nullptr);
    }

    DWORD GetData(const wchar_t* name, Bytes& data)
    {
        BYTE* block = nullptr;
        DWORD size = 0;
        const DWORD error = Service().WlanGetProfileCustomUserData(client, &first, name, nullptr, &size, &block);
        data = block != nullptr ? Bytes(block, block + size) : Bytes();
        Wlan().WlanFreeMemory(block);
        return error;
    }
};

TEST_F(StationFunctions, CapabilityNamesThePhys)
{
    Start();
    WLAN_INTERFACE_CAPABILITY* capability = nullptr;
    ASSERT_EQ(Service().WlanGetInterfaceCapability(client, &first, nullptr, &capability), ERROR_SUCCESS);
    EXPECT_EQ(capability->interfaceType, wlan_interface_type_native_802_11);
    ASSERT_EQ(capability->dwNumberOfSupportedPhys, 2u);
    EXPECT_EQ(static_cast<int>(capability->dot11PhyTypes[0]), 7);
    EXPECT_EQ(static_cast<int>(capability->dot11PhyTypes[1]), 8);
    Wlan().WlanFreeMemory(capability);
    EXPECT_EQ(Service().WlanGetInterfaceCapability(client, &missing, nullptr, &capability), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Service().WlanGetInterfaceCapability(client, &first, nullptr, nullptr), ERROR_INVALID_PARAMETER);
}

TEST_F(StationFunctions, AllocatedMemoryIsTheServices)
{
    Start();
    void* const memory = Service().WlanAllocateMemory(100);
    ASSERT_NE(memory, nullptr);
    EXPECT_EQ(computer->Audit().liveBlocks, 1u);
    Wlan().WlanFreeMemory(memory);
}

TEST_F(StationFunctions, TheListPutsAllProfilesInItsOrder)
{
    StartWith({"one", "two", "three"});
    EXPECT_EQ(ToldDuring([&] { EXPECT_EQ(Arrange({L"three", L"one", L"two"}), ERROR_SUCCESS); }), (Lines{"acm 15"}));
    EXPECT_EQ(ProfileNames(), (Names{L"three", L"one", L"two"}));
}

TEST_F(StationFunctions, AListThatIsNotOneToOneIsRefused)
{
    StartWith({"one", "two"});
    EXPECT_EQ(Arrange({L"two", L"nobody's"}), ERROR_NOT_FOUND);
    EXPECT_EQ(Arrange({L"two", L"two"}), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Arrange({L"two"}), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Arrange({L"two", nullptr}), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Service().WlanSetProfileList(client, &first, 0, std::vector<const wchar_t*>(1).data(), nullptr),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(ProfileNames(), (Names{L"one", L"two"}));
}

TEST_F(StationFunctions, ProfilesOfGroupPoliciesStayWhereTheyAre)
{
    StartWith({"mine"});
    ASSERT_EQ(SetProfile(MakeProfile("theirs", "HomeNet"), false, WLAN_PROFILE_GROUP_POLICY), ERROR_SUCCESS);
    EXPECT_EQ(Arrange({L"mine", L"theirs"}), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Arrange({L"theirs", L"mine"}), ERROR_SUCCESS);
}

TEST_F(StationFunctions, ARenamedProfileKeepsItsPlaceAndItsData)
{
    StartWith({"one", "two"});
    ASSERT_EQ(SetData(L"one", {1, 2, 3}), ERROR_SUCCESS);
    EXPECT_EQ(ToldDuring([&] { EXPECT_EQ(Rename(L"one", L"<uno>"), ERROR_SUCCESS); }), (Lines{"acm 16"}));
    EXPECT_EQ(ProfileNames(), (Names{L"<uno>", L"two"}));
    EXPECT_NE(ProfileXml(L"<uno>", 0).find(L"<name>&lt;uno&gt;</name>"), std::wstring::npos);
    Bytes data;
    EXPECT_EQ(GetData(L"<uno>", data), ERROR_SUCCESS);
    EXPECT_EQ(data, (Bytes{1, 2, 3}));
    EXPECT_EQ(Connect(L"<uno>"), ERROR_SUCCESS);
}

TEST_F(StationFunctions, RenamingRefusesWhatCannotBe)
{
    StartWith({"one", "two"});
    EXPECT_EQ(Rename(L"nobody's", L"three"), ERROR_NOT_FOUND);
    EXPECT_EQ(Rename(L"one", L"two"), ERROR_ALREADY_EXISTS);
    EXPECT_EQ(Rename(L"one", L""), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Rename(L"one", std::wstring(256, L'x').c_str()), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(ProfileNames(), (Names{L"one", L"two"}));
}

TEST_F(StationFunctions, CustomDataGoesWithItsProfile)
{
    StartWith({"one"});
    Bytes data;
    EXPECT_EQ(GetData(L"one", data), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(GetData(L"nobody's", data), ERROR_NOT_FOUND);
    EXPECT_EQ(SetData(L"nobody's", {1}), ERROR_NOT_FOUND);
    ASSERT_EQ(SetData(L"one", {9}), ERROR_SUCCESS);
    EXPECT_EQ(GetData(L"one", data), ERROR_SUCCESS);
    EXPECT_EQ(data, (Bytes{9}));
    ASSERT_EQ(SetData(L"one", {}), ERROR_SUCCESS);
    EXPECT_EQ(GetData(L"one", data), ERROR_FILE_NOT_FOUND);
    ASSERT_EQ(SetData(L"one", {9}), ERROR_SUCCESS);
    ASSERT_EQ(Wlan().WlanDeleteProfile(client, &first, L"one", nullptr), ERROR_SUCCESS);
    ASSERT_EQ(SetProfile(MakeProfile("one", "HomeNet")), ERROR_SUCCESS);
    EXPECT_EQ(GetData(L"one", data), ERROR_FILE_NOT_FOUND);
}

TEST_F(StationFunctions, ATemporaryProfileConnectsAndIsNotStored)
{
    StartWith({});
    ASSERT_EQ(ConnectTemporarily(MakeProfile("For once", "HomeNet")), ERROR_SUCCESS);
    const auto connection = Connection().value();
    EXPECT_EQ(connection.wlanConnectionMode, wlan_connection_mode_temporary_profile);
    EXPECT_STREQ(connection.strProfileName, L"For once");
    EXPECT_EQ(ProfileNames(), Names{});
    const auto networks = ListNetworks();
    ASSERT_EQ(networks.size(), 1u);
    EXPECT_EQ(networks[0].dwFlags, WLAN_AVAILABLE_NETWORK_CONNECTED);
    EXPECT_FALSE(computer->Snapshot().adapters[0].connection.has_value()) << "a scenario names stored profiles only";
}

TEST_F(StationFunctions, ATemporaryProfileIsSavedUnderItsOwnOrAnotherName)
{
    StartWith({"old"});
    ASSERT_EQ(ConnectTemporarily(MakeProfile("For once", "HomeNet")), ERROR_SUCCESS);
    EXPECT_EQ(Save(nullptr, WLAN_PROFILE_CONNECTION_MODE_AUTO), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Save(L"new", WLAN_PROFILE_GROUP_POLICY), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Save(L"old"), ERROR_ALREADY_EXISTS);
    EXPECT_EQ(Save(L"new"), ERROR_SUCCESS);
    EXPECT_EQ(ProfileNames(), (Names{L"new", L"old"}));
    EXPECT_STREQ(Connection()->strProfileName, L"new");
    EXPECT_EQ(Save(L"again"), ERROR_INVALID_STATE) << "it is a stored one now";
    ASSERT_EQ(ConnectTemporarily(MakeProfile("For once", "HomeNet")), ERROR_SUCCESS);
    EXPECT_EQ(Save(nullptr), ERROR_SUCCESS);
    EXPECT_EQ(ProfileNames(), (Names{L"For once", L"new", L"old"}));
}

TEST_F(StationFunctions, NothingTemporaryIsSavedWithoutSuchAConnection)
{
    Start();
    EXPECT_EQ(Save(L"new"), ERROR_INVALID_STATE);
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    EXPECT_EQ(Save(L"new"), ERROR_INVALID_STATE);
}

TEST_F(StationFunctions, DiscoveryFindsOutTheSecurity)
{
    scenario.accessPoints.push_back(MakeOpenPoint("Cafe", 7, -60));
    StartWith({});
    ASSERT_EQ(Discover("Cafe", wlan_connection_mode_discovery_unsecure), ERROR_SUCCESS);
    EXPECT_STREQ(Connection()->strProfileName, L"Cafe");
    EXPECT_FALSE(Connection()->wlanSecurityAttributes.bSecurityEnabled);
    ASSERT_EQ(Discover("HomeNet", wlan_connection_mode_discovery_secure), ERROR_SUCCESS);
    EXPECT_STREQ(Connection()->strProfileName, L"HomeNet");
    EXPECT_EQ(Connection()->wlanSecurityAttributes.dot11AuthAlgorithm, DOT11_AUTH_ALGO_RSNA_PSK);
}

TEST_F(StationFunctions, DiscoveryCannotAskForAKey)
{
    for (AccessPoint& accessPoint : scenario.accessPoints)
        accessPoint.key = "correct horse";
    StartWith({});
    const std::string lacking = " reason " + std::to_string(WLAN_REASON_CODE_MSMSEC_UI_REQUEST_FAILURE);
    EXPECT_EQ(ToldDuring([&] { EXPECT_EQ(Discover("HomeNet", wlan_connection_mode_discovery_secure), ERROR_SUCCESS); }),
              (Lines{"acm 9", "acm 11" + lacking, "acm 11" + lacking, "acm 10" + lacking}));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
}

TEST_F(StationFunctions, TheListIsRefreshedWhenItChanges)
{
    Start();
    const auto scan = [&] { Scan(); };
    EXPECT_EQ(ToldDuring(scan), (Lines{"acm 7"}));
    computer->air()[0].rssi = -80;
    EXPECT_EQ(ToldDuring(scan), (Lines{"acm 7"})) << "a list of the same access points";
    computer->air().push_back(MakeAccessPoint("New", 3, -60));
    EXPECT_EQ(ToldDuring(scan), (Lines{"acm 7", "acm 26"}));
    computer->air().clear();
    EXPECT_EQ(ToldDuring(scan), (Lines{"acm 7", "acm 26", "acm 18"}));
}

TEST_F(StationFunctions, AStationAnswersWhatSamplesAskFor)
{
    Start();
    EXPECT_EQ(Query<ULONG>(wlan_intf_opcode_current_operation_mode), 4u) << "an extensible station";
    EXPECT_EQ(Query<BOOL>(static_cast<WLAN_INTF_OPCODE>(16)), TRUE) << "protects management frames";
    DWORD size = 0;
    PVOID data = nullptr;
    ASSERT_EQ(Wlan().WlanQueryInterface(client, &first, wlan_intf_opcode_supported_infrastructure_auth_cipher_pairs,
                                        nullptr, &size, &data, nullptr),
              ERROR_SUCCESS);
    const auto& pairs = *static_cast<const WLAN_AUTH_CIPHER_PAIR_LIST*>(data);
    EXPECT_EQ(size, offsetof(WLAN_AUTH_CIPHER_PAIR_LIST, pAuthCipherPairList) +
                        pairs.dwNumberOfItems * sizeof(DOT11_AUTH_CIPHER_PAIR));
    EXPECT_GT(pairs.dwNumberOfItems, 1u);
    Wlan().WlanFreeMemory(data);
    const auto countries =
        Query<WLAN_COUNTRY_OR_REGION_STRING_LIST>(wlan_intf_opcode_supported_country_or_region_string_list).value();
    EXPECT_EQ(countries.dwNumberOfItems, 1u);
}

TEST_F(StationFunctions, SettingsOfAnAdapterAreReturnedAsSet)
{
    Start();
    EXPECT_EQ(Query<BOOL>(wlan_intf_opcode_media_streaming_mode), FALSE);
    EXPECT_EQ(Set(wlan_intf_opcode_media_streaming_mode, BOOL{TRUE}), ERROR_SUCCESS);
    EXPECT_EQ(Query<BOOL>(wlan_intf_opcode_media_streaming_mode), TRUE);
    const auto setType = [&] { EXPECT_EQ(Set(wlan_intf_opcode_bss_type, dot11_BSS_type_any), ERROR_SUCCESS); };
    EXPECT_EQ(ToldDuring(setType), (Lines{"acm 5"}));
    EXPECT_EQ(Query<DOT11_BSS_TYPE>(wlan_intf_opcode_bss_type), dot11_BSS_type_any);
    EXPECT_EQ(Set(wlan_intf_opcode_bss_type, std::uint32_t{4}), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Set(wlan_intf_opcode_current_operation_mode, ULONG{4}), ERROR_SUCCESS);
    EXPECT_EQ(Set(wlan_intf_opcode_current_operation_mode, ULONG{0x80000000}), ERROR_NOT_SUPPORTED);
    EXPECT_EQ(Set(wlan_intf_opcode_current_operation_mode, ULONG{2}), ERROR_INVALID_PARAMETER);
}

TEST_F(StationFunctions, AutoConfigurationIsReturnedAsSet)
{
    Start();
    const auto set = [&](WLAN_AUTOCONF_OPCODE opcode, auto value)
    { return Service().WlanSetAutoConfigParameter(client, opcode, sizeof(value), &value, nullptr); };
    EXPECT_EQ(set(wlan_autoconf_opcode_block_period, DWORD{60}), ERROR_SUCCESS);
    EXPECT_EQ(set(wlan_autoconf_opcode_show_denied_networks, BOOL{TRUE}), ERROR_SUCCESS);
    EXPECT_EQ(set(wlan_autoconf_opcode_show_denied_networks, 'x'), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(set(wlan_autoconf_opcode_power_setting, DWORD{1}), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(QueryService<DWORD>(wlan_autoconf_opcode_block_period), 60u);
}

TEST_F(StationFunctions, SecuritySettingsAreHandedBack)
{
    Start();
    wchar_t* sddl = nullptr;
    DWORD access = 0;
    ASSERT_EQ(Wlan().WlanSetSecuritySettings(client, wlan_secure_deny_list, L"D:(A;;GR;;;BA)"), ERROR_SUCCESS);
    ASSERT_EQ(Service().WlanGetSecuritySettings(client, wlan_secure_deny_list, nullptr, &sddl, &access), ERROR_SUCCESS);
    EXPECT_STREQ(sddl, L"D:(A;;GR;;;BA)");
    EXPECT_EQ(access, WLAN_WRITE_ACCESS);
    Wlan().WlanFreeMemory(sddl);
    EXPECT_EQ(
        Service().WlanGetSecuritySettings(client, static_cast<WLAN_SECURABLE_OBJECT>(15), nullptr, &sddl, &access),
        ERROR_INVALID_PARAMETER);
}

} // namespace calvix::simulation::station_functions_test
