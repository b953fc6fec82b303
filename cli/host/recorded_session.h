#pragma once

#include "host/common_options.h"
#include "output/failure.h"
#include "wrappers/recording/recorder.h"
#include "wrappers/recording/replay.h"

#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace calvix::host
{

/// The recording that a command writes, or is answered from. Ctrl-C is part of it.
class RecordedSession
{
public:
    /// Opens what the options name, if anything. A file that cannot be used is a Failure.
    explicit RecordedSession(const CommonOptions& options);
    ~RecordedSession();
    RecordedSession(const RecordedSession&) = delete;
    RecordedSession& operator=(const RecordedSession&) = delete;

    bool isRecording() const { return !m_path.empty(); }
    bool isReplay() const { return m_replay != nullptr; }
    /// Whether what is replayed was recorded on a simulated computer.
    bool isOfSimulated() const { return isReplay() && m_replay->header().simulated; }

    /// The platform that answers in a replay.
    platform::Platform& replayed() { return m_replay->platform(); }
    /// `inner`, recorded where that was asked for.
    platform::Platform& Recorded(platform::Platform& inner, bool simulated);

    /// When the command is done with the platform: the difference or damage that ended the replay.
    std::optional<FailureReport> EndReplay();
    /// The same for a recording, whose file is complete then. A file that could not be written is a Failure.
    void EndRecording();
    /// The command line that replays a finished recording, from the one that was recorded.
    std::string ReplayLine(const std::vector<std::string>& arguments) const;

private:
    std::string m_path;
    bool m_anonymise;
    std::ofstream m_file;
    std::unique_ptr<recording::Recorder> m_recorder;
    std::unique_ptr<recording::Replay> m_replay;
};

} // namespace calvix::host
