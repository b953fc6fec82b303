#include "support/library_test.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>

namespace calvix::test::notifications_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

namespace
{

struct Heard
{
    DWORD source;
    DWORD code;
    GUID interfaceGuid;
    std::thread::id thread;
};

/// A client's callback and what it has heard.
class Listener
{
public:
    static void CALLBACK Callback(PWLAN_NOTIFICATION_DATA data, PVOID context)
    {
        auto& self = *static_cast<Listener*>(context);
        const std::lock_guard lock(self.m_mutex);
        self.m_heard.push_back(
            {data->NotificationSource, data->NotificationCode, data->InterfaceGuid, std::this_thread::get_id()});
    }

    std::vector<Heard> All() const
    {
        const std::lock_guard lock(m_mutex);
        return m_heard;
    }

    std::size_t Count() const { return All().size(); }

    std::size_t Count(DWORD code) const
    {
        const std::vector<Heard> heard = All();
        return static_cast<std::size_t>(
            std::count_if(heard.begin(), heard.end(), [code](const Heard& each) { return each.code == code; }));
    }

private:
    mutable std::mutex m_mutex;
    std::vector<Heard> m_heard;
};

void CALLBACK NeverCalled(PWLAN_NOTIFICATION_DATA, PVOID)
{
    ADD_FAILURE() << "this callback is only named, never registered";
}

class NotificationsTest : public LibraryTest
{
public:
    int Register(Listener& listener) { return manager().RegisterNotification(Listener::Callback, &listener); }

    /// Scans with adapter A, and delivers the notifications.
    void Scan()
    {
        unsigned long error = 0;
        ASSERT_EQ(0, manager().Rescan(&kAdapterA, error));
        Advance(4s);
        computer().WaitForNotifications();
    }

    /// Something that is notified at once.
    void MakeNews()
    {
        m_setting = m_setting % 3 + 1;
        computer().SetPowerSetting(static_cast<WLAN_POWER_SETTING>(m_setting));
    }

protected:
    Listener m_first;
    Listener m_second;

private:
    unsigned m_setting = 0;
};

} // namespace

// --- The calls ---

TEST_F(NotificationsTest, RegistersForTheAutoConfigurationModule)
{
    EXPECT_EQ(0, Register(m_first));
    EXPECT_THAT(callLines(), ElementsAre("WlanRegisterNotification(client=1, source=8, ignoreDuplicate=true, "
                                         "callback=non-null, context=non-null, reserved=null, "
                                         "previousSource=non-null)"));
    EXPECT_THAT(traced(), ElementsAre("WlanRegisterNotification: 0")) << "success is traced as well";
    EXPECT_EQ("WlanRegisterNotification: 0", sharedTrace());
}

// Deliberate: whichever callback is named, the one registered is meant.
TEST_F(NotificationsTest, UnregistersEveryCallback)
{
    EXPECT_EQ(0, manager().UnRegisterNotification(NeverCalled, &m_first)) << "nothing is registered";
    EXPECT_THAT(callLines(), ElementsAre("WlanRegisterNotification(client=1, source=0, ignoreDuplicate=false, "
                                         "callback=null, context=non-null, reserved=null, "
                                         "previousSource=non-null)"));
    EXPECT_THAT(traced(), ElementsAre("WlanUnRegisterNotification: 0"));
    EXPECT_EQ("WlanUnRegisterNotification: 0", sharedTrace());
}

TEST_F(NotificationsTest, TheTraceIsFormattedWithTracingOff)
{
    SetTracing(false);
    EXPECT_EQ(0, Register(m_first));
    EXPECT_EQ("WlanRegisterNotification: 0", sharedTrace());
    EXPECT_THAT(traced(), IsEmpty());
}

TEST_F(NotificationsTest, ANullCallbackIsTheServicesToRefuse)
{
    EXPECT_EQ(87, manager().RegisterNotification(nullptr, nullptr));
    EXPECT_EQ(0, manager().UnRegisterNotification(nullptr, nullptr));
}

// --- What clients hear ---

TEST_F(NotificationsTest, TheClientHearsOfAScanOnAThreadOfTheService)
{
    Register(m_first);
    Scan();
    EXPECT_EQ(1u, m_first.Count(wlan_notification_acm_scan_complete));
    for (const Heard& heard : m_first.All())
    {
        EXPECT_EQ(WLAN_NOTIFICATION_SOURCE_ACM, heard.source);
        EXPECT_NE(std::this_thread::get_id(), heard.thread);
        EXPECT_TRUE(heard.code != wlan_notification_acm_scan_complete || kAdapterA == heard.interfaceGuid);
    }
}

TEST_F(NotificationsTest, NothingIsHeardAfterUnregistering)
{
    Register(m_first);
    EXPECT_EQ(0, manager().UnRegisterNotification(NeverCalled, nullptr)) << "by another name and context";
    Scan();
    EXPECT_EQ(0u, m_first.Count());
    Register(m_second);
    Scan();
    EXPECT_EQ(0u, m_first.Count());
    EXPECT_NE(0u, m_second.Count());
}

// --- Callbacks beside the client's calls ---

namespace
{

/// Lets other threads run, a little more with each turn.
void GiveWay(unsigned turns)
{
    for (unsigned turn = 0; turn < turns; ++turn)
        std::this_thread::yield();
}

/// Counts without any protection, in memory that goes away as soon as the registration is ended.
struct ShortLivedListener
{
    unsigned heard = 0;

    static void CALLBACK Callback(PWLAN_NOTIFICATION_DATA, PVOID context)
    {
        GiveWay(2);
        ++static_cast<ShortLivedListener*>(context)->heard;
    }
};

/// Calls the library from the callback.
struct AskingListener
{
    CWirelessManage& manager;
    std::atomic<unsigned> connected{0};

    static void CALLBACK Callback(PWLAN_NOTIFICATION_DATA, PVOID context)
    {
        auto& self = *static_cast<AskingListener*>(context);
        self.connected += self.manager.GetWlanIsLink(&kAdapterA) ? 1 : 0;
    }
};

} // namespace

TEST_F(NotificationsTest, RegistrationsComeAndGoWhileTheServiceNotifies)
{
    std::size_t heard = 0;
    for (unsigned round = 0; round < 200; ++round)
    {
        auto replaced = std::make_unique<ShortLivedListener>();
        auto last = std::make_unique<ShortLivedListener>();
        ASSERT_EQ(0, manager().RegisterNotification(ShortLivedListener::Callback, replaced.get()));
        for (unsigned news = 0; news <= round % 4; ++news)
            MakeNews();
        GiveWay(round % 8);
        ASSERT_EQ(0, manager().RegisterNotification(ShortLivedListener::Callback, last.get()));
        heard += replaced->heard;
        replaced.reset();
        MakeNews();
        if (round % 8 == 0)
            Advance(70s);
        // Some rounds end in the middle of things, some with everything delivered but the last.
        if (round % 2 == 0)
            computer().WaitForNotifications();
        MakeNews();
        GiveWay(round % 16);
        ASSERT_EQ(0, manager().UnRegisterNotification(nullptr, nullptr));
        heard += last->heard;
        last.reset();
        MakeNews();
    }
    computer().WaitForNotifications();
    EXPECT_GE(heard, 100u) << "at least one in each round that waited";
}

TEST_F(NotificationsTest, ACallbackMayCallTheLibrary)
{
    AskingListener listener{manager()};
    manager().RegisterNotification(AskingListener::Callback, &listener);
    for (int round = 0; round < 20; ++round)
    {
        MakeNews();
        EXPECT_EQ(1, manager().WiFiIsConnected(&kAdapterA));
    }
    computer().WaitForNotifications();
    EXPECT_EQ(0, manager().UnRegisterNotification(NeverCalled, nullptr));
    EXPECT_EQ(20u, listener.connected.load());
}

} // namespace calvix::test::notifications_test
