// Every method, with every one of its platform calls failing in turn.

#include "support/edited_answers.h"
#include "sweep/bench.h"
#include "sweep/scenarios.h"
#include "sweep/tolerance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <iostream>

namespace calvix::test::failure_sweep_test
{
namespace
{

using host::MethodResults;
using methods::Method;
using methods::Outcome;
using sweep::Failure;
using sweep::NamedScenario;
using sweep::Reference;
using sweep::Run;

/// A code of the method's table that the failed call can cause, or the call's own error number.
bool IsFailureFor(const Method& method, const MethodResults& results, long long code, const Failure& failure)
{
    if (const std::optional<host::Cause> cause = FindCause(results, code))
        return CanCause(method, failure, *cause);
    return results.kind == host::ResultKind::platformError && failure.way != sweep::Way::emptied &&
           static_cast<std::uint32_t>(code) == failure.fault.error;
}

/// A method without a number for a result has nothing but what it says.
Explanation ExplanationOf(const MethodResults& results, const Outcome& outcome)
{
    if (outcome.code)
        return Explain(results, *outcome.code);
    return {true, false, {}, {}};
}

void ExpectAllowed(const Method& method, const Run& run, const Failure& failure, const Reference& reference)
{
    const MethodResults* const results = host::FindMethod(method.Name());
    ASSERT_NE(results, nullptr);
    const Explanation explanation = ExplanationOf(*results, run.outcome);
    const long long code = run.outcome.code.value_or(0);
    EXPECT_TRUE(explanation.known) << "the code is " << code;
    if (IsTolerated(method, failure, run.outcome, reference))
        return;
    if (results->kind == host::ResultKind::nothing)
    {
        EXPECT_EQ(run.outcome, reference.first);
        return;
    }
    EXPECT_TRUE(explanation.failure && IsFailureFor(method, *results, code, failure))
        << "the code is " << code << run.outcome.text << ", and " << reference.first.code.value_or(0)
        << reference.first.text << " where nothing fails";
    EXPECT_EQ(run.outcome.outputs, OutputsOfFailure(method, failure, run.outcome)) << "the code is " << code;
}

/// A release that the platform refuses leaves what it was to release.
void ExpectNothingHeld(const simulation::Accounts& accounts, std::size_t refusedReleases)
{
    EXPECT_EQ(accounts.liveBlocks, 0U);
    EXPECT_LE(accounts.openHandles, refusedReleases);
    EXPECT_LE(accounts.openClients, 1U);
    EXPECT_THAT(accounts.defects, testing::IsEmpty());
}

/// Called again, the method finds the computer as it was, or done with what it had asked for.
void ExpectAsFresh(const Run& run, const Reference& reference)
{
    EXPECT_TRUE(run.again == reference.first || run.again == reference.again)
        << "called again: " << run.again.code.value_or(0) << run.again.text << ", where nothing fails "
        << reference.first.code.value_or(0) << reference.first.text << ", then " << reference.again.code.value_or(0)
        << reference.again.text;
}

void Check(const NamedScenario& scenario, const Method& method, const Failure& failure, const Reference& reference)
{
    SCOPED_TRACE(std::string(scenario.name) + ": " + failure.Text());
    const Run run = Repeat(scenario.make(), method, failure);
    EXPECT_GE(run.failed, 1U) << "the call was not made";
    ExpectAllowed(method, run, failure, reference);
    const std::size_t refusedReleases = failure.IsRelease() ? run.failed : 0;
    ExpectNothingHeld(run.afterwards, refusedReleases);
    ExpectNothingHeld(run.inTheEnd, refusedReleases);
    ExpectAsFresh(run, reference);
}

class EveryMethod : public testing::TestWithParam<Method>
{
};

TEST_P(EveryMethod, SurvivesEachFailure)
{
    for (const NamedScenario& scenario : sweep::Scenarios())
    {
        const Reference reference = sweep::Record(scenario.make(), GetParam());
        for (const Failure& failure : sweep::FailuresOf(reference))
            Check(scenario, GetParam(), failure, reference);
    }
}

INSTANTIATE_TEST_SUITE_P(All,
                         EveryMethod,
                         testing::ValuesIn(methods::EveryMethod()),
                         [](const auto& method) { return TestName(method.param, method.index); });

/// What a method gives where the service agrees to the version before the one that is asked for.
Outcome CallOfVersionOne(const NamedScenario& scenario, const Method& method)
{
    wrappers::Interceptor seesNothing;
    sweep::Bench bench(scenario.make(), seesNothing);
    bench.Prepare(method);
    EditedAnswers answers;
    answers.service.negotiatedVersion = 1;
    return bench.Call(method);
}

TEST(FailureSweep, OneMethodOnlyLooksAtTheNegotiatedVersion)
{
    constexpr long long kOtherVersion = 0xFFFFFFFF;
    for (const NamedScenario& scenario : sweep::Scenarios())
        for (const Method& method : methods::EveryMethod())
        {
            SCOPED_TRACE(std::string(scenario.name) + ": " + method.declaration);
            Outcome expected = sweep::Record(scenario.make(), method).first;
            if (method.Name() == "SetIhvSecuritySettings" && expected.code == 0)
                expected.code = kOtherVersion;
            EXPECT_EQ(CallOfVersionOne(scenario, method), expected);
        }
}

TEST(FailureSweep, IsNotEmpty)
{
    constexpr std::size_t kAtLeast = 2700 * CALVIX_SWEEP_ERRORS + 600;
    std::size_t failures = 0;
    for (const NamedScenario& scenario : sweep::Scenarios())
        for (const Method& method : methods::EveryMethod())
            failures += sweep::FailuresOf(sweep::Record(scenario.make(), method)).size();
    RecordProperty("failures", std::to_string(failures));
    std::cout << failures << " failures of platform calls in the sweep\n";
    EXPECT_GT(failures, kAtLeast);
}

} // namespace
} // namespace calvix::test::failure_sweep_test
