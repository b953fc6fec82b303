#include "host/recorded_session.h"

#include "files/file_path.h"
#include "host/interrupt.h"

namespace calvix::host
{

namespace
{

std::unique_ptr<recording::Replay> OpenReplay(const std::string& path)
{
    std::ifstream file(PathOf(path), std::ios::binary);
    if (!file)
        throw BadInput(path + ": cannot be read", "check the path and its permissions");
    try
    {
        return std::make_unique<recording::Replay>(file, path);
    }
    catch (const recording::RecordingError& error)
    {
        throw BadInput(error.what(), "make the recording again, with: calvix --record FILE COMMAND");
    }
}

FailureReport InWords(const recording::ReplayTrouble& trouble)
{
    FailureReport report;
    const bool differs = trouble.kind == recording::ReplayTrouble::Kind::differs;
    report.exitCode = differs ? ExitCode::differs : ExitCode::badInput;
    report.message = trouble.text;
    report.advice = differs ? "replay the recorded command with the same options; if you did, this program "
                              "now behaves differently"
                            : "make the recording again";
    return report;
}

std::string InQuotes(const std::string& word)
{
    return word.find(' ') == std::string::npos ? word : '"' + word + '"';
}

} // namespace

RecordedSession::RecordedSession(const CommonOptions& options) : m_path(options.record), m_anonymise(options.anonymise)
{
    if (isRecording())
    {
        m_file.open(PathOf(m_path), std::ios::binary);
        if (!m_file)
            throw BadInput(m_path + ": cannot be written", "check the path and its permissions");
    }
    if (options.replay.empty())
        return;
    m_replay = OpenReplay(options.replay);
    // After the replay's end the command stops, as after Ctrl-C, which is the only mark.
    m_replay->AtTrouble(RaiseInterrupt);
    m_replay->AtMark([](const std::string&) { RaiseInterrupt(); });
}

RecordedSession::~RecordedSession()
{
    WhenInterruptIsSeen(nullptr);
}

platform::Platform& RecordedSession::Recorded(platform::Platform& inner, bool simulated)
{
    if (!isRecording())
        return inner;
    m_recorder = std::make_unique<recording::Recorder>(inner, m_file, recording::Header{simulated, m_anonymise});
    WhenInterruptIsSeen([this] { m_recorder->Mark("interrupted"); });
    return m_recorder->platform();
}

std::optional<FailureReport> RecordedSession::EndReplay()
{
    if (m_replay == nullptr)
        return std::nullopt;
    const auto trouble = m_replay->Finish();
    return trouble ? std::optional(InWords(*trouble)) : std::nullopt;
}

void RecordedSession::EndRecording()
{
    if (m_recorder != nullptr)
        m_recorder->Finish();
    m_file.close();
    if (isRecording() && !m_file)
        throw BadInput(m_path + ": cannot be written completely", "check the free space on the disk");
}

std::string RecordedSession::ReplayLine(const std::vector<std::string>& arguments) const
{
    std::string line = "calvix";
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        const std::string& word = arguments[i];
        const std::string option = word.substr(0, word.find('='));
        if (option == "--record" || option == "--scenario" || option == "--save")
            i += option == word ? 1U : 0U;
        else if (option != "--anonymise")
            line += ' ' + InQuotes(m_recorder->InRecording(word));
    }
    return line + " --replay " + InQuotes(m_path);
}

} // namespace calvix::host
