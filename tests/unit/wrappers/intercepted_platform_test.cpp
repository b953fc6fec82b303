#include "support/allocation_counter.h"
#include "unit/wrappers/all_operations.h"
#include "unit/wrappers/fake_platform.h"
#include "wrappers/call_log.h"
#include "wrappers/fault_injection.h"
#include "wrappers/intercepted_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace calvix::test::intercepted_platform_test
{

using operations::Fails;
using ::testing::ElementsAre;
using wrappers::Call;
using wrappers::CallLog;
using wrappers::FaultInjection;
using wrappers::InterceptedPlatform;
using wrappers::Interceptor;
using wrappers::InterceptorChain;

namespace
{

/// Notes the calls, and fails the selected ones.
class Spy final : public Interceptor
{
public:
    std::optional<DWORD> Before(const Call& call) override
    {
        before.emplace_back(call.operation);
        arguments += call.arguments.size();
        return error;
    }

    void After(const Call& call, long long result) override
    {
        after.emplace_back(call.operation);
        results.push_back(result);
    }

    std::optional<DWORD> error;
    std::vector<std::string> before;
    std::vector<std::string> after;
    std::vector<long long> results;
    std::size_t arguments = 0;
};

DWORD Open(platform::Platform& platform)
{
    return platform.wlan().WlanOpenHandle(2, nullptr, nullptr, nullptr);
}

bool LeavesItsReason(const Operation& operation)
{
    return operation.fails == Fails::withNothing || operation.fails == Fails::withNo ||
           operation.fails == Fails::withAllBits;
}

BOOL Check(platform::Platform& platform)
{
    return platform.internet().InternetCheckConnectionA("url", 0, 0);
}

} // namespace

TEST(InterceptedPlatform, ForwardsEveryOperationToItsNamesakeAndItsResultBack)
{
    for (const Operation& operation : AllOperations())
    {
        SCOPED_TRACE(operation.name);
        FakePlatform direct;
        FakePlatform inner;
        Spy spy;
        InterceptedPlatform layer(inner, spy);
        EXPECT_EQ(operation.call(direct), operation.call(layer));
        EXPECT_THAT(inner.called(), ElementsAre(operation.name));
        EXPECT_THAT(spy.before, ElementsAre(operation.name));
        EXPECT_THAT(spy.after, ElementsAre(operation.name));
        EXPECT_EQ(0u, spy.arguments) << "no arguments were requested";
    }
}

TEST(InterceptedPlatform, FailsEveryOperationInItsOwnWay)
{
    for (const Operation& operation : AllOperations())
    {
        SCOPED_TRACE(operation.name);
        FakePlatform inner;
        Spy spy;
        InterceptedPlatform layer(inner, spy);
        spy.error = 0xC0000022;
        const long long result = operation.call(layer);
        spy.error.reset();
        if (operation.fails == Fails::withErrorNumber)
            EXPECT_EQ(0xC0000022LL, result);
        if (operation.fails == Fails::withStatus)
            EXPECT_EQ(-0x3FFFFFDELL, result) << "an NTSTATUS is signed";
        if (LeavesItsReason(operation))
        {
            EXPECT_TRUE(result == 0 || result == 0xFFFFFFFFLL) << result;
            EXPECT_EQ(0xC0000022u, layer.errors().GetLastError());
        }
        EXPECT_EQ(operation.fails == Fails::never, !inner.called().empty()) << "forwarded or not";
    }
}

TEST(InterceptedPlatform, OnlyWaitingFailsWithAllBitsSet)
{
    for (const Operation& operation : AllOperations())
    {
        FakePlatform inner;
        Spy spy;
        spy.error = 6;
        InterceptedPlatform layer(inner, spy);
        if (LeavesItsReason(operation))
        {
            EXPECT_EQ(std::string_view(operation.name) == "WaitForSingleObject", operation.call(layer) != 0)
                << operation.name;
        }
    }
}

TEST(InterceptedPlatform, LeavesTheOutputsOfAFailedCallAlone)
{
    FakePlatform inner;
    Spy spy;
    spy.error = 5;
    InterceptedPlatform layer(inner, spy);
    DWORD version = 77;
    HANDLE client = &version;
    EXPECT_EQ(5u, layer.wlan().WlanOpenHandle(2, nullptr, &version, &client));
    EXPECT_EQ(77u, version);
    EXPECT_EQ(&version, client);
}

TEST(InterceptedPlatform, RemembersAnInjectedLastErrorUntilTheNextOperation)
{
    FakePlatform inner;
    Spy spy;
    InterceptedPlatform layer(inner, spy);
    spy.error = 12029;
    EXPECT_EQ(0, Check(layer));
    spy.error.reset();
    EXPECT_EQ(12029u, layer.errors().GetLastError());
    EXPECT_EQ(12029u, layer.errors().GetLastError()) << "asking does not forget it";
    EXPECT_TRUE(inner.called().empty());

    layer.debugger().OutputDebugStringA("");
    EXPECT_EQ(2u, layer.errors().GetLastError()) << "the platform's own again";
}

TEST(InterceptedPlatform, ForgetsAnInjectedLastErrorAtAnyKindOfOperation)
{
    for (const Operation& operation : AllOperations())
    {
        if (std::string_view(operation.name) == "GetLastError")
            continue;
        SCOPED_TRACE(operation.name);
        FakePlatform inner;
        Spy spy;
        InterceptedPlatform layer(inner, spy);
        spy.error = 12029;
        Check(layer);
        spy.error.reset();
        operation.call(layer);
        EXPECT_EQ(2u, layer.errors().GetLastError());
    }
}

TEST(InterceptedPlatform, ReportsTheResultAfterACall)
{
    FakePlatform inner;
    Spy spy;
    InterceptedPlatform layer(inner, spy);
    Open(layer);
    layer.processes().GetCurrentProcess();
    spy.error = 1062;
    Open(layer);
    layer.services().OpenSCManagerA(nullptr, nullptr, 0);
    EXPECT_THAT(spy.results, ElementsAre(1, 1, 1062, 0)) << "a handle counts as 1, null as 0";
}

TEST(InterceptedPlatform, AllocatesNothingUnlessArgumentsAreWanted)
{
    FakePlatform inner;
    FaultInjection faults;
    faults.Fail("WlanScan");
    PlatformCallsUncounted uncounted; // the fake platform's own notes
    Interceptor& nothing = uncounted;
    InterceptorChain chain({&faults, &nothing});
    InterceptedPlatform layer(inner, chain);
    const std::vector<Operation> operations = AllOperations();
    const AllocationCounter counter;
    for (const Operation& operation : operations)
        operation.call(layer);
    EXPECT_EQ(0u, counter.Count());
}

TEST(InterceptedPlatform, AllocatesForArguments)
{
    FakePlatform inner;
    CallLog log;
    InterceptedPlatform layer(inner, log);
    const AllocationCounter counter;
    Open(layer);
    EXPECT_LT(0u, counter.Count());
}

TEST(InterceptorChain, LetsEveryInterceptorSeeEveryCallAndTheFirstErrorCount)
{
    FakePlatform inner;
    Spy first;
    Spy second;
    Spy third;
    second.error = 5;
    third.error = 6;
    InterceptorChain chain({&first, &second, &third});
    InterceptedPlatform layer(inner, chain);
    EXPECT_EQ(5u, Open(layer));
    for (const Spy* const spy : {&first, &second, &third})
    {
        EXPECT_THAT(spy->before, ElementsAre("WlanOpenHandle"));
        EXPECT_THAT(spy->results, ElementsAre(5));
    }
}

TEST(InterceptorChain, WantsArgumentsWhenOneMemberDoes)
{
    Spy spy;
    CallLog log;
    EXPECT_FALSE(InterceptorChain({&spy}).WantsArguments());
    EXPECT_TRUE(InterceptorChain({&spy, &log}).WantsArguments());
    EXPECT_FALSE(InterceptorChain({}).WantsArguments());
}

TEST(FaultInjection, FailsFromTheGivenCallForTheGivenTimes)
{
    FakePlatform inner;
    FaultInjection faults;
    InterceptedPlatform layer(inner, faults);
    faults.Fail("InternetCheckConnectionA", {.error = 5, .fromCall = 2, .times = 2});
    std::vector<bool> passed;
    for (int i = 0; i < 5; ++i)
        passed.push_back(Check(layer) != 0);
    EXPECT_THAT(passed, ElementsAre(true, false, false, true, true));
    EXPECT_EQ(2u, faults.Injected());
}

TEST(FaultInjection, FailsForeverByDefaultAndNothingElse)
{
    FakePlatform inner;
    FaultInjection faults;
    InterceptedPlatform layer(inner, faults);
    faults.Fail("WlanOpenHandle");
    EXPECT_EQ(5u, Open(layer));
    EXPECT_EQ(5u, Open(layer));
    EXPECT_NE(0, Check(layer));
}

TEST(FaultInjection, CountsForEveryRuleFromItsOwnBeginning)
{
    FakePlatform inner;
    FaultInjection faults;
    InterceptedPlatform layer(inner, faults);
    faults.Fail("WlanOpenHandle", {.error = 5, .fromCall = 2, .times = 1});
    EXPECT_EQ(1u, Open(layer));
    faults.Fail("WlanOpenHandle", {.error = 6, .fromCall = 2, .times = 1});
    EXPECT_EQ(5u, Open(layer)) << "the second call of the first rule, the first of the second";
    EXPECT_EQ(6u, Open(layer));
    EXPECT_EQ(2u, Open(layer)) << "the fake's own answer";
}

TEST(FaultInjection, FailsByPredicateOverArguments)
{
    FakePlatform inner;
    FaultInjection faults;
    InterceptedPlatform layer(inner, faults);
    faults.FailWhen([](const Call& call) -> std::optional<DWORD>
                    { return call["clientVersion"] == "1" ? std::optional<DWORD>(50) : std::nullopt; });
    EXPECT_EQ(50u, layer.wlan().WlanOpenHandle(1, nullptr, nullptr, nullptr));
    EXPECT_EQ(1u, layer.wlan().WlanOpenHandle(2, nullptr, nullptr, nullptr));
}

TEST(FaultInjection, ForgetsItsRules)
{
    FakePlatform inner;
    FaultInjection faults;
    InterceptedPlatform layer(inner, faults);
    faults.Fail("WlanOpenHandle");
    faults.FailWhen([](const Call&) { return std::optional<DWORD>(7); });
    faults.Clear();
    EXPECT_EQ(1u, Open(layer));
    EXPECT_EQ(0u, faults.Injected());
}

TEST(FaultInjection, AnswersForTheLastError)
{
    FakePlatform inner;
    FaultInjection faults;
    InterceptedPlatform layer(inner, faults);
    faults.Fail("GetLastError", {.error = 1300, .times = 1});
    EXPECT_EQ(1300u, layer.errors().GetLastError());
    EXPECT_EQ(1u, layer.errors().GetLastError()) << "the fake's own answer";
}

} // namespace calvix::test::intercepted_platform_test
