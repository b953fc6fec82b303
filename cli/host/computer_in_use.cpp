#include "host/computer_in_use.h"

#include "core/trace.h"
#include "explain/failure_words.h"
#include "files/files.h"
#include "host/recorded_session.h"
#include "host/service_view.h"
#include "host/watched_platform.h"
#include "platform/platform.h"
#include "simulation/computer.h"

namespace calvix::host
{

namespace
{

/// Whether a platform is in place already; then it is used, unless a scenario is given.
bool IsPlatformGiven()
{
#if defined(_WIN32)
    return true;
#else
    return platform::g_pReplacement.load() != nullptr;
#endif
}

std::unique_ptr<simulation::Computer> MakeComputer(const std::string& scenario)
{
    try
    {
        if (!scenario.empty())
            return std::make_unique<simulation::Computer>(simulation::ParseScenario(ReadTextFile(scenario), scenario));
        if (IsPlatformGiven())
            return nullptr;
        return std::make_unique<simulation::Computer>(simulation::BuiltInScenario());
    }
    catch (const simulation::ScenarioError& error)
    {
        throw BadInput(error.what(), "correct the scenario file; its schema describes every field");
    }
}

/// Puts a platform in place for the library, and restores the one before.
class PlatformInPlace
{
public:
    explicit PlatformInPlace(platform::Platform& platform) : m_before(platform::ReplacePlatform(&platform)) {}
    ~PlatformInPlace() { platform::ReplacePlatform(m_before); }
    PlatformInPlace(const PlatformInPlace&) = delete;
    PlatformInPlace& operator=(const PlatformInPlace&) = delete;

private:
    platform::Platform* m_before;
};

/// Switches the library's trace on or off, and back at the end.
class TraceSwitch
{
public:
    explicit TraceSwitch(bool on) : m_before(g_bTraceOn) { g_bTraceOn = on ? 1 : 0; }
    ~TraceSwitch() { g_bTraceOn = m_before; }
    TraceSwitch(const TraceSwitch&) = delete;
    TraceSwitch& operator=(const TraceSwitch&) = delete;

private:
    unsigned char m_before;
};

/// The library from its first Get to its Delete.
class LibraryInUse
{
public:
    LibraryInUse()
    {
        if (m_library == nullptr)
            throw OperationFailure("there is not enough memory for the library", "close other programs");
    }
    ~LibraryInUse() { CWirelessManage::Delete(); }
    LibraryInUse(const LibraryInUse&) = delete;
    LibraryInUse& operator=(const LibraryInUse&) = delete;

    CWirelessManage& operator*() const { return *m_library; }

private:
    CWirelessManage* m_library = CWirelessManage::Get();
};

} // namespace

/// Everything that a command needs for networks, in the order of its creation.
struct ComputerInUse::Opened
{
    Opened(const CommonOptions& options, RecordedSession& session, std::ostream& err)
        : computer(session.isReplay() ? nullptr : MakeComputer(options.scenario)),
          watched(Answering(session), options.trace ? &err : nullptr), inPlace(watched.platform()), trace(options.trace)
    {
    }

    platform::Platform& Answering(RecordedSession& session) const
    {
        if (session.isReplay())
            return session.replayed();
        return session.Recorded(computer ? *computer : platform::CurrentPlatform(), computer != nullptr);
    }

    std::unique_ptr<simulation::Computer> computer;
    WatchedPlatform watched;
    PlatformInPlace inPlace;
    TraceSwitch trace;
    LibraryInUse libraryInUse;
    std::unique_ptr<ServiceView> service;
};

ComputerInUse::ComputerInUse(const CommonOptions& options, std::ostream& err) : m_options(options), m_traced(err) {}

ComputerInUse::~ComputerInUse() = default;

ComputerInUse::Opened& ComputerInUse::opened()
{
    if (m_opened == nullptr)
    {
        m_session = std::make_unique<RecordedSession>(m_options);
        m_opened = std::make_unique<Opened>(m_options, *m_session, m_traced);
        if (!m_options.save.empty() && m_opened->computer == nullptr)
            throw BadInput("--save needs a simulated computer", "name one with --scenario FILE");
    }
    return *m_opened;
}

CWirelessManage& ComputerInUse::manager()
{
    Opened& current = opened();
    current.watched.calls().Forget();
    return *current.libraryInUse;
}

const WatchedCalls& ComputerInUse::watched()
{
    return opened().watched.calls();
}

ServiceView& ComputerInUse::service()
{
    Opened& current = opened();
    if (current.service == nullptr)
        current.service = std::make_unique<ServiceView>();
    return *current.service;
}

bool ComputerInUse::isSimulated()
{
    return opened().computer != nullptr || m_session->isOfSimulated();
}

bool ComputerInUse::countsTime()
{
    return isSimulated() || m_session->isRecording() || m_session->isReplay();
}

bool ComputerInUse::isReplay()
{
    opened();
    return m_session->isReplay();
}

void ComputerInUse::Wait(unsigned milliseconds)
{
    opened();
    platform::clock().Sleep(milliseconds);
}

void ComputerInUse::WhileWaiting(std::function<void(unsigned)> action)
{
    opened().watched.AfterEachStep(std::move(action));
}

std::string ComputerInUse::CaptureTrace(const std::function<void()>& action)
{
    std::string captured;
    const TraceSwitch on(true);
    opened().watched.CaptureTraceIn(&captured);
    action();
    opened().watched.CaptureTraceIn(nullptr);
    return captured;
}

std::vector<ConnectRequest> ComputerInUse::Rehearse(const std::function<void()>& action)
{
    const TraceSwitch off(false);
    opened().watched.Rehearse(true);
    action();
    opened().watched.Rehearse(false);
    return watched().ConnectRequests();
}

int ComputerInUse::Check(const char* method, long code)
{
    if (code < 0)
        throw MethodFailure(method, code);
    return static_cast<int>(code);
}

void ComputerInUse::Require(const char* method, long code)
{
    if (code != 0)
        throw MethodFailure(method, code);
}

Failure ComputerInUse::MethodFailure(const char* method, long code)
{
    const Refusal& refusal = watched().LastOfService();
    return MethodFailureInWords(method, code, refusal.operation.empty() ? watched().LastOfSystem() : refusal);
}

void ComputerInUse::RequireNotRefused(std::initializer_list<const char*> operations,
                                      const char* method,
                                      std::optional<int> code,
                                      const std::string& message)
{
    for (const char* operation : operations)
        if (const Refusal refusal = watched().OfSystem(operation); !refusal.operation.empty())
            throw SystemFailure(method, code, message, refusal);
}

void ComputerInUse::RequireSession()
{
    if (m_session != nullptr)
        return;
    if (!m_options.record.empty())
        throw BadInput("--record has nothing to write: this command uses no computer", "omit it");
    if (!m_options.replay.empty())
        throw BadInput("--replay has nothing to answer: this command uses no computer", "omit it");
}

std::optional<FailureReport> ComputerInUse::EndReplay()
{
    if (m_session == nullptr || !m_session->isReplay())
        return std::nullopt;
    m_opened.reset();
    return m_session->EndReplay();
}

void ComputerInUse::EndRecording()
{
    if (m_session == nullptr || !m_session->isRecording())
        return;
    m_opened.reset();
    m_session->EndRecording();
}

std::string ComputerInUse::ReplayLine(const std::vector<std::string>& arguments) const
{
    const bool isRecording = m_session != nullptr && m_session->isRecording();
    return m_options.anonymise && isRecording ? m_session->ReplayLine(arguments) : "";
}

void ComputerInUse::Save()
{
    if (m_options.save.empty())
        return;
    if (m_opened == nullptr)
        throw BadInput("--save has nothing to write: this command uses no simulated computer", "omit it");
    WriteWholeFile(m_options.save, simulation::WriteScenario(m_opened->computer->Snapshot()));
}

} // namespace calvix::host
