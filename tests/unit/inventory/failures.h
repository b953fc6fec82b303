#pragma once

#include "support/contract_table.h"

namespace calvix::test
{

/// The ways in which one method fails, each checked on a computer of its own as support/contract_table.h says:
///
///     const Failures find(*this, "GetAP", FindHomeNet, TraceBuffer::local);
///     find.When("WlanGetAvailableNetworkList", -3);
///     find.In(SilentWorld(), -4, {kNetworksReleased});
class Failures
{
public:
    using Call = std::function<long long(CWirelessManage&)>;

    Failures(LibraryTest& test, std::string method, Call call, TraceBuffer buffer = TraceBuffer::shared)
        : m_test(test), m_method(std::move(method)), m_call(std::move(call)), m_buffer(buffer)
    {
    }

    /// The operation fails, which is traced, and `afterwards` these lines.
    void When(const std::string& operation, long long code, std::vector<std::string> afterwards = {}) const
    {
        afterwards.insert(afterwards.begin(), operation + " failed with error: %u");
        WhenTracing(operation, code, std::move(afterwards));
    }
    /// The same where other lines are traced. A service that cannot be opened is not asked further.
    void WhenTracing(const std::string& operation, long long code, std::vector<std::string> traced) const
    {
        CheckFailure(m_test, {.method = m_method,
                              .call = m_call,
                              .failingOperation = operation,
                              .expected = code,
                              .traced = std::move(traced),
                              .buffer = m_buffer,
                              .ends = operation == "WlanOpenHandle"});
    }

    void In(const simulation::Scenario& world, long long code, std::vector<std::string> traced = {}) const
    {
        After([&world](LibraryTest& test) { test.UseWorld(world); }, code, std::move(traced));
    }
    void After(std::function<void(LibraryTest&)> prepare, long long code, std::vector<std::string> traced = {}) const
    {
        CheckFailure(m_test, {.method = m_method,
                              .call = m_call,
                              .expected = code,
                              .traced = std::move(traced),
                              .buffer = m_buffer,
                              .prepare = std::move(prepare)});
    }

private:
    LibraryTest& m_test;
    std::string m_method;
    Call m_call;
    TraceBuffer m_buffer;
};

} // namespace calvix::test
