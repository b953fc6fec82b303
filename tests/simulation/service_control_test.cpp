// The service manager, beyond what every computer's has to do: see tests/platform.
#include "system_fixture.h"

namespace calvix::simulation::service_control_test
{

class ServiceControlTest : public SystemTest
{
protected:
    platform::ServiceControl& Services() { return Machine().services(); }

    SC_HANDLE OpenWlan()
    {
        const SC_HANDLE manager = Services().OpenSCManagerA("", "ServicesActive", SC_MANAGER_ALL_ACCESS);
        const SC_HANDLE service = Services().OpenServiceA(manager, "WlanSvc", SERVICE_ALL_ACCESS);
        EXPECT_NE(service, nullptr);
        EXPECT_TRUE(Services().CloseServiceHandle(manager));
        return service;
    }
};

TEST_F(ServiceControlTest, AStoppedServiceCanBeStarted)
{
    scenario.serviceRunning = false;
    const SC_HANDLE service = OpenWlan();
    SERVICE_STATUS status{};
    EXPECT_TRUE(Services().QueryServiceStatus(service, &status));
    EXPECT_EQ(status.dwCurrentState, SERVICE_STOPPED);
    EXPECT_EQ(status.dwControlsAccepted, 0u);
    EXPECT_TRUE(Services().StartServiceA(service, 0, nullptr));
    EXPECT_TRUE(Services().QueryServiceStatus(service, &status));
    EXPECT_EQ(status.dwCurrentState, SERVICE_RUNNING);
    EXPECT_TRUE(Services().CloseServiceHandle(service));
}

TEST_F(ServiceControlTest, ThereIsNoOtherMachine)
{
    EXPECT_EQ(ErrorOf(Services().OpenSCManagerA("elsewhere", nullptr, SC_MANAGER_CONNECT)), 1722u);
}

TEST_F(ServiceControlTest, AClosedHandleIsADefect)
{
    const SC_HANDLE service = OpenWlan();
    EXPECT_TRUE(Services().CloseServiceHandle(service));
    EXPECT_EQ(ErrorOf(Services().CloseServiceHandle(service)), ERROR_INVALID_HANDLE);
    EXPECT_EQ(Defects(), (std::vector<std::string>{"CloseServiceHandle: use of closed service handle"}));
}

} // namespace calvix::simulation::service_control_test
