#include "host/interrupt.h"
#include "live/live_watch.h"
#include "report/take_picture.h"
#include "view/roaming.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr unsigned kMillisecondsBetweenSamples = 1000;

/// Keeps the access point among those heard, as it was heard last.
void NoteHeard(std::vector<AirAccessPoint>& heard, const AirAccessPoint& point)
{
    const auto known =
        std::find_if(heard.begin(), heard.end(),
                     [&point](const AirAccessPoint& other) { return other.facts.bssid == point.facts.bssid; });
    if (known == heard.end())
        heard.push_back(point);
    else
        *known = point;
}

/// Between two access points of a network the link is down for a moment, in which a sample may fall: that is one move,
/// which began when the first was left.
void NoteEvent(HistoryFacts& history, const SignalFacts& before, const SignalSample& now)
{
    constexpr unsigned longestMove = 5;
    if (before.bssid == now.link.bssid)
        return;
    LinkEvent event{now.second, before.bssid, now.link.bssid, now.link.connected ? now.link.ssid.hex : before.ssid.hex};
    if (!before.connected && !history.events.empty())
    {
        const LinkEvent& loss = history.events.back();
        const bool soon = event.second - loss.second <= longestMove;
        if (loss.to.empty() && soon && loss.ssidHex == event.ssidHex && loss.from != event.to)
        {
            event.second = loss.second;
            event.from = loss.from;
            history.events.pop_back();
        }
    }
    history.events.push_back(event);
}

void AddSample(Host& host, HistoryFacts& history, unsigned second)
{
    SignalSample sample;
    sample.second = second;
    sample.link = ReadSignal(host);
    for (const AirAccessPoint& point : ListAir(host))
    {
        sample.air.emplace_back(point.facts.bssid, point.facts.rssi);
        NoteHeard(history.heard, point);
    }
    if (!history.samples.empty())
        NoteEvent(history, history.samples.back().link, sample);
    history.samples.push_back(std::move(sample));
}

} // namespace

HistoryFacts FollowSignal(Host& host, const PictureOptions& options)
{
    HistoryFacts history;
    AddSample(host, history, 0);
    for (unsigned second = 1; second <= options.seconds && !Interrupted(); ++second)
    {
        host.Wait(kMillisecondsBetweenSamples);
        if (options.roamEvery != 0 && second % options.roamEvery == 0)
            Roam(host, false);
        AddSample(host, history, second);
    }
    return history;
}

} // namespace calvix::host
