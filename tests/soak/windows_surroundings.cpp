// On Windows, or under Wine: calvix.dll with the drop-in wlanapi.dll beside it, whose time follows real time. The rest of
// the computer is a real one.

#include "soak/surroundings.h"

#include <calvix/wireless_manage.h>

#include <windows.h>

#include <psapi.h>
#include <tlhelp32.h>

#include <fstream>
#include <stdexcept>
#include <vector>

namespace calvix::test::soak
{

namespace
{

constexpr unsigned kSpeed = 10'000; ///< how many times as fast as real time simulated time passes

/// The drop-in reads its settings at the first call, hence before anything else.
void ChooseScenario(const std::string& scenario)
{
    char folder[MAX_PATH] = "";
    ::GetTempPathA(sizeof(folder), folder);
    const std::string file = folder + ("calvix-soak-" + std::to_string(::GetCurrentProcessId()) + ".json");
    std::ofstream(file, std::ios::binary) << scenario;
    ::SetEnvironmentVariableA("CALVIX_SCENARIO", file.c_str());
    ::SetEnvironmentVariableA("CALVIX_SPEED", std::to_string(kSpeed).c_str());
    if (CWirelessManage::Get()->GetWiFiAdapterCount() != 2)
        throw std::runtime_error("no scenario in " + file);
    ::DeleteFileA(file.c_str());
}

std::uint64_t BusyBlocks(HANDLE heap)
{
    std::uint64_t blocks = 0;
    PROCESS_HEAP_ENTRY entry{};
    ::HeapLock(heap);
    while (::HeapWalk(heap, &entry))
        blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? 1U : 0U;
    ::HeapUnlock(heap);
    return blocks;
}

std::uint64_t HeapBlocks()
{
    std::vector<HANDLE> heaps(64);
    heaps.resize(::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
    std::uint64_t blocks = 0;
    for (const HANDLE heap : heaps)
        blocks += BusyBlocks(heap);
    return blocks;
}

std::uint64_t Threads()
{
    const HANDLE snapshot = ::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof(entry);
    std::uint64_t threads = 0;
    for (BOOL more = ::Thread32First(snapshot, &entry); more; more = ::Thread32Next(snapshot, &entry))
        threads += entry.th32OwnerProcessID == ::GetCurrentProcessId() ? 1U : 0U;
    ::CloseHandle(snapshot);
    return threads;
}

/// Wine does not count handles, but says for each value whether it is one.
std::uint64_t Handles()
{
    constexpr std::uintptr_t kHighest = 0x8000;
    DWORD counted = 0;
    if (::GetProcessHandleCount(::GetCurrentProcess(), &counted) && counted != 0)
        return counted;
    std::uint64_t handles = 0;
    for (std::uintptr_t value = 4; value < kHighest; value += 4)
    {
        DWORD flags = 0;
        handles += ::GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) ? 1U : 0U;
    }
    return handles;
}

class WindowsSurroundings final : public Surroundings
{
public:
    explicit WindowsSurroundings(const std::string& scenario) { ChooseScenario(scenario); }

    Duration Now() const override
    {
        const auto passed = std::chrono::steady_clock::now() - m_start;
        return std::chrono::duration_cast<Duration>(passed * kSpeed);
    }
    void Pass(Duration duration) override
    {
        const auto milliseconds = duration.count() / kSpeed;
        ::Sleep(milliseconds > 1 ? static_cast<DWORD>(milliseconds) : 1);
    }
    bool SimulateEverything() const override { return false; }
    void Trouble(std::mt19937_64&) override {}
    void Calm() override {}
    std::string EndOfDay() override { return {}; }

    Holdings Measure() override
    {
        Holdings holdings;
        PROCESS_MEMORY_COUNTERS counters{};
        ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
        holdings.residentKilobytes = counters.WorkingSetSize / 1024;
        holdings.handles = Handles();
        holdings.heapBlocks = HeapBlocks();
        holdings.threads = Threads();
        return holdings;
    }

private:
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

} // namespace

std::unique_ptr<Surroundings> MakeSurroundings(const std::string& scenario)
{
    return std::make_unique<WindowsSurroundings>(scenario);
}

} // namespace calvix::test::soak
