#pragma once

#include "wrappers/recording/fields.h"

#include <functional>

namespace calvix::recording
{

/// One call of a platform operation, described once for both directions.
struct TapedCall
{
    const char* operation;
    const std::function<void(Fields&)>& arguments; ///< only ever written
    const std::function<void()>& forward;          ///< makes the call
    const std::function<void(Fields&)>& results;   ///< written after the call, or read in its place
};

/// What stands behind a taped platform: a recorder, which makes the calls and writes them down, or a replay, which answers
/// them from a recording.
class Tape
{
public:
    virtual ~Tape() = default;

    Holdings& holdings() { return m_holdings; }

    /// False where the call has no answer.
    virtual bool Pass(const TapedCall& call) = 0;

    /// A registration for notifications, through which they pass.
    struct Listener
    {
        WLAN_NOTIFICATION_CALLBACK callback = nullptr;
        PVOID context = nullptr;
    };
    /// Has `client` listen, for the service (while recording) or for the lines of the recording; returns what is to be
    /// registered in the listener's place.
    virtual Listener Listen(HANDLE client, const Listener& listener) = 0;

    /// A text for the debugger, which a recording tells of and a replay does without: a session may be replayed with
    /// tracing on that was recorded with tracing off.
    virtual void Remark(const char* operation, const char* text, const std::function<void()>& forward) = 0;

protected:
    explicit Tape(Holdings::Source source) : m_holdings(source) {}

private:
    Holdings m_holdings;
};

} // namespace calvix::recording
