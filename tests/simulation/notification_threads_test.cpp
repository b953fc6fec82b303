// Notifications and threads: registering, replacing, unregistering and closing while the service keeps notifying.
#include "service_fixture.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace calvix::simulation::notification_threads_test
{

namespace
{

using std::chrono::milliseconds;

/// A callback that can be held inside until it is let go.
class Gate
{
public:
    static void WINAPI Callback(L2_NOTIFICATION_DATA*, PVOID context) { static_cast<Gate*>(context)->Pass(); }

    void WaitUntilEntered()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_entered > 0; });
    }
    void Open()
    {
        const std::lock_guard lock(m_mutex);
        m_open = true;
        m_changed.notify_all();
    }
    int Entered()
    {
        const std::lock_guard lock(m_mutex);
        return m_entered;
    }
    bool HasLeft()
    {
        const std::lock_guard lock(m_mutex);
        return m_left > 0;
    }

private:
    void Pass()
    {
        std::unique_lock lock(m_mutex);
        ++m_entered;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_open; });
        ++m_left;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_entered = 0;
    int m_left = 0;
    bool m_open = false;
};

class NotificationThreads : public ServiceTest
{
protected:
    void SetUp() override { Start(); }

    DWORD Register(WLAN_NOTIFICATION_CALLBACK callback, PVOID context)
    {
        return Wlan().WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ALL, FALSE, callback, context, nullptr,
                                               nullptr);
    }
    DWORD Unregister()
    {
        return Wlan().WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_NONE, FALSE, nullptr, nullptr, nullptr,
                                               nullptr);
    }

public:
    /// Something happens.
    void Stir() { EXPECT_EQ(SetProfile(MakeProfile("New", "New"), true), ERROR_SUCCESS); }
};

/// Runs `end` while a callback is running and another event is queued; the callback must be over when `end` returns,
/// and there must be no other.
template <typename Stir, typename End>
void ExpectToWaitForTheCallback(Gate& gate, Stir stir, End end)
{
    stir();
    gate.WaitUntilEntered();
    stir();
    std::atomic<bool> hadLeft = false;
    std::thread ending(
        [&]
        {
            end();
            hadLeft = gate.HasLeft();
        });
    gate.Open();
    ending.join();
    EXPECT_TRUE(hadLeft);
    EXPECT_LE(gate.Entered(), 2) << "the queued one ran before or was discarded";
}

TEST_F(NotificationThreads, UnregisteringWaitsForARunningCallback)
{
    Gate gate;
    ASSERT_EQ(Register(&Gate::Callback, &gate), ERROR_SUCCESS);
    ExpectToWaitForTheCallback(
        gate, [this] { Stir(); }, [this] { EXPECT_EQ(Unregister(), ERROR_SUCCESS); });
    const int entered = gate.Entered();
    Stir();
    computer->WaitForNotifications();
    EXPECT_EQ(gate.Entered(), entered);
}

TEST_F(NotificationThreads, ReplacingWaitsForARunningCallback)
{
    Gate gate;
    Gate next;
    next.Open();
    ASSERT_EQ(Register(&Gate::Callback, &gate), ERROR_SUCCESS);
    ExpectToWaitForTheCallback(
        gate, [this] { Stir(); }, [&] { EXPECT_EQ(Register(&Gate::Callback, &next), ERROR_SUCCESS); });
    const int entered = gate.Entered();
    Stir();
    computer->WaitForNotifications();
    EXPECT_EQ(gate.Entered(), entered);
    EXPECT_EQ(next.Entered(), 1);
    EXPECT_EQ(Unregister(), ERROR_SUCCESS);
}

/// Causes a notification for each that it receives, so that the service always has more to deliver.
struct Gossip
{
    NotificationThreads* test;
    std::atomic<unsigned> heard{0};
    std::atomic<bool> hushed{false};

    void WaitForNews() const
    {
        for (const unsigned before = heard; heard == before;)
            std::this_thread::yield();
    }

    static void WINAPI Callback(L2_NOTIFICATION_DATA*, PVOID context)
    {
        auto& self = *static_cast<Gossip*>(context);
        ++self.heard;
        if (!self.hushed)
            self.test->Stir();
    }
};

TEST_F(NotificationThreads, ReplacingDoesNotWaitForNewsToEnd)
{
    Gossip gossips[] = {{this}, {this}};
    for (int round = 0; round < 50; ++round)
    {
        Gossip& next = gossips[round % 2];
        ASSERT_EQ(Register(&Gossip::Callback, &next), ERROR_SUCCESS);
        Stir();
        next.WaitForNews();
    }
    for (Gossip& gossip : gossips)
        gossip.hushed = true;
    EXPECT_EQ(Unregister(), ERROR_SUCCESS);
}

TEST_F(NotificationThreads, ClosingDiscardsWhatIsQueued)
{
    Gate gate;
    ASSERT_EQ(Register(&Gate::Callback, &gate), ERROR_SUCCESS);
    ExpectToWaitForTheCallback(
        gate, [this] { Stir(); },
        [this]
        {
            EXPECT_EQ(Wlan().WlanCloseHandle(client, nullptr), ERROR_SUCCESS);
            client = nullptr;
        });
}

TEST_F(NotificationThreads, TheComputerEndsAfterTheCallback)
{
    Gate gate;
    ASSERT_EQ(Register(&Gate::Callback, &gate), ERROR_SUCCESS);
    Stir();
    gate.WaitUntilEntered();
    std::thread ending([this] { computer.reset(); });
    gate.Open();
    ending.join();
    EXPECT_TRUE(gate.HasLeft());
}

struct CallingBack
{
    NotificationThreads* test;
    platform::WlanService* wlan;
    HANDLE client;
    const GUID* guid;
    std::atomic<int> succeeded{0};
};

void WINAPI ListProfiles(L2_NOTIFICATION_DATA*, PVOID context)
{
    auto& calling = *static_cast<CallingBack*>(context);
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    if (calling.wlan->WlanGetProfileList(calling.client, calling.guid, nullptr, &list) == ERROR_SUCCESS)
        ++calling.succeeded;
    calling.wlan->WlanFreeMemory(list);
}

TEST_F(NotificationThreads, ACallbackMayCallOperations)
{
    CallingBack calling{this, &Wlan(), client, &first};
    ASSERT_EQ(Register(&ListProfiles, &calling), ERROR_SUCCESS);
    for (int round = 0; round < 20; ++round)
        Stir();
    computer->WaitForNotifications();
    EXPECT_EQ(calling.succeeded, 20);
    EXPECT_EQ(Unregister(), ERROR_SUCCESS);
}

void WINAPI RegisterInside(L2_NOTIFICATION_DATA*, PVOID context)
{
    auto& calling = *static_cast<CallingBack*>(context);
    if (calling.wlan->WlanRegisterNotification(calling.client, WLAN_NOTIFICATION_SOURCE_NONE, FALSE, nullptr, nullptr,
                                               nullptr, nullptr) == ERROR_SUCCESS)
        ++calling.succeeded;
}

TEST_F(NotificationThreads, RegisteringInsideACallbackIsADefect)
{
    CallingBack calling{this, &Wlan(), client, &first};
    ASSERT_EQ(Register(&RegisterInside, &calling), ERROR_SUCCESS);
    Stir();
    computer->WaitForNotifications();
    EXPECT_EQ(calling.succeeded, 1);
    const auto defects = computer->Audit().defects;
    ASSERT_EQ(defects.size(), 1u);
    EXPECT_EQ(defects[0], "WlanRegisterNotification: called inside a notification callback, a deadlock");
    computer.reset();
}

TEST_F(NotificationThreads, SleepingGivesTheServiceTimeToDeliver)
{
    CallingBack calling{this, &Wlan(), client, &first};
    ASSERT_EQ(Register(&ListProfiles, &calling), ERROR_SUCCESS);
    ASSERT_EQ(Wlan().WlanScan(client, &first, nullptr, nullptr, nullptr), ERROR_SUCCESS);
    computer->clock().Sleep(2000);
    EXPECT_EQ(calling.succeeded, 1);
    EXPECT_EQ(Unregister(), ERROR_SUCCESS);
}

void WINAPI Count(L2_NOTIFICATION_DATA*, PVOID context)
{
    // Plain on purpose: the thread sanitizer would see a callback that runs after its registration has ended.
    ++*static_cast<int*>(context);
}

TEST_F(NotificationThreads, RegisteringAnewWhileTheServiceKeepsNotifying)
{
    std::atomic<bool> done = false;
    std::thread notifying(
        [&]
        {
            while (!done)
            {
                Stir();
                computer->clock().Sleep(100);
            }
        });
    constexpr int kRounds = 50;
    constexpr int kMostRounds = 100'000;
    int heard = 0;
    for (int round = 0; round < kRounds || (heard == 0 && round < kMostRounds); ++round)
    {
        int one = 0;
        int two = 0;
        ASSERT_EQ(Register(&Count, &one), ERROR_SUCCESS);
        Stir();
        ASSERT_EQ(Register(&Count, &two), ERROR_SUCCESS);
        one = -1;
        Stir();
        ASSERT_EQ(Unregister(), ERROR_SUCCESS);
        EXPECT_EQ(one, -1) << "no counter is there any more";
        heard += two;
    }
    done = true;
    notifying.join();
    EXPECT_GT(heard, 0) << "no client was notified";
}

TEST_F(NotificationThreads, SeveralThreadsMayUseTheComputer)
{
    const auto work = [this]
    {
        for (int round = 0; round < 30; ++round)
        {
            WLAN_BSS_LIST* list = nullptr;
            EXPECT_EQ(Wlan().WlanGetNetworkBssList(client, &first, nullptr, dot11_BSS_type_any, FALSE, nullptr, &list),
                      ERROR_SUCCESS);
            Wlan().WlanFreeMemory(list);
            EXPECT_EQ(Wlan().WlanScan(client, &first, nullptr, nullptr, nullptr), ERROR_SUCCESS);
            computer->debugger().OutputDebugStringA("working");
            computer->clock().Sleep(10);
            FILETIME never{0xFFFFFFFF, 0xFFFFFFFF};
            EXPECT_FALSE(computer->clock().FileTimeToSystemTime(&never, nullptr));
            EXPECT_EQ(computer->errors().GetLastError(), ERROR_INVALID_PARAMETER);
        }
    };
    std::thread other(work);
    work();
    other.join();
    EXPECT_EQ(computer->Now(), milliseconds(600));
    EXPECT_EQ(computer->DebuggerLines().size(), 60u);
}

} // namespace

} // namespace calvix::simulation::notification_threads_test
