#include "simulation/service_control.h"

#include "platform/records/error_numbers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace calvix::simulation::service_control_test
{

namespace
{

class ServiceControlTest : public ::testing::Test
{
protected:
    SC_HANDLE OpenManager() { return m_control.OpenSCManagerA(nullptr, nullptr, SC_MANAGER_ALL_ACCESS); }
    SC_HANDLE OpenWlan(SC_HANDLE manager) { return m_control.OpenServiceA(manager, "WlanSvc", SERVICE_ALL_ACCESS); }

    LastErrorCell m_lastError;
    bool m_running = true;
    std::vector<std::string> m_defects;
    Handles m_handles{m_defects};
    SimulatedServiceControl m_control{m_lastError, m_handles, m_running};
};

TEST_F(ServiceControlTest, ShowsWhetherTheServiceRuns)
{
    const SC_HANDLE manager = OpenManager();
    const SC_HANDLE service = OpenWlan(manager);
    ASSERT_NE(service, nullptr);
    SERVICE_STATUS status{};
    EXPECT_TRUE(m_control.QueryServiceStatus(service, &status));
    EXPECT_EQ(status.dwCurrentState, SERVICE_RUNNING);
    m_running = false;
    EXPECT_TRUE(m_control.QueryServiceStatus(service, &status));
    EXPECT_EQ(status.dwCurrentState, SERVICE_STOPPED);
    EXPECT_EQ(status.dwControlsAccepted, 0u);
}

TEST_F(ServiceControlTest, StartsAStoppedService)
{
    m_running = false;
    const SC_HANDLE service = OpenWlan(OpenManager());
    EXPECT_TRUE(m_control.StartServiceA(service, 0, nullptr));
    EXPECT_TRUE(m_running);
    EXPECT_FALSE(m_control.StartServiceA(service, 0, nullptr));
    EXPECT_EQ(m_lastError, ERROR_SERVICE_ALREADY_RUNNING);
}

TEST_F(ServiceControlTest, TheManagerMayBeClosedFirst)
{
    const SC_HANDLE manager = OpenManager();
    const SC_HANDLE service = OpenWlan(manager);
    EXPECT_EQ(m_handles.CountOpen(), 2u);
    EXPECT_TRUE(m_control.CloseServiceHandle(manager));
    SERVICE_STATUS status{};
    EXPECT_TRUE(m_control.QueryServiceStatus(service, &status));
    EXPECT_TRUE(m_control.CloseServiceHandle(service));
    EXPECT_EQ(m_handles.CountOpen(), 0u);
    EXPECT_TRUE(m_defects.empty());
}

TEST_F(ServiceControlTest, KnowsItsServiceByNameInAnyCase)
{
    const SC_HANDLE manager = OpenManager();
    EXPECT_NE(m_control.OpenServiceA(manager, "WLANSVC", SERVICE_ALL_ACCESS), nullptr);
    for (const char* name : {"WlanSvc2", "Wlan"})
    {
        m_lastError = 0;
        EXPECT_EQ(m_control.OpenServiceA(manager, name, SERVICE_ALL_ACCESS), nullptr) << name;
        EXPECT_EQ(m_lastError, ERROR_SERVICE_DOES_NOT_EXIST) << name;
    }
    constexpr DWORD kInvalidAddress = 487;
    constexpr DWORD kInvalidName = 123;
    EXPECT_EQ(m_control.OpenServiceA(manager, nullptr, SERVICE_ALL_ACCESS), nullptr);
    EXPECT_EQ(m_lastError, kInvalidAddress);
    EXPECT_EQ(m_control.OpenServiceA(manager, "", SERVICE_ALL_ACCESS), nullptr);
    EXPECT_EQ(m_lastError, kInvalidName);
}

TEST_F(ServiceControlTest, HasOneMachineAndOneDatabase)
{
    EXPECT_NE(m_control.OpenSCManagerA("", "ServicesActive", SC_MANAGER_CONNECT), nullptr);
    EXPECT_EQ(m_control.OpenSCManagerA("elsewhere", nullptr, SC_MANAGER_CONNECT), nullptr);
    EXPECT_EQ(m_lastError, 1722u);
    EXPECT_EQ(m_control.OpenSCManagerA(nullptr, "ServicesFailed", SC_MANAGER_CONNECT), nullptr);
    EXPECT_EQ(m_lastError, 1065u);
}

TEST_F(ServiceControlTest, NullIsNoHandleAndNoDefect)
{
    SERVICE_STATUS status{};
    const auto expectRefused = [this](BOOL result)
    {
        EXPECT_FALSE(result);
        EXPECT_EQ(m_lastError, ERROR_INVALID_HANDLE);
        m_lastError = 0;
    };
    EXPECT_EQ(OpenWlan(nullptr), nullptr);
    EXPECT_EQ(m_lastError, ERROR_INVALID_HANDLE);
    expectRefused(m_control.QueryServiceStatus(nullptr, &status));
    expectRefused(m_control.StartServiceA(nullptr, 0, nullptr));
    expectRefused(m_control.CloseServiceHandle(nullptr));
    EXPECT_TRUE(m_defects.empty());
}

TEST_F(ServiceControlTest, AClosedHandleIsADefect)
{
    const SC_HANDLE service = OpenWlan(OpenManager());
    EXPECT_TRUE(m_control.CloseServiceHandle(service));
    EXPECT_FALSE(m_control.CloseServiceHandle(service));
    EXPECT_EQ(m_lastError, ERROR_INVALID_HANDLE);
    EXPECT_EQ(m_defects.size(), 1u);
}

TEST_F(ServiceControlTest, HandlesAreOfOneKind)
{
    const SC_HANDLE manager = OpenManager();
    SERVICE_STATUS status{};
    EXPECT_FALSE(m_control.QueryServiceStatus(manager, &status));
    EXPECT_EQ(m_lastError, ERROR_INVALID_HANDLE);
    const SC_HANDLE service = OpenWlan(manager);
    EXPECT_EQ(OpenWlan(service), nullptr);
    constexpr DWORD kInvalidAddress = 487;
    EXPECT_FALSE(m_control.QueryServiceStatus(service, nullptr));
    EXPECT_EQ(m_lastError, kInvalidAddress);
}

} // namespace

} // namespace calvix::simulation::service_control_test
