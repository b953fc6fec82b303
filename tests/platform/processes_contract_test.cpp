#include "processes_contract.h"

namespace calvix::test::processes_contract_test
{

namespace
{

using ProcessLifeContract = ProcessesContract;

INSTANTIATE_TEST_SUITE_P(Platform, ProcessLifeContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(ProcessLifeContract, AProcessHasTwoHandlesAndTwoNumbers)
{
    const PROCESS_INFORMATION started = Start("cmd.exe /c exit 3");
    EXPECT_NE(started.hProcess, nullptr);
    EXPECT_NE(started.hThread, nullptr);
    EXPECT_NE(started.hProcess, started.hThread);
    EXPECT_NE(started.dwProcessId, 0u);
    EXPECT_NE(started.dwThreadId, 0u);
    EXPECT_NE(started.dwProcessId, started.dwThreadId);
    Finish(started);
}

TEST_P(ProcessLifeContract, WhatHasEndedNeedsNoWaiting)
{
    const PROCESS_INFORMATION started = Start("cmd.exe /c exit 3");
    for (const HANDLE handle : {started.hProcess, started.hThread, started.hProcess})
        EXPECT_EQ(Processes().WaitForSingleObject(handle, INFINITE), Error(WAIT_OBJECT_0));
    for (const HANDLE handle : {started.hProcess, started.hThread})
        EXPECT_EQ(Processes().WaitForSingleObject(handle, 0), Error(WAIT_OBJECT_0));
    Finish(started);
}

TEST_P(ProcessLifeContract, WhatRunsIsNotWaitedForLongerThanAsked)
{
    const PROCESS_INFORMATION started = Start(Endless());
    LeaveUnlikelyError();
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, 0), Error(WAIT_TIMEOUT));
    EXPECT_EQ(Processes().WaitForSingleObject(started.hThread, 1), Error(WAIT_TIMEOUT));
    EXPECT_EQ(Processes().WaitForSingleObject(Processes().GetCurrentProcess(), 0), Error(WAIT_TIMEOUT));
    EXPECT_EQ(LastError(), kUnlikelyError) << "running out of time is no failure";
    EndAndFinish(started);
}

TEST_P(ProcessLifeContract, WaitingTakesAHandle)
{
    EXPECT_EQ(ErrorOfWaiting(nullptr), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOfWaiting(NobodysHandle()), Error(ERROR_INVALID_HANDLE));
}

TEST_P(ProcessLifeContract, AProcessOutlivesItsHandles)
{
    const PROCESS_INFORMATION started = Start(Endless());
    const HANDLE opened = Processes().OpenProcess(PROCESS_TERMINATE | kSynchronize, FALSE, started.dwProcessId);
    if (opened == nullptr)
    {
        EndAndFinish(started);
        FAIL();
    }
    Close(started.hThread);
    Close(started.hProcess);
    EXPECT_EQ(Processes().WaitForSingleObject(opened, 0), Error(WAIT_TIMEOUT));
    EXPECT_TRUE(Processes().TerminateProcess(opened, 17));
    EXPECT_EQ(Processes().WaitForSingleObject(opened, INFINITE), Error(WAIT_OBJECT_0));
    Close(opened);
}

TEST_P(ProcessLifeContract, AHandleIsGoodForWhatItWasOpenedForOnly)
{
    const PROCESS_INFORMATION started = Start(Endless());
    const HANDLE waiting = Processes().OpenProcess(kSynchronize, FALSE, started.dwProcessId);
    EXPECT_EQ(Processes().WaitForSingleObject(waiting, 0), Error(WAIT_TIMEOUT));
    EXPECT_EQ(ErrorOf([&] { return Processes().TerminateProcess(waiting, 1); }), Error(ERROR_ACCESS_DENIED));
    const HANDLE ending = Processes().OpenProcess(PROCESS_TERMINATE, FALSE, started.dwProcessId);
    EXPECT_EQ(ErrorOfWaiting(ending), Error(ERROR_ACCESS_DENIED));
    EXPECT_TRUE(Processes().TerminateProcess(ending, 1));
    Close(waiting);
    Close(ending);
    Finish(started);
}

TEST_P(ProcessLifeContract, WhatHasEndedCannotBeEnded)
{
    if (IsWine())
        GTEST_SKIP() << "Wine ends a process as often as one likes";
    const PROCESS_INFORMATION started = Start("cmd.exe /c exit 3");
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, INFINITE), Error(WAIT_OBJECT_0));
    EXPECT_EQ(ErrorOf([&] { return Processes().TerminateProcess(started.hProcess, 1); }), Error(ERROR_ACCESS_DENIED));
    Finish(started);
}

TEST_P(ProcessLifeContract, AnEndedProcessIsThereAsLongAsItsHandles)
{
    const PROCESS_INFORMATION started = Start("cmd.exe /c exit 3");
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, INFINITE), Error(WAIT_OBJECT_0));
    const HANDLE opened = Processes().OpenProcess(kSynchronize, FALSE, started.dwProcessId);
    EXPECT_NE(opened, nullptr) << LastError();
    Close(opened);
    Finish(started);
}

TEST_P(ProcessLifeContract, NumbersWithoutAProcessAreNotFound)
{
    for (const DWORD id : {Error(0), Error(0x7FFFFFFC)})
        EXPECT_EQ(ErrorOf([&] { return Processes().OpenProcess(kSynchronize, FALSE, id); }),
                  Error(ERROR_INVALID_PARAMETER))
            << id;
}

TEST_P(ProcessLifeContract, NullIsNoHandle)
{
    EXPECT_EQ(ErrorOf([&] { return Processes().TerminateProcess(nullptr, 1); }), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOf([&] { return Processes().CloseHandle(nullptr); }), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOf([&] { return Processes().CloseHandle(NobodysHandle()); }), Error(ERROR_INVALID_HANDLE));
}

TEST_P(ProcessLifeContract, TheOwnProcessHasAHandleThatNeedsNoClosing)
{
    const HANDLE own = Processes().GetCurrentProcess();
    EXPECT_EQ(own, reinterpret_cast<HANDLE>(~UINT_PTR{0}));
    EXPECT_TRUE(Processes().CloseHandle(own)) << "and takes it";
    EXPECT_EQ(Processes().WaitForSingleObject(own, 0), Error(WAIT_TIMEOUT));
}

} // namespace

} // namespace calvix::test::processes_contract_test
