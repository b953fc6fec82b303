#pragma once

#include "platform/platform.h"
#include "wrappers/recording/recorder.h"

#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace calvix::recording
{

/// A recording that cannot be used: "session.jsonl:12: ...".
class RecordingError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Why a replay has come to an end before the program has.
struct ReplayTrouble
{
    enum class Kind
    {
        differs, ///< the program makes another call than the recorded one
        damaged  ///< the recording cannot be read any further
    };

    Kind kind = Kind::differs;
    std::string text; ///< "session.jsonl:12: the program differs from the recording here: ..."
};

/// Answers every call from a recording, on any system. Waiting takes no time. Notifications come, in the calls in which
/// they came, on the thread that calls.
///
/// A call that is not the recorded one, or has other arguments, ends the replay: this call and all that follow fail
/// (error numbers are ERROR_CANCELLED) and change nothing, until the program ends in its own way. Texts for the debugger
/// do not count. The calls may come from any thread, one after the other as they were recorded.
class Replay
{
public:
    /// Reads it all. `name` is the file's, for messages. Throws RecordingError.
    Replay(std::istream& recording, const std::string& name);
    ~Replay();
    Replay(const Replay&) = delete;
    Replay& operator=(const Replay&) = delete;

    const Header& header() const;

    /// The platform for the program, for as long as this object lives.
    platform::Platform& platform();

    /// Has `action` called, once, when the program differs from the recording or the recording is damaged.
    void AtTrouble(std::function<void()> action);
    /// Calls `action` with the text of each mark, after the call that it follows (Recorder::Mark).
    void AtMark(std::function<void(const std::string&)> action);

    /// What ended the replay so far.
    std::optional<ReplayTrouble> Trouble() const;
    /// Call it when the program is done: a recording that goes on is a difference, too.
    std::optional<ReplayTrouble> Finish();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace calvix::recording
