// Every method fails as its contract says.

#include "methods/method.h"
#include "support/edited_answers.h"
#include "support/fatal_errors.h"
#include "unit/failure_contracts.h"

#include <algorithm>

namespace calvix::test::failure_contract
{

namespace
{

using enum Traces;
using methods::Arguments;
using methods::Method;
using methods::Parameter;
using methods::Role;

constexpr unsigned kInvalidParameter = 87;
constexpr unsigned kNotFound = 1168;

/// Null, or the GUID of no adapter, in the place of one parameter.
class ArgumentsOfNothing final : public Arguments
{
public:
    ArgumentsOfNothing(const Parameter& parameter, bool isNull) : m_parameter(parameter), m_isNull(isNull) {}

protected:
    bool IsNull(const Parameter& parameter) override { return m_isNull && &parameter == &m_parameter; }
    const GUID* Adapter() override { return m_isNull ? Arguments::Adapter() : &kNoAdapter; }

private:
    const Parameter& m_parameter;
    bool m_isNull;
};

class FailureContract : public LibraryTest, public ::testing::WithParamInterface<Contract>
{
public:
    FailureContract() : LibraryTest(Furnished(RichScenario())) {}

    const Method& method() const { return methods::FindMethod(GetParam().method); }

    /// The code, or the length of the text. The method has to leave its outputs alone.
    auto CallWith(Arguments& arguments, bool emptiesBssLists = false) const
    {
        return [=, &arguments, &method = method(), lenient = GetParam().convertsWrongly](CWirelessManage& manager)
        {
            EditedAnswers edited;
            edited.conversion.takesAllFlagsForUtf8 = lenient;
            if (emptiesBssLists)
                edited.service.bss = [](WLAN_BSS_LIST& list) { list.dwNumberOfItems = 0; };
            methods::Call call(method, arguments);
            call.Make(manager);
            const methods::Outcome outcome = call.Outcome();
            EXPECT_THAT(outcome.outputs, ::testing::Each(::testing::AnyOf(methods::kUntouched, "null", "0 entries")));
            return outcome.code.value_or(static_cast<long long>(outcome.text.size()));
        };
    }

    FailureRow RowOf(const Failing& failing, Arguments& arguments) const
    {
        const Contract& contract = GetParam();
        const bool isEmptyList = failing.operation == kEmptyBssList;
        const Lines usual = {failing.operation + " failed with error: %u"};
        FailureRow row{.method = contract.method,
                       .call = CallWith(arguments, isEmptyList),
                       .expected = failing.code,
                       .traced = failing.traced.value_or(contract.traces == nothing ? Lines() : usual),
                       .buffer = contract.traces == shared ? TraceBuffer::shared : TraceBuffer::local,
                       .error = contract.error,
                       .fromCall = failing.fromCall,
                       .prepare = contract.prepare};
        if (const auto bring = Bringing(failing.operation))
            row.prepare = bring;
        else
        {
            row.failingOperation = isEmptyList ? "" : failing.operation;
            if (!failing.goesOn)
                row.last = isEmptyList ? "WlanGetNetworkBssList" : failing.operation;
        }
        return row;
    }

    /// The last operation of a call that is refused; none if the method refuses it itself.
    std::string RefusedBy(Arguments& arguments)
    {
        if (GetParam().prepare != nullptr)
            GetParam().prepare(*this);
        ClearCalls();
        if (EndsFatally([&] { CallWith(arguments)(manager()); }))
            return {};
        std::string last;
        for (const std::string& operation : calls())
            if (operation != "WlanFreeMemory")
                last = operation;
        return last;
    }

    void ExpectRefusal(const Parameter& parameter, bool isNull)
    {
        ArgumentsOfNothing arguments(parameter, isNull);
        const std::string operation = RefusedBy(arguments);
        Restart();
        if (operation.empty())
            return;
        const std::vector<Failing>& failures = GetParam().failures;
        const auto failing = std::find_if(failures.begin(), failures.end(),
                                          [&](const Failing& each) { return each.operation == operation; });
        ASSERT_NE(failures.end(), failing) << operation;
        FailureRow row = RowOf(*failing, arguments);
        row.failingOperation.clear();
        row.last.clear();
        row.error = operation == "WlanGetNetworkBssList" && !isNull ? kNotFound : kInvalidParameter;
        if (failing->code == kItsError)
            row.expected = row.error;
        CheckFailure(*this, row);
    }
};

TEST_P(FailureContract, HasACodeForEachFailure)
{
    Arguments useful;
    for (const Failing& failing : GetParam().failures)
        CheckFailure(*this, RowOf(failing, useful));
}

TEST_P(FailureContract, LeavesWrongInputsForThePlatformToRefuse)
{
    for (const Parameter& parameter : method().parameters)
    {
        SCOPED_TRACE(parameter.type);
        const bool isRefused = parameter.role == Role::adapter && !GetParam().findsAdapter;
        if (isRefused)
            ExpectRefusal(parameter, false);
        if (isRefused || parameter.role == Role::name || parameter.role == Role::document)
            ExpectRefusal(parameter, true);
    }
}

INSTANTIATE_TEST_SUITE_P(Of,
                         FailureContract,
                         ::testing::ValuesIn(EveryContract()),
                         [](const auto& contract)
                         { return TestName(methods::FindMethod(contract.param.method), contract.index); });

} // namespace
} // namespace calvix::test::failure_contract
