#pragma once

#include "output/facts.h"
#include "output/output.h"

#include <deque>
#include <string>

namespace calvix::host
{

/// A moment of the signal line.
struct SignalMoment
{
    unsigned long quality = 0;
    bool moved = false; ///< the link had moved to another access point
};

/// Shows what happens while it happens: on a terminal events above a signal line that draws itself, elsewhere plain
/// lines, with JSON one object a line.
class LiveView
{
public:
    explicit LiveView(Output& output) : m_output(output) {}
    ~LiveView();
    LiveView(const LiveView&) = delete;
    LiveView& operator=(const LiveView&) = delete;

    /// The moment of what is shown next.
    void At(unsigned long long milliseconds) { m_now = milliseconds; }
    void Show(const NoticeFacts& notice);
    /// Decisions that repeat the last one are left out of the text.
    void Show(const RoamFacts& roam);
    /// Notices by itself when the link has moved to another access point of its network.
    void Show(const SignalFacts& signal);

    /// A last line, without its moment.
    void Finish(const std::string& text);

    /// How often the link has moved.
    unsigned Moves() const { return m_moves; }

private:
    void Line(const std::string& text);
    void NoticeMove(const SignalFacts& signal);
    bool IsWorthALine(const SignalFacts& signal) const;
    void DrawSignalLine(const SignalFacts& signal);
    void ClearSignalLine();

    Output& m_output;
    unsigned long long m_now = 0;
    int m_lastRoamCode = 1; ///< no code of roaming
    SignalFacts m_lastLink; ///< the last that was connected
    SignalFacts m_lastShown;
    std::deque<SignalMoment> m_history;
    bool m_movedNow = false; ///< since the signal line was drawn
    std::size_t m_lineWidth = 0;
    unsigned m_moves = 0;
};

} // namespace calvix::host
