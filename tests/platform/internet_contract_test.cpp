// No test here reaches for the network: what is asked of the operating system is refused before that.

#include "provider.h"

namespace calvix::test::internet_contract_test
{

namespace
{

constexpr DWORD kInvalidOption = 12009;
constexpr DWORD kBadOptionLength = 12010;

class InternetContract : public PlatformContract
{
protected:
    platform::Internet& Internet() { return System().internet(); }
};

INSTANTIATE_TEST_SUITE_P(Platform, InternetContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(InternetContract, TheTimeoutIsTheProcesss)
{
    DWORD milliseconds = 5000;
    EXPECT_TRUE(
        Internet().InternetSetOptionA(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, &milliseconds, sizeof milliseconds))
        << LastError();
}

TEST_P(InternetContract, OptionsHaveASize)
{
    BYTE value = 5;
    EXPECT_EQ(
        ErrorOf(
            [&]
            { return Internet().InternetSetOptionA(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, &value, sizeof value); }),
        kBadOptionLength);
}

TEST_P(InternetContract, UnknownOptionsAreMissed)
{
    DWORD value = 0;
    EXPECT_EQ(ErrorOf([&] { return Internet().InternetSetOptionA(nullptr, 0xFFFFFF, &value, sizeof value); }),
              kInvalidOption);
}

TEST_P(InternetContract, InvalidAddressesAreRefused)
{
    ErrorOf([&] { return Internet().InternetCheckConnectionA("calvix", FLAG_ICC_FORCE_CONNECTION, 0); });
}

} // namespace

} // namespace calvix::test::internet_contract_test
