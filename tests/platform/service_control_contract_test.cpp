#include "provider.h"

#include <cctype>
#include <string>

namespace calvix::test::service_control_contract_test
{

class ServiceControlContract : public PlatformContract
{
protected:
    void SetUp() override
    {
        m_manager = Services().OpenSCManagerA(nullptr, nullptr, SC_MANAGER_CONNECT);
        ASSERT_NE(m_manager, nullptr) << LastError();
    }

    void TearDown() override { Close(m_manager); }

    platform::ServiceControl& Services() { return System().services(); }

    /// A service that is there and runs on every computer of this kind.
    std::string RunningService() const { return IsSimulation() ? "WlanSvc" : "PlugPlay"; }

    SC_HANDLE Open(const std::string& name, DWORD access = SERVICE_QUERY_STATUS)
    {
        return Services().OpenServiceA(m_manager, name.c_str(), access);
    }

    SC_HANDLE OpenRunning(DWORD access = SERVICE_QUERY_STATUS)
    {
        const SC_HANDLE service = Open(RunningService(), access);
        EXPECT_NE(service, nullptr) << LastError();
        return service;
    }

    void Close(SC_HANDLE handle) { EXPECT_TRUE(Services().CloseServiceHandle(handle)) << LastError(); }

    SC_HANDLE m_manager = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Platform, ServiceControlContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(ServiceControlContract, TheDatabaseOfActiveServicesIsTheOneMeant)
{
    const SC_HANDLE manager = Services().OpenSCManagerA(nullptr, "ServicesActive", SC_MANAGER_CONNECT);
    EXPECT_NE(manager, nullptr) << LastError();
    Close(manager);
}

TEST_P(ServiceControlContract, ThereIsNoOtherDatabase)
{
    constexpr DWORD kDatabaseDoesNotExist = 1065;
    constexpr DWORD kInvalidName = 123;
    EXPECT_EQ(ErrorOf([&] { return Services().OpenSCManagerA(nullptr, "ServicesFailed", SC_MANAGER_CONNECT); }),
              kDatabaseDoesNotExist);
    EXPECT_EQ(ErrorOf([&] { return Services().OpenSCManagerA(nullptr, "CalvixServices", SC_MANAGER_CONNECT); }),
              kInvalidName);
}

TEST_P(ServiceControlContract, UnknownServicesAreMissed)
{
    for (const char* name : {"CalvixNoSuchService", "WlanSvc2", "Wlan"})
        EXPECT_EQ(ErrorOf([&] { return Open(name); }), Error(ERROR_SERVICE_DOES_NOT_EXIST)) << name;
}

TEST_P(ServiceControlContract, NamesThatNoServiceCanHaveAreInvalid)
{
    constexpr DWORD kInvalidName = 123;
    EXPECT_EQ(ErrorOf([&] { return Open(""); }), kInvalidName);
    EXPECT_EQ(ErrorOf([&] { return Open("Wlan/Svc"); }), kInvalidName);
    EXPECT_EQ(ErrorOf([&] { return Open("Wlan\\Svc"); }), kInvalidName);
}

TEST_P(ServiceControlContract, AServiceNeedsAName)
{
    constexpr DWORD kInvalidAddress = 487;
    EXPECT_EQ(ErrorOf([&] { return Services().OpenServiceA(m_manager, nullptr, SERVICE_QUERY_STATUS); }),
              kInvalidAddress);
}

TEST_P(ServiceControlContract, TheCaseOfANameIsOfNoAccount)
{
    for (const bool upper : {false, true})
    {
        std::string name = RunningService();
        for (char& character : name)
            character = static_cast<char>(upper ? std::toupper(character) : std::tolower(character));
        const SC_HANDLE service = Open(name);
        EXPECT_NE(service, nullptr) << name;
        Close(service);
    }
}

TEST_P(ServiceControlContract, ARunningServiceSaysSo)
{
    const SC_HANDLE service = OpenRunning(SERVICE_QUERY_STATUS);
    SERVICE_STATUS status{};
    EXPECT_TRUE(Services().QueryServiceStatus(service, &status));
    EXPECT_EQ(status.dwCurrentState, Error(SERVICE_RUNNING));
    EXPECT_NE(status.dwServiceType & (SERVICE_WIN32_OWN_PROCESS | SERVICE_WIN32_SHARE_PROCESS), 0u);
    EXPECT_EQ(status.dwWin32ExitCode, 0u);
    Close(service);
}

TEST_P(ServiceControlContract, ARunningServiceCannotBeStarted)
{
    const SC_HANDLE service = Open(RunningService(), SERVICE_START);
    if (service == nullptr && GetParam() == Provider::windows && LastError() == ERROR_ACCESS_DENIED)
        GTEST_SKIP() << "only administrators may start services";
    ASSERT_NE(service, nullptr) << LastError();
    EXPECT_EQ(ErrorOf([&] { return Services().StartServiceA(service, 0, nullptr); }),
              Error(ERROR_SERVICE_ALREADY_RUNNING));
    Close(service);
}

TEST_P(ServiceControlContract, AHandleIsGoodForWhatItWasOpenedForOnly)
{
    SERVICE_STATUS status{};
    const SC_HANDLE service = OpenRunning(SERVICE_QUERY_STATUS);
    EXPECT_TRUE(Services().QueryServiceStatus(service, &status));
    EXPECT_EQ(ErrorOf([&] { return Services().StartServiceA(service, 0, nullptr); }), Error(ERROR_ACCESS_DENIED));
    Close(service);

    constexpr DWORD kEnumerateDependents = 0x0008;
    const SC_HANDLE other = OpenRunning(kEnumerateDependents);
    EXPECT_EQ(ErrorOf([&] { return Services().QueryServiceStatus(other, &status); }), Error(ERROR_ACCESS_DENIED));
    Close(other);
}

TEST_P(ServiceControlContract, NullIsNoHandle)
{
    SERVICE_STATUS status{};
    EXPECT_EQ(ErrorOf([&] { return Services().OpenServiceA(nullptr, "PlugPlay", SERVICE_QUERY_STATUS); }),
              Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOf([&] { return Services().QueryServiceStatus(nullptr, &status); }), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOf([&] { return Services().StartServiceA(nullptr, 0, nullptr); }), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOf([&] { return Services().CloseServiceHandle(nullptr); }), Error(ERROR_INVALID_HANDLE));
}

TEST_P(ServiceControlContract, ManagersAndServicesAreDifferentHandles)
{
    SERVICE_STATUS status{};
    EXPECT_EQ(ErrorOf([&] { return Services().QueryServiceStatus(m_manager, &status); }), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOf([&] { return Services().StartServiceA(m_manager, 0, nullptr); }), Error(ERROR_INVALID_HANDLE));
    const SC_HANDLE service = OpenRunning();
    EXPECT_EQ(ErrorOf([&] { return Services().OpenServiceA(service, "PlugPlay", SERVICE_QUERY_STATUS); }),
              Error(ERROR_INVALID_HANDLE));
    Close(service);
}

TEST_P(ServiceControlContract, AServiceOutlivesItsManager)
{
    const SC_HANDLE manager = Services().OpenSCManagerA(nullptr, nullptr, SC_MANAGER_CONNECT);
    const SC_HANDLE service = Services().OpenServiceA(manager, RunningService().c_str(), SERVICE_QUERY_STATUS);
    Close(manager);
    SERVICE_STATUS status{};
    EXPECT_TRUE(Services().QueryServiceStatus(service, &status));
    Close(service);
}

TEST_P(ServiceControlContract, AStatusNeedsItsRecord)
{
    constexpr DWORD kInvalidAddress = 487;
    const SC_HANDLE service = OpenRunning(SERVICE_QUERY_STATUS);
    EXPECT_EQ(ErrorOf([&] { return Services().QueryServiceStatus(service, nullptr); }), kInvalidAddress);
    Close(service);
}

} // namespace calvix::test::service_control_contract_test
