// Off Windows: the whole computer is simulated, and its time passes as fast as it can.

#include "soak/surroundings.h"

#include "core/trace.h"
#include "simulation/computer.h"
#include "support/allocation_counter.h"
#include "testing/program.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace calvix::test::soak
{

namespace
{

using namespace std::chrono_literals;

std::uint64_t EntriesIn(const char* folder)
{
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<std::uint64_t>(std::distance(begin(entries), end(entries)));
}

std::uint64_t ResidentKilobytes()
{
    std::uint64_t all = 0;
    std::uint64_t resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE)) / 1024;
}

class SimulatedSurroundings final : public Surroundings
{
public:
    explicit SimulatedSurroundings(const std::string& scenario)
        : m_computer(simulation::ParseScenario(scenario, "soak")), m_program(m_computer)
    {
        g_bTraceOn = 1;
    }

    Duration Now() const override { return m_computer.Now(); }
    void Pass(Duration duration) override
    {
        m_computer.Advance(duration);
        m_computer.WaitForNotifications();
    }
    bool SimulateEverything() const override { return true; }

    void Trouble(std::mt19937_64& random) override
    {
        using simulation::InternetAccess;
        using simulation::RadioSwitch;
        Calm();
        switch (random() % 6)
        {
        case 0:
            RestartService();
            break;
        case 1:
            m_computer.SetLocationConsent(false);
            break;
        case 2:
            m_computer.SetRadio(0, random() % 2, RadioSwitch::on, RadioSwitch::off);
            break;
        case 3:
            m_computer.SetInternet(InternetAccess::unreachable);
            break;
        case 4:
            m_computer.SetAdministrator(false);
            break;
        default:
            m_computer.SetPowerSetting(wlan_power_setting_low_saving);
            break;
        }
    }

    void Calm() override
    {
        using simulation::RadioSwitch;
        m_computer.SetLocationConsent(true);
        for (std::size_t phy = 0; phy < 2; ++phy)
            m_computer.SetRadio(0, phy, RadioSwitch::on, RadioSwitch::on);
        m_computer.SetInternet(simulation::InternetAccess::reachable);
        m_computer.SetAdministrator(true);
        m_computer.SetPowerSetting(wlan_power_setting_no_saving);
    }

    std::string EndOfDay() override
    {
        LeaveLibrary();
        m_computer.WaitForNotifications();
        m_computer.ClearDebuggerLines();
        const simulation::Accounts accounts = m_computer.Audit();
        std::string held;
        if (accounts.liveBlocks + accounts.openClients + accounts.openHandles != 0)
            held = std::to_string(accounts.liveBlocks) + " blocks, " + std::to_string(accounts.openClients) +
                   " clients, " + std::to_string(accounts.openHandles) + " handles still held\n";
        for (const std::string& defect : accounts.defects)
            held += defect + "\n";
        return held;
    }

    Holdings Measure() override
    {
        return {ResidentKilobytes(), static_cast<std::uint64_t>(HeldHeapBlocks()), EntriesIn("/proc/self/fd"),
                EntriesIn("/proc/self/task")};
    }

private:
    /// A client that was open when the service stopped is of no use any more, so the program begins anew.
    void RestartService()
    {
        m_computer.SetServiceRunning(false);
        Pass(1min);
        CWirelessManage::Get()->GetWiFiAdapterCount();
        LeaveLibrary();
        m_computer.SetServiceRunning(true);
        Pass(1min);
    }

    static void LeaveLibrary()
    {
        CWirelessManage::Delete();
        ManagerInternals::Reset();
    }

    simulation::Computer m_computer;
    Program m_program;
};

} // namespace

std::unique_ptr<Surroundings> MakeSurroundings(const std::string& scenario)
{
    return std::make_unique<SimulatedSurroundings>(scenario);
}

} // namespace calvix::test::soak
