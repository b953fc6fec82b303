#include "live/live_watch.h"

#include "core/wlan_records.h"
#include "explain/reason_words.h"
#include "host/interrupt.h"
#include "host/service_view.h"
#include "live/live_view.h"
#include "live/notifications.h"
#include "output/text_forms.h"
#include "view/describe.h"
#include "view/roaming.h"
#include "view/status.h"

#include <chrono>
#include <thread>

namespace calvix::host
{

namespace
{

using std::chrono::steady_clock;

constexpr unsigned kWatchStepMilliseconds = 100;
constexpr unsigned kSampleMilliseconds = 1000;
constexpr unsigned kSimulatedSeconds = 60;

/// The time that is watched: simulated time in steps, or the clock on the wall.
class WatchedTime
{
public:
    WatchedTime(Host& host, unsigned speed)
        : m_host(host), m_simulated(host.isSimulated()), m_counted(host.countsTime()), m_speed(speed)
    {
        if (m_speed == 0 && host.terminal().isTerminal && !host.isReplay())
            m_speed = 1;
    }

    void Step()
    {
        m_host.Wait(kWatchStepMilliseconds);
        m_stepped += kWatchStepMilliseconds;
        // Simulated time takes none.
        if (m_simulated && m_speed > 0)
            std::this_thread::sleep_for(std::chrono::microseconds(kWatchStepMilliseconds * 1000 / m_speed));
    }

    unsigned long long Now() const
    {
        if (m_counted)
            return m_stepped;
        const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - m_begin);
        return static_cast<unsigned long long>(passed.count());
    }

private:
    Host& m_host;
    bool m_simulated;
    bool m_counted;
    unsigned m_speed;
    unsigned long long m_stepped = 0;
    steady_clock::time_point m_begin = steady_clock::now();
};

/// Says again and again when a span of time has passed.
class Rhythm
{
public:
    explicit Rhythm(unsigned period) : m_period(period), m_next(period) {}

    bool Beats(unsigned long long now)
    {
        if (m_period == 0 || now < m_next)
            return false;
        m_next += m_period;
        return true;
    }

private:
    unsigned long long m_period;
    unsigned long long m_next;
};

NoticeFacts DescribeNotice(Host& host, const Notice& notice)
{
    NoticeFacts facts;
    facts.code = static_cast<unsigned>(notice.code);
    facts.name = NotificationText(notice.code);
    facts.profile = Narrow(notice.profile);
    if (notice.ofConnection)
        facts.ssid = DescribeSsid(notice.ssid);
    facts.reasonCode = static_cast<std::uint32_t>(notice.reason);
    if (notice.reason != WLAN_REASON_CODE_SUCCESS)
        facts.reason = ReasonInServiceWords(host.manager(), notice.reason);
    return facts;
}

void ShowNotices(Host& host, Notifications& notifications, LiveView& view)
{
    for (const Notice& notice : notifications.Take())
        if (IsEqualGUID(notice.adapter, *host.adapterGuid()))
            view.Show(DescribeNotice(host, notice));
}

unsigned long long LastMoment(Host& host, unsigned seconds)
{
    if (seconds == 0 && !host.isSimulated())
        return ~0ULL;
    return (seconds != 0 ? seconds : kSimulatedSeconds) * 1000ULL;
}

std::string Summary(const LiveView& view, unsigned long long now)
{
    return "Moved " + Counted(view.Moves(), "time") + " in " + Counted(static_cast<std::size_t>(now / 1000), "second") +
           ".\n";
}

} // namespace

SignalFacts ReadSignal(Host& host)
{
    const GUID* const adapter = host.adapterGuid();
    SignalFacts facts;
    const auto state = static_cast<unsigned long>(host.Check("GetWlanStatus", host.manager().GetWlanStatus(adapter)));
    facts.state = host.manager().GetWlanInterfaceState(state);
    const auto connection = host.service().Connection(adapter);
    if (!connection || !IsConnectedState(connection->isState))
        return facts;
    const WLAN_ASSOCIATION_ATTRIBUTES& association = connection->wlanAssociationAttributes;
    facts.connected = true;
    facts.profile = Narrow(FixedText(connection->strProfileName));
    facts.ssid = DescribeSsid(association.dot11Ssid);
    facts.bssid = MacText(association.dot11Bssid);
    facts.quality = association.wlanSignalQuality;
    int rssi = 0;
    if (host.manager().GetRssi(adapter, rssi) == 0)
        facts.rssi = rssi;
    return facts;
}

void WatchLive(Host& host, const LiveOptions& options)
{
    host.adapter();
    Notifications notifications(host);
    WatchedTime time(host, options.speed);
    Rhythm sampling(kSampleMilliseconds);
    Rhythm roaming(options.roamEvery * 1000);
    const unsigned long long last = LastMoment(host, options.seconds);
    LiveView view(host);
    view.Show(ReadSignal(host));
    while (time.Now() < last && !Interrupted())
    {
        time.Step();
        view.At(time.Now());
        ShowNotices(host, notifications, view);
        // Before a roam: it changes the state at once, and its notifications arrive in the next step.
        if (sampling.Beats(time.Now()))
            view.Show(ReadSignal(host));
        if (roaming.Beats(time.Now()))
            view.Show(Roam(host, options.dryRun));
    }
    if (!host.json())
        view.Finish(Summary(view, time.Now()));
}

} // namespace calvix::host
