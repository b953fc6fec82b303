#pragma once

#include "platform/platform.h"

#include <memory>
#include <ostream>
#include <string>

namespace calvix::recording
{

/// The content of the first line of a recording.
struct Header
{
    bool simulated = false;  ///< of a simulated computer
    bool anonymised = false; ///< names and addresses are invented
};

/// Writes every call that passes a platform down, with its arguments and results, and the notifications between them, one
/// line each (docs/recordings.md describes the form). Keys are masked always. An anonymised recording is written at the end,
/// when all names are known; any other line by line, so that it is useful after a crash.
///
/// Calls may come from any thread, but only a session of one thread can be replayed for certain. A notification that comes
/// while no call is under way waits for the next one, a second at most, so that its place in the recording is a certain
/// one; a call waits as long for the callbacks that are running.
class Recorder
{
public:
    /// `inner` makes the calls; it and `file` outlive this object.
    Recorder(platform::Platform& inner, std::ostream& file, const Header& header);
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// The platform for the program that is recorded. It must not be used after this object's end.
    platform::Platform& platform();

    /// Notes an event from outside, which a replay reports at the same place (Replay::AtMark).
    void Mark(const std::string& text);

    /// A text of the program's, such as its command line, with the names that an anonymised recording has once it is finished.
    std::string InRecording(const std::string& text) const;

    /// Writes the last line; nothing is recorded from here on.
    void Finish();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace calvix::recording
