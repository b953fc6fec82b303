#include "service_fixture.h"

#include <cwchar>

namespace calvix::simulation::reason_text_test
{

class ReasonTexts : public ServiceTest
{
protected:
    void SetUp() override { Start(); }

    std::wstring TextOf(DWORD reason)
    {
        wchar_t text[256] = {};
        EXPECT_EQ(Wlan().WlanReasonCodeToString(reason, 256, text, nullptr), ERROR_SUCCESS);
        return text;
    }
};

TEST_F(ReasonTexts, EachReasonHasItsOwn)
{
    EXPECT_EQ(TextOf(WLAN_REASON_CODE_SUCCESS), L"The operation succeeded.");
    EXPECT_EQ(TextOf(WLAN_REASON_CODE_MSMSEC_PSK_MISMATCH_SUSPECTED), L"The passphrase is probably wrong.");
    EXPECT_EQ(TextOf(WLAN_REASON_CODE_HOTSPOT2_PROFILE_NOT_ALLOWED), L"Hotspot profiles are not allowed here.");
}

TEST_F(ReasonTexts, UnknownReasonsShareOne)
{
    const std::wstring text = TextOf(0x12345678);
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(TextOf(0x00028012), text);
    EXPECT_NE(TextOf(WLAN_REASON_CODE_UNKNOWN), text);
}

TEST_F(ReasonTexts, AreCutToTheBuffer)
{
    wchar_t text[] = L"????????";
    EXPECT_EQ(Wlan().WlanReasonCodeToString(WLAN_REASON_CODE_SUCCESS, 4, text, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(std::wmemcmp(text, L"The\0????", 9), 0);
}

TEST_F(ReasonTexts, NeedABufferAndNothingElse)
{
    wchar_t text[16] = {};
    EXPECT_EQ(Wlan().WlanReasonCodeToString(0, 0, text, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Wlan().WlanReasonCodeToString(0, 16, nullptr, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Wlan().WlanReasonCodeToString(0, 16, text, text), ERROR_INVALID_PARAMETER);
    computer->SetServiceRunning(false);
    EXPECT_EQ(Wlan().WlanReasonCodeToString(0, 16, text, nullptr), ERROR_SUCCESS);
}

} // namespace calvix::simulation::reason_text_test
