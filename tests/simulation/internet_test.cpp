// Reaching the internet.
#include "system_fixture.h"

namespace calvix::simulation::internet_test
{

class InternetTest : public SystemTest
{
protected:
    BOOL Check(const char* url = "https://www.example.org/")
    {
        return Internet().InternetCheckConnectionA(url, FLAG_ICC_FORCE_CONNECTION, 0);
    }

    BOOL SetConnectTimeout(DWORD milliseconds)
    {
        return Internet().InternetSetOptionA(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, &milliseconds,
                                             sizeof(milliseconds));
    }
};

TEST_F(InternetTest, WhatCanBeReachedIsReachedAtOnce)
{
    EXPECT_TRUE(Check());
    EXPECT_TRUE(Check("http://example.org"));
    EXPECT_TRUE(Check(nullptr));
    EXPECT_EQ(Machine().Now(), std::chrono::milliseconds(0));
}

TEST_F(InternetTest, NamesThatCannotBeResolved)
{
    scenario.internet = InternetAccess::unresolved;
    EXPECT_EQ(ErrorOf(Check()), 12007u);
}

TEST_F(InternetTest, WhereNothingAnswersTheConnectTimeoutPasses)
{
    scenario.internet = InternetAccess::unreachable;
    EXPECT_TRUE(SetConnectTimeout(3000));
    EXPECT_EQ(ErrorOf(Check()), 12029u);
    EXPECT_EQ(Machine().Now(), std::chrono::milliseconds(3000));
    Machine().SetInternet(InternetAccess::reachable);
    EXPECT_TRUE(Check());
}

TEST_F(InternetTest, TheConnectTimeoutIsAMinuteUntilItIsSet)
{
    scenario.internet = InternetAccess::unreachable;
    EXPECT_FALSE(Check());
    EXPECT_EQ(Machine().Now(), std::chrono::minutes(1));
}

TEST_F(InternetTest, RefusedOptions)
{
    DWORD value = 1;
    const auto set = [this](HINTERNET internet, DWORD option, PVOID buffer, DWORD size)
    { return ErrorOf(Internet().InternetSetOptionA(internet, option, buffer, size)); };
    EXPECT_EQ(set(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, &value, sizeof(value) - 1), 12010u);
    EXPECT_EQ(set(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, &value, sizeof(value) + 1), 12010u);
    EXPECT_EQ(set(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, nullptr, sizeof(value)), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(set(nullptr, 9999, &value, sizeof(value)), 12009u);
    EXPECT_EQ(set(&value, INTERNET_OPTION_CONNECT_TIMEOUT, &value, sizeof(value)), ERROR_INVALID_HANDLE);
}

TEST_F(InternetTest, RefusedAddresses)
{
    const std::pair<const char*, DWORD> cases[] = {
        {"", 12005}, {"www.example.org", 12005}, {"https://", 12005}, {"gopher://example.org/", 12006}};
    for (const auto& [url, error] : cases)
        EXPECT_EQ(ErrorOf(Check(url)), error) << url;
}

TEST_F(InternetTest, RefusedArguments)
{
    EXPECT_EQ(ErrorOf(Internet().InternetCheckConnectionA("http://example.org/", FLAG_ICC_FORCE_CONNECTION, 1)),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(ErrorOf(Internet().InternetCheckConnectionA("http://example.org/", 2, 0)), ERROR_INVALID_PARAMETER);
    EXPECT_TRUE(Internet().InternetCheckConnectionA("HTTP://example.org/", 0, 0));
}

} // namespace calvix::simulation::internet_test
