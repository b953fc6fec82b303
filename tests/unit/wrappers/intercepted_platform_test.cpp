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

/// A spy, and failures on request, each between a test and nothing.
class InterceptedPlatformTest : public ::testing::Test
{
protected:
    FakePlatform m_inner;
    Spy m_spy;
    InterceptedPlatform m_layer{m_inner, m_spy};
};

class FaultInjectionTest : public ::testing::Test
{
protected:
    FakePlatform m_inner;
    FaultInjection m_faults;
    InterceptedPlatform m_layer{m_inner, m_faults};
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
            EXPECT_EQ(operation.name == std::string_view("WaitForSingleObject") ? 0xFFFFFFFFLL : 0, result);
            EXPECT_EQ(0xC0000022u, layer.errors().GetLastError());
        }
        EXPECT_EQ(operation.fails == Fails::never, !inner.called().empty()) << "forwarded or not";
    }
}

TEST_F(InterceptedPlatformTest, LeavesTheOutputsOfAFailedCallAlone)
{
    m_spy.error = 5;
    DWORD version = 77;
    HANDLE client = &version;
    EXPECT_EQ(5u, m_layer.wlan().WlanOpenHandle(2, nullptr, &version, &client));
    EXPECT_EQ(77u, version);
    EXPECT_EQ(&version, client);
}

TEST_F(InterceptedPlatformTest, RemembersAnInjectedLastErrorUntilTheNextOperation)
{
    m_spy.error = 12029;
    EXPECT_EQ(0, Check(m_layer));
    m_spy.error.reset();
    EXPECT_EQ(12029u, m_layer.errors().GetLastError());
    EXPECT_EQ(12029u, m_layer.errors().GetLastError()) << "asking does not forget it";
    EXPECT_TRUE(m_inner.called().empty());

    m_layer.debugger().OutputDebugStringA("");
    EXPECT_EQ(2u, m_layer.errors().GetLastError()) << "the platform's own again";
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

TEST_F(InterceptedPlatformTest, ReportsTheResultAfterACall)
{
    Open(m_layer);
    m_layer.processes().GetCurrentProcess();
    m_spy.error = 1062;
    Open(m_layer);
    m_layer.services().OpenSCManagerA(nullptr, nullptr, 0);
    EXPECT_THAT(m_spy.results, ElementsAre(1, 1, 1062, 0)) << "a handle counts as 1, null as 0";
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

TEST_F(FaultInjectionTest, FailsFromTheGivenCallForTheGivenTimes)
{
    m_faults.Fail("InternetCheckConnectionA", {.error = 5, .fromCall = 2, .times = 2});
    std::vector<bool> passed;
    for (int i = 0; i < 5; ++i)
        passed.push_back(Check(m_layer) != 0);
    EXPECT_THAT(passed, ElementsAre(true, false, false, true, true));
    EXPECT_EQ(2u, m_faults.Injected());
}

TEST_F(FaultInjectionTest, FailsForeverByDefaultAndNothingElse)
{
    m_faults.Fail("WlanOpenHandle");
    EXPECT_EQ(5u, Open(m_layer));
    EXPECT_EQ(5u, Open(m_layer));
    EXPECT_NE(0, Check(m_layer));
}

TEST_F(FaultInjectionTest, CountsForEveryRuleFromItsOwnBeginning)
{
    m_faults.Fail("WlanOpenHandle", {.error = 5, .fromCall = 2, .times = 1});
    EXPECT_EQ(1u, Open(m_layer));
    m_faults.Fail("WlanOpenHandle", {.error = 6, .fromCall = 2, .times = 1});
    EXPECT_EQ(5u, Open(m_layer)) << "the second call of the first rule, the first of the second";
    EXPECT_EQ(6u, Open(m_layer));
    EXPECT_EQ(2u, Open(m_layer)) << "the fake's own answer";
}

TEST_F(FaultInjectionTest, FailsByPredicateOverArguments)
{
    m_faults.FailWhen([](const Call& call) -> std::optional<DWORD>
                      { return call["clientVersion"] == "1" ? std::optional<DWORD>(50) : std::nullopt; });
    EXPECT_EQ(50u, m_layer.wlan().WlanOpenHandle(1, nullptr, nullptr, nullptr));
    EXPECT_EQ(1u, m_layer.wlan().WlanOpenHandle(2, nullptr, nullptr, nullptr));
}

TEST_F(FaultInjectionTest, ForgetsItsRules)
{
    m_faults.Fail("WlanOpenHandle");
    m_faults.FailWhen([](const Call&) { return std::optional<DWORD>(7); });
    m_faults.Clear();
    EXPECT_EQ(1u, Open(m_layer));
    EXPECT_EQ(0u, m_faults.Injected());
}

TEST_F(FaultInjectionTest, AnswersForTheLastError)
{
    m_faults.Fail("GetLastError", {.error = 1300, .times = 1});
    EXPECT_EQ(1300u, m_layer.errors().GetLastError());
    EXPECT_EQ(1u, m_layer.errors().GetLastError()) << "the fake's own answer";
}

} // namespace calvix::test::intercepted_platform_test
