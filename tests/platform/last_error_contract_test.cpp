#include "provider.h"

#include <atomic>
#include <thread>

namespace calvix::test::last_error_contract_test
{

class LastErrorContract : public PlatformContract
{
protected:
    /// Leaves ERROR_INVALID_PARAMETER.
    void ConvertNothing() { System().text().MultiByteToWideChar(CP_UTF8, 0, nullptr, -1, nullptr, 0); }
};

INSTANTIATE_TEST_SUITE_P(Platform, LastErrorContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(LastErrorContract, AskingForItChangesNothing)
{
    ConvertNothing();
    EXPECT_EQ(LastError(), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(LastError(), Error(ERROR_INVALID_PARAMETER));
}

TEST_P(LastErrorContract, IsThatOfTheLatestFailure)
{
    ConvertNothing();
    LeaveUnlikelyError();
    EXPECT_EQ(LastError(), kUnlikelyError);
    ConvertNothing();
    EXPECT_EQ(LastError(), Error(ERROR_INVALID_PARAMETER));
}

/// Beginning and ending a thread may leave errors of their own, so both threads are there before either fails.
TEST_P(LastErrorContract, IsTheCallingThreads)
{
    std::atomic<int> turn{0};
    const auto waitForTurn = [&turn](int number)
    {
        while (turn != number)
            std::this_thread::yield();
    };
    DWORD others = 0;
    std::thread other(
        [&]
        {
            waitForTurn(1);
            LeaveUnlikelyError();
            turn = 2;
            waitForTurn(3);
            others = LastError();
            turn = 4;
        });
    ConvertNothing();
    turn = 1;
    waitForTurn(2);
    EXPECT_EQ(LastError(), Error(ERROR_INVALID_PARAMETER));
    ConvertNothing();
    turn = 3;
    waitForTurn(4);
    other.join();
    EXPECT_EQ(others, kUnlikelyError);
}

/// A thread may get the system's identity of one that has ended, but not what that one left.
TEST_P(LastErrorContract, BeginsAnewWithEachThread)
{
    for (int round = 0; round < 8; ++round)
    {
        DWORD before = 0;
        std::thread(
            [&]
            {
                before = LastError();
                ConvertNothing();
            })
            .join();
        EXPECT_EQ(before, Error(ERROR_SUCCESS)) << round;
    }
}

} // namespace calvix::test::last_error_contract_test
