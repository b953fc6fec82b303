#include "live/live_view.h"

#include "output/json_output.h"
#include "output/table.h"
#include "output/text_forms.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace calvix::host
{

namespace
{

/// With it the signal line of an ordinary SSID fits into 80 columns.
constexpr std::size_t kHistory = 24;

std::string ElapsedText(unsigned long long milliseconds)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%7.1f s  ", static_cast<double>(milliseconds) / 1000.0);
    return text;
}

/// A bar for each quality, as high as it is good, and a line before the first one of another access point.
std::string HistoryText(const std::deque<SignalMoment>& history, const TerminalTraits& terminal)
{
    static constexpr const char* heights[] = {"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
    std::string text;
    for (const SignalMoment& moment : history)
    {
        if (moment.moved)
            text += Toned("┃", Tone::strong, terminal);
        text += heights[(std::min)(moment.quality * 8 / 101, 7UL)];
    }
    return text;
}

std::string SignalText(const SignalFacts& signal, const TerminalTraits& terminal)
{
    if (!signal.connected)
        return signal.state;
    const Cell bars = SignalBars(signal.quality, terminal);
    char numbers[64];
    std::snprintf(numbers, sizeof(numbers), " %3lu%%", signal.quality);
    std::string text = Toned(bars.text, bars.tone, terminal) + numbers;
    if (signal.rssi)
        text += "  " + std::to_string(*signal.rssi) + " dBm";
    return text + "  " + signal.ssid.text;
}

std::string NoticeText(const NoticeFacts& notice)
{
    std::string text = notice.name;
    if (!notice.profile.empty())
        text += ": " + VisibleText(notice.profile);
    if (!notice.reason.empty())
        text += " (" + notice.reason + ")";
    return text;
}

std::string RoamText(const RoamFacts& roam)
{
    if (roam.decision == "roam")
        return "roam: from " + roam.from + " to " + roam.to;
    return roam.decision == "stay" ? "stay: " + roam.why : "no decision: " + roam.why;
}

} // namespace

LiveView::~LiveView()
{
    if (m_lineWidth > 0)
        m_output.out() << '\n' << std::flush;
}

void LiveView::Show(const NoticeFacts& notice)
{
    if (m_output.json())
        return PrintLine(m_output.out(), LiveRecord(m_now, notice));
    Line(NoticeText(notice));
}

void LiveView::Show(const RoamFacts& roam)
{
    if (m_output.json())
        return PrintLine(m_output.out(), LiveRecord(m_now, roam));
    if (roam.code != 0 && roam.code == m_lastRoamCode)
        return;
    m_lastRoamCode = roam.code;
    Line(RoamText(roam));
}

void LiveView::Show(const SignalFacts& signal)
{
    NoticeMove(signal);
    if (m_output.json())
        return PrintLine(m_output.out(), LiveRecord(m_now, signal));
    if (m_output.terminal().isTerminal)
        return DrawSignalLine(signal);
    if (!IsWorthALine(signal))
        return;
    m_lastShown = signal;
    const std::string accessPoint = signal.connected ? "  " + signal.bssid : "";
    Line(SignalText(signal, m_output.terminal()) + accessPoint);
}

void LiveView::NoticeMove(const SignalFacts& signal)
{
    if (!signal.connected)
        return;
    const SignalFacts before = m_lastLink;
    m_lastLink = signal;
    if (!before.connected || before.ssid.hex != signal.ssid.hex || before.bssid == signal.bssid)
        return;
    ++m_moves;
    m_movedNow = true;
    if (m_output.json())
        return PrintLine(m_output.out(), MoveRecord(m_now, before.bssid, signal.bssid));
    Line("moved from " + before.bssid + " to " + signal.bssid);
}

/// In plain text only what people would notice: the signal line of a terminal shows the rest.
bool LiveView::IsWorthALine(const SignalFacts& signal) const
{
    constexpr unsigned long noticeable = 10;
    if (signal.state != m_lastShown.state || signal.bssid != m_lastShown.bssid)
        return true;
    const auto [less, more] = std::minmax(signal.quality, m_lastShown.quality);
    return more - less >= noticeable;
}

void LiveView::DrawSignalLine(const SignalFacts& signal)
{
    m_history.push_back({signal.connected ? signal.quality : 0, std::exchange(m_movedNow, false)});
    if (m_history.size() > kHistory)
        m_history.pop_front();
    ClearSignalLine();
    m_output.out() << ElapsedText(m_now) << SignalText(signal, m_output.terminal()) << "  "
                   << HistoryText(m_history, m_output.terminal()) << std::flush;
    // Colours take no columns.
    const TerminalTraits plain{.isTerminal = true};
    m_lineWidth = DisplayWidth(ElapsedText(m_now) + SignalText(signal, plain) + "  " + HistoryText(m_history, plain));
}

void LiveView::Line(const std::string& text)
{
    ClearSignalLine();
    m_output.out() << ElapsedText(m_now) << text << std::endl;
}

void LiveView::Finish(const std::string& text)
{
    // The signal line stays as it is, as the last thing that was seen.
    if (m_lineWidth > 0)
        m_output.out() << '\n';
    m_lineWidth = 0;
    m_output.out() << text << std::flush;
}

void LiveView::ClearSignalLine()
{
    if (m_lineWidth > 0)
        m_output.out() << '\r' << std::string(m_lineWidth, ' ') << '\r';
    m_lineWidth = 0;
}

} // namespace calvix::host
