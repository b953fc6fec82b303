#pragma once

#include "platform/platform.h"
#include "simulation/computer.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace calvix::test
{

/// The provider of the platform. The operating system is Windows, or Wine in its place.
enum class Provider
{
    simulation,
    windows,
    wine
};

/// The providers that this program can hold to their contract.
std::vector<Provider> Providers();

/// The provider's part of a test's name.
std::string ProviderName(const testing::TestParamInfo<Provider>& info);

/// One facility's contract, asserted of each provider. Expectations are what the platform's documentation says; a
/// provider that answers otherwise is named where it does, with the reason.
class PlatformContract : public testing::TestWithParam<Provider>
{
protected:
    PlatformContract();
    /// A simulated computer got everything back.
    ~PlatformContract() override;

    bool IsSimulation() const { return GetParam() == Provider::simulation; }
    bool IsWine() const { return GetParam() == Provider::wine; }

    /// What the platform documents, unless this is Wine, which is known to answer something else.
    template <typename Answer>
    Answer OrOnWine(Answer documented, Answer onWine) const
    {
        return IsWine() ? onWine : documented;
    }

    /// Puts a simulated computer with this content in the place of the empty one.
    void Simulate(const simulation::Scenario& scenario);

    platform::Platform& System() { return *m_platform; }
    simulation::Computer& Simulated() { return *m_computer; }

    DWORD LastError() { return System().errors().GetLastError(); }

    /// Makes `operation`, which must give null, zero or FALSE, and gives the last error that it left: its own, because
    /// an unlikely one is put there before.
    template <typename Operation>
    DWORD ErrorOf(Operation operation)
    {
        LeaveUnlikelyError();
        const auto result = operation();
        const DWORD error = LastError();
        EXPECT_TRUE(!result) << "expected to fail";
        EXPECT_NE(error, kUnlikelyError) << "left no error";
        return error;
    }

    /// Leaves kUnlikelyError, so that it can be seen whether an operation changes the last error.
    void LeaveUnlikelyError();

    /// The last error after a conversion with unknown flags: ERROR_INVALID_FLAGS, which only conversions leave.
    static constexpr DWORD kUnlikelyError = 1004;

private:
    std::unique_ptr<simulation::Computer> m_computer;
    platform::Platform* m_platform = nullptr;
};

/// An error number of the SDK as the operations return it, of one type in both worlds.
constexpr DWORD Error(DWORD number)
{
    return number;
}

} // namespace calvix::test
