#pragma once

#include "host/common_options.h"
#include "output/failure.h"

#include <calvix/wireless_manage.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace calvix::host
{

struct ConnectRequest;
class RecordedSession;
class ServiceView;
class WatchedCalls;

/// The library on a platform, created on demand: the system's own, a simulated computer if a scenario is given or there is
/// no other, or a recording.
class ComputerInUse
{
public:
    /// Trace lines go to `err` where they were asked for.
    ComputerInUse(const CommonOptions& options, std::ostream& err);
    ~ComputerInUse();
    ComputerInUse(const ComputerInUse&) = delete;
    ComputerInUse& operator=(const ComputerInUse&) = delete;

    const CommonOptions& options() const { return m_options; }

    /// The library. The first call brings up the platform; later calls are cheap.
    CWirelessManage& manager();
    /// The WLAN service as this program itself looks at it, for what the library has no method for.
    ServiceView& service();
    /// What the library asked of the platform since `manager()` was last called, and what was refused.
    const WatchedCalls& watched();
    /// Lets time pass, simulated time where the computer is. Ends early after Ctrl-C.
    void Wait(unsigned milliseconds);
    /// Has `action` called again and again while time passes, in the library's own waits too, with the milliseconds
    /// since the last time. An empty one ends it.
    void WhileWaiting(std::function<void(unsigned)> action);
    /// Whether the computer is a simulated one that this program has put up, or was when it was recorded.
    bool isSimulated();
    /// Whether time is what waits add up to, and no clock on the wall: on a simulated computer, and in recordings, which
    /// are to be the same each time.
    bool countsTime();
    bool isReplay();

    /// Carries out `action` and returns what the library traced meanwhile.
    std::string CaptureTrace(const std::function<void()>& action);
    /// Carries out `action` with connection requests withheld and nothing traced, and returns the requests.
    std::vector<ConnectRequest> Rehearse(const std::function<void()>& action);

    /// Fails in words when `code`, the result of `method`, is negative; returns it otherwise. Written around a call:
    /// `host.Check("GetMatchAPList", host.manager().GetMatchAPList(host.adapterGuid(), &list))`.
    int Check(const char* method, long code);
    /// The same where 0 is the only success.
    void Require(const char* method, long code);
    /// Fails with `message` where the system refused one of these operations to a method whose result does not show it.
    void RequireNotRefused(std::initializer_list<const char*> operations,
                           const char* method,
                           std::optional<int> code,
                           const std::string& message);
    /// The failure of a method, with what the platform refused on the way.
    Failure MethodFailure(const char* method, long code);

    /// Writes the simulated computer in its present state to the file of --save, if there is one.
    void Save();

    /// Fails where a recording was named and the command had no use for it.
    void RequireSession();
    /// At the command's end: releases the library and the platform of a replay, and returns the difference or
    /// damage that ended it. Later failures of the command only follow from it.
    std::optional<FailureReport> EndReplay();
    /// The same for a recording, after everything else; what cannot be written is a Failure.
    void EndRecording();
    /// The command line that replays an anonymised recording, after its end; empty where none was made.
    std::string ReplayLine(const std::vector<std::string>& arguments) const;

private:
    struct Opened;

    Opened& opened();

    CommonOptions m_options;
    std::ostream& m_traced;
    std::unique_ptr<RecordedSession> m_session; ///< outlives what is opened, whose last calls are part of it
    std::unique_ptr<Opened> m_opened;
};

} // namespace calvix::host
