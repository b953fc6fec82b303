#pragma once

#include "simulation/computer.h"

#include "platform/records/error_numbers.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace calvix::simulation
{

/// What the ScenarioError that `action` throws says; empty if it throws none.
template <typename Action>
std::string ProblemOf(const Action& action)
{
    try
    {
        action();
    }
    catch (const ScenarioError& error)
    {
        return error.what();
    }
    return "";
}

/// A computer without adapters, for the tests of everything else. A test changes `scenario` before it first uses the
/// computer; when it ends, nothing may be held and no defect be there but those that it has taken with Defects().
class SystemTest : public ::testing::Test
{
protected:
    void TearDown() override
    {
        const Accounts accounts = Machine().Audit();
        EXPECT_EQ(accounts.liveBlocks, 0u);
        EXPECT_EQ(accounts.openHandles, 0u);
        EXPECT_EQ(accounts.defects.size(), m_defectsTaken) << (accounts.defects.empty() ? "" : accounts.defects.back());
    }

    Computer& Machine()
    {
        if (m_computer == nullptr)
            m_computer = std::make_unique<Computer>(scenario);
        return *m_computer;
    }
    platform::Power& Power() { return Machine().power(); }
    platform::Security& Security() { return Machine().security(); }
    platform::Processes& Processes() { return Machine().processes(); }
    platform::Internet& Internet() { return Machine().internet(); }
    DWORD LastError() { return Machine().errors().GetLastError(); }
    /// The last error of an operation, whose result is FALSE, 0 or null.
    template <typename Result>
    DWORD ErrorOf(Result result)
    {
        EXPECT_FALSE(result);
        return LastError();
    }

    /// A handle to the token with these rights.
    HANDLE OpenToken(DWORD access)
    {
        HANDLE token = nullptr;
        EXPECT_TRUE(Security().OpenProcessToken(Processes().GetCurrentProcess(), access, &token));
        return token;
    }
    LUID LuidOf(const char* privilege)
    {
        LUID luid{};
        EXPECT_TRUE(Security().LookupPrivilegeValueA(nullptr, privilege, &luid)) << privilege;
        return luid;
    }
    /// Enables or disables a privilege, and returns the last error.
    DWORD Adjust(const char* privilege, bool enable)
    {
        const HANDLE token = OpenToken(TOKEN_ADJUST_PRIVILEGES);
        TOKEN_PRIVILEGES wanted{};
        wanted.PrivilegeCount = 1;
        wanted.Privileges[0].Luid = LuidOf(privilege);
        wanted.Privileges[0].Attributes = enable ? SE_PRIVILEGE_ENABLED : 0;
        EXPECT_TRUE(Security().AdjustTokenPrivileges(token, FALSE, &wanted, 0, nullptr, nullptr));
        const DWORD error = LastError();
        EXPECT_TRUE(Processes().CloseHandle(token));
        return error;
    }

    std::vector<std::string> Defects()
    {
        std::vector<std::string> defects = Machine().Audit().defects;
        m_defectsTaken = defects.size();
        return defects;
    }

    Scenario scenario;

private:
    std::unique_ptr<Computer> m_computer;
    std::size_t m_defectsTaken = 0;
};

} // namespace calvix::simulation
