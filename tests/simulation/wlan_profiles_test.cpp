#include "service_fixture.h"

namespace calvix::simulation::wlan_profiles_test
{

using Names = std::vector<std::wstring>;

class WlanProfiles : public ServiceTest
{
protected:
    void SetUp() override { Start(); }

    DWORD SetText(const wchar_t* xml, DWORD& reason)
    {
        return Wlan().WlanSetProfile(client, &first, 0, xml, nullptr, TRUE, nullptr, &reason);
    }
};

TEST_F(WlanProfiles, NewOnesGoOnTopAndOverwrittenOnesStay)
{
    EXPECT_EQ(SetProfile(MakeProfile("B", "B")), ERROR_SUCCESS);
    EXPECT_EQ(SetProfile(MakeProfile("C", "C")), ERROR_SUCCESS);
    EXPECT_EQ(ProfileNames(), (Names{L"C", L"B", L"HomeNet"}));
    EXPECT_EQ(SetProfile(MakeProfile("B", "Changed")), ERROR_ALREADY_EXISTS);
    EXPECT_EQ(SetProfile(MakeProfile("B", "Changed"), true), ERROR_SUCCESS);
    EXPECT_EQ(ProfileNames(), (Names{L"C", L"B", L"HomeNet"}));
    EXPECT_NE(ProfileXml(L"B", 0).find(L"<name>Changed</name>"), std::wstring::npos);
}

TEST_F(WlanProfiles, TheListHasTheirFlags)
{
    EXPECT_EQ(SetProfile(MakeProfile("Mine", "Mine"), false, WLAN_PROFILE_USER), ERROR_SUCCESS);
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    ASSERT_EQ(Wlan().WlanGetProfileList(client, &first, nullptr, &list), ERROR_SUCCESS);
    EXPECT_EQ(list->ProfileInfo[0].dwFlags, WLAN_PROFILE_USER);
    EXPECT_EQ(list->ProfileInfo[1].dwFlags, 0u);
    Wlan().WlanFreeMemory(list);
    EXPECT_EQ(SetProfile(MakeProfile("Odd", "Odd"), false, 0x80), ERROR_INVALID_PARAMETER);
}

TEST_F(WlanProfiles, AnAdapterHasItsOwn)
{
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    ASSERT_EQ(Wlan().WlanGetProfileList(client, &second, nullptr, &list), ERROR_SUCCESS);
    EXPECT_EQ(list->dwNumberOfItems, 0u);
    Wlan().WlanFreeMemory(list);
}

TEST_F(WlanProfiles, BadOnesAreRefusedWithAReason)
{
    DWORD reason = 0;
    EXPECT_EQ(SetText(L"", reason), ERROR_BAD_PROFILE);
    EXPECT_EQ(reason, WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA);
    const wchar_t loneSurrogate[] = {static_cast<wchar_t>(0xd800), 0};
    EXPECT_EQ(SetText(loneSurrogate, reason), ERROR_BAD_PROFILE);
    std::string unfit = MakeProfile("Unfit", "Unfit");
    unfit.replace(unfit.find("AES"), 3, "WEP");
    EXPECT_EQ(SetText(std::wstring(unfit.begin(), unfit.end()).c_str(), reason), ERROR_NO_MATCH);
    EXPECT_EQ(reason, WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_AUTH_CIPHER);
    EXPECT_EQ(ProfileNames(), Names{L"HomeNet"});
}

TEST_F(WlanProfiles, ASuccessClearsTheReason)
{
    const std::string xml = MakeProfile("New", "New");
    DWORD reason = 77;
    EXPECT_EQ(SetText(std::wstring(xml.begin(), xml.end()).c_str(), reason), ERROR_SUCCESS);
    EXPECT_EQ(reason, WLAN_REASON_CODE_SUCCESS);
}

TEST_F(WlanProfiles, KeysAreTheCallersToAskFor)
{
    EXPECT_NE(ProfileXml(L"HomeNet", WLAN_PROFILE_GET_PLAINTEXT_KEY).find(L">correct horse<"), std::wstring::npos);
    const std::wstring hidden = ProfileXml(L"HomeNet", 0);
    EXPECT_EQ(hidden.find(L"correct horse"), std::wstring::npos);
    EXPECT_NE(hidden.find(L"<protected>true</protected>"), std::wstring::npos);
    DWORD reason = 0;
    ASSERT_EQ(SetText(hidden.c_str(), reason), ERROR_SUCCESS);
    EXPECT_NE(ProfileXml(L"HomeNet", WLAN_PROFILE_GET_PLAINTEXT_KEY).find(L">correct horse<"), std::wstring::npos)
        << "what was handed out can be stored again";
}

TEST_F(WlanProfiles, FlagsAndAccessOfAProfile)
{
    wchar_t* text = nullptr;
    DWORD flags = WLAN_PROFILE_GET_PLAINTEXT_KEY;
    DWORD access = 0;
    ASSERT_EQ(Wlan().WlanGetProfile(client, &first, L"HomeNet", nullptr, &text, &flags, &access), ERROR_SUCCESS);
    Wlan().WlanFreeMemory(text);
    EXPECT_EQ(flags, WLAN_PROFILE_GET_PLAINTEXT_KEY);
    EXPECT_EQ(access, WLAN_WRITE_ACCESS);
}

TEST_F(WlanProfiles, UnknownOnesAreNotFound)
{
    wchar_t* text = nullptr;
    EXPECT_EQ(Wlan().WlanGetProfile(client, &first, L"homenet", nullptr, &text, nullptr, nullptr), ERROR_NOT_FOUND);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(Wlan().WlanDeleteProfile(client, &first, L"homenet", nullptr), ERROR_NOT_FOUND);
    EXPECT_EQ(Wlan().WlanSetProfilePosition(client, &first, L"homenet", 0, nullptr), ERROR_NOT_FOUND);
    EXPECT_EQ(Wlan().WlanSetProfilePosition(client, &first, L"HomeNet", 1, nullptr), ERROR_NOT_FOUND);
}

TEST_F(WlanProfiles, ReadingNeedsANameAndStoringADocument)
{
    wchar_t* xml = nullptr;
    DWORD reason = 0;
    EXPECT_EQ(Wlan().WlanGetProfile(client, &first, nullptr, nullptr, &xml, nullptr, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(xml, nullptr);
    EXPECT_EQ(SetText(nullptr, reason), ERROR_INVALID_PARAMETER);
}

TEST_F(WlanProfiles, MovingAndDeleting)
{
    ASSERT_EQ(SetProfile(MakeProfile("B", "B")), ERROR_SUCCESS);
    ASSERT_EQ(SetProfile(MakeProfile("C", "C")), ERROR_SUCCESS);
    EXPECT_EQ(Wlan().WlanSetProfilePosition(client, &first, L"C", 2, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(ProfileNames(), (Names{L"B", L"HomeNet", L"C"}));
    EXPECT_EQ(Wlan().WlanDeleteProfile(client, &first, L"HomeNet", nullptr), ERROR_SUCCESS);
    EXPECT_EQ(ProfileNames(), (Names{L"B", L"C"}));
}

TEST_F(WlanProfiles, DeletingTheOneInUseEndsItsConnection)
{
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(std::chrono::seconds(1));
    ASSERT_EQ(InterfaceState(), wlan_interface_state_connected);
    EXPECT_EQ(Wlan().WlanDeleteProfile(client, &first, L"HomeNet", nullptr), ERROR_SUCCESS);
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
}

} // namespace calvix::simulation::wlan_profiles_test
