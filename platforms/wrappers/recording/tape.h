#pragma once

#include "wrappers/recording/fields.h"

namespace calvix::recording
{

/// One call of a platform operation, described once for both directions.
class TapedCall
{
public:
    explicit TapedCall(const char* operation) : m_operation(operation) {}

    const char* operation() const { return m_operation; }

    virtual void Give(Fields& arguments) = 0;   ///< only ever written
    virtual void Forward() = 0;                 ///< makes the call
    virtual void Describe(Fields& results) = 0; ///< written after the call, or read in its place

protected:
    ~TapedCall() = default;

private:
    const char* m_operation;
};

/// What handles the calls of a taped platform: a recorder, which makes the calls and writes them down, or a replay, which answers
/// them from a recording.
class Tape
{
public:
    virtual ~Tape() = default;

    Holdings& holdings() { return m_holdings; }

    /// False where the call has no answer.
    virtual bool Pass(TapedCall& call) = 0;

    /// A registration for notifications, through which they pass.
    struct Listener
    {
        WLAN_NOTIFICATION_CALLBACK callback = nullptr;
        PVOID context = nullptr;
    };
    /// Has `client` listen, for the service (while recording) or for the lines of the recording; returns what is to be
    /// registered in the listener's place.
    virtual Listener Listen(HANDLE client, const Listener& listener) = 0;

    /// A text for the debugger, which a recording contains and a replay ignores: a session may be replayed with
    /// tracing on that was recorded with tracing off.
    virtual void Remark(TapedCall& call, const char* text) = 0;

protected:
    explicit Tape(Holdings::Source source) : m_holdings(source) {}

private:
    Holdings m_holdings;
};

} // namespace calvix::recording
