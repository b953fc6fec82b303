#pragma once

#include "wrappers/recording/fields.h"

#include <functional>
#include <type_traits>

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

    /// An operation with a result. `failed` is the answer where there is none to give. `results` names what the
    /// operation hands out beside its result; it is given the result, of which a number is told already and a handle not.
    template <typename Result, typename Forward, typename Arguments, typename Results>
    Result Pass(const char* operation, Result failed, Forward forward, Arguments arguments, Results results)
    {
        Result result = failed;
        const std::function<void(Fields&)> writeArguments = arguments;
        const std::function<void()> makeCall = [&] { result = forward(); };
        const std::function<void(Fields&)> describeResults = [&](Fields& fields)
        {
            if constexpr (!std::is_pointer_v<Result>)
                fields.Number("result", result);
            results(fields, result);
        };
        return Call({operation, writeArguments, makeCall, describeResults}) ? result : failed;
    }

    /// An operation that hands out nothing beside its result, a number.
    template <typename Result, typename Forward, typename Arguments>
    Result Pass(const char* operation, Result failed, Forward forward, Arguments arguments)
    {
        return Pass(operation, failed, forward, arguments, [](Fields&, Result&) {});
    }

    /// An operation without a result.
    template <typename Forward, typename Arguments>
    void Tell(const char* operation, Forward forward, Arguments arguments)
    {
        const std::function<void(Fields&)> writeArguments = arguments;
        const std::function<void()> makeCall = forward;
        const std::function<void(Fields&)> nothing = [](Fields&) {};
        Call({operation, writeArguments, makeCall, nothing});
    }

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

    /// False where the call has no answer.
    virtual bool Call(const TapedCall& call) = 0;

private:
    Holdings m_holdings;
};

/// What calls answer that a replay cannot answer any more: ERROR_CANCELLED.
inline constexpr DWORD kNoAnswer = 1223;

} // namespace calvix::recording
