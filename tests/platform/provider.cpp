#include "provider.h"

namespace calvix::test
{

namespace
{

#ifdef _WIN32
Provider OperatingSystem()
{
    const HMODULE ntdll = ::GetModuleHandleW(L"ntdll.dll");
    return ::GetProcAddress(ntdll, "wine_get_version") != nullptr ? Provider::wine : Provider::windows;
}
#endif

} // namespace

std::vector<Provider> Providers()
{
#ifdef _WIN32
    return {Provider::simulation, OperatingSystem()};
#else
    return {Provider::simulation};
#endif
}

std::string ProviderName(const testing::TestParamInfo<Provider>& info)
{
    return info.param == Provider::simulation ? "Simulation" : info.param == Provider::windows ? "Windows" : "Wine";
}

PlatformContract::PlatformContract()
{
    if (IsSimulation())
        Simulate({});
    else
        m_platform = &platform::DefaultPlatform();
}

PlatformContract::~PlatformContract()
{
    if (m_computer == nullptr)
        return;
    const simulation::Accounts accounts = m_computer->Audit();
    EXPECT_EQ(accounts.liveBlocks, 0u);
    EXPECT_EQ(accounts.openClients, 0u);
    EXPECT_EQ(accounts.openHandles, 0u);
}

void PlatformContract::Simulate(const simulation::Scenario& scenario)
{
    m_computer = std::make_unique<simulation::Computer>(scenario);
    m_platform = m_computer.get();
}

void PlatformContract::LeaveUnlikelyError()
{
    constexpr DWORD kNobodysFlags = 0x80000000;
    System().text().MultiByteToWideChar(CP_UTF8, kNobodysFlags, "a", 1, nullptr, 0);
    ASSERT_EQ(LastError(), kUnlikelyError);
}

} // namespace calvix::test
