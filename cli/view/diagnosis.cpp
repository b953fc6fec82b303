#include "view/diagnosis.h"

#include "core/wlan_records.h"
#include "explain/failure_words.h"
#include "explain/platform_errors.h"
#include "explain/result_codes.h"
#include "host/service_view.h"
#include "output/text_forms.h"
#include "platform/platform.h"
#include "view/describe.h"
#include "view/radio_view.h"
#include "view/status.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

using Networks = std::vector<WLAN_AVAILABLE_NETWORK>;

constexpr std::uint32_t kNotReady = 21;
constexpr std::uint32_t kRadioOff = 0x80342002;
constexpr unsigned long kWeakQuality = 30;

/// The result of a check.
struct Answer
{
    std::string finding;
    Verdict verdict = Verdict::ok;
    std::string advice{};
};

Answer Warning(Cause cause)
{
    const CauseText& text = host::Describe(cause);
    return {text.meaning, Verdict::warning, text.advice};
}

/// What the service control manager says of the WLAN service: "running".
std::string ServiceStateText()
{
    platform::ServiceControl& services = platform::services();
    const auto refused = []
    { return DescribePlatformError(static_cast<std::uint32_t>(platform::errors().GetLastError())); };
    const SC_HANDLE manager = services.OpenSCManagerA(nullptr, nullptr, SC_MANAGER_CONNECT);
    if (manager == nullptr)
        return refused();
    std::string text;
    SERVICE_STATUS status{};
    const SC_HANDLE service = services.OpenServiceA(manager, "WlanSvc", SERVICE_QUERY_STATUS);
    if (service == nullptr || !services.QueryServiceStatus(service, &status))
        text = refused();
    else if (status.dwCurrentState == SERVICE_RUNNING)
        text = "running";
    else
        text = status.dwCurrentState == SERVICE_STOPPED ? "stopped" : "starting or stopping";
    if (service != nullptr)
        services.CloseServiceHandle(service);
    services.CloseServiceHandle(manager);
    return text;
}

bool IsApiMissing(std::uint32_t error)
{
    return error == ERROR_MOD_NOT_FOUND || error == ERROR_PROC_NOT_FOUND;
}

std::string Listed(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + VisibleText(name);
    return text;
}

class Doctor
{
public:
    explicit Doctor(Host& host) : m_host(host) {}

    bool AskService()
    {
        m_host.manager();
        try
        {
            m_host.service();
        }
        catch (const Failure& failure)
        {
            NoteRefusedService(failure.report());
            return false;
        }
        Note("WLAN API", {"present"});
        // The service answered, so the service control manager need not be asked.
        Note("WLAN service", {"answers"});
        return true;
    }

    void AskAdapters()
    {
        std::vector<WLAN_INTERFACE_INFO> adapters;
        if (!Tried("Adapter", [&] { adapters = m_host.adapters(); }))
            return;
        const bool all = m_host.options().adapter.empty();
        // A wrong --interface ends the command: it is bad input.
        const GUID wanted = all ? GUID{} : *m_host.adapterGuid();
        for (const WLAN_INTERFACE_INFO& info : adapters)
        {
            ++m_adapter;
            if (all || IsEqualGUID(info.InterfaceGuid, wanted))
                AskAdapter(info);
        }
        m_adapter = 0;
    }

    void AskInternet()
    {
        Ask("Internet",
            [&]
            {
                m_host.Require("OpenUrl", m_host.manager().OpenUrl());
                return Answer{"can be reached"};
            });
    }

    Diagnosis diagnosis;

private:
    void Note(const char* check, const Answer& answer)
    {
        diagnosis.checks.push_back({m_adapter, check, answer.verdict, answer.finding, answer.advice});
    }

    void NoteFailure(const char* check, const FailureReport& report)
    {
        Note(check, {report.message, Verdict::failed, report.advice});
        if (diagnosis.exitCode == ExitCode::success)
            diagnosis.exitCode = report.exitCode;
    }

    /// Carries out `action`; its failure is the check's.
    template <typename Action>
    bool Tried(const char* check, Action action)
    {
        try
        {
            action();
            return true;
        }
        catch (const Failure& failure)
        {
            NoteFailure(check, failure.report());
            return false;
        }
    }

    template <typename Action>
    void Ask(const char* check, Action action)
    {
        Tried(check, [&] { Note(check, action()); });
    }

    void NoteRefusedService(FailureReport report)
    {
        if (IsApiMissing(report.platformError))
            return NoteFailure("WLAN API", report);
        Note("WLAN API", {"present"});
        report.message += "; the service control manager says of WlanSvc: " + ServiceStateText();
        NoteFailure("WLAN service", report);
    }

    void AskAdapter(const WLAN_INTERFACE_INFO& info)
    {
        const GUID* const adapter = &info.InterfaceGuid;
        const AdapterFacts facts = DescribeAdapter(info, m_adapter);
        const bool ready = info.isState != wlan_interface_state_not_ready;
        Note("Adapter", {VisibleText(facts.description) + ", " + facts.stateText,
                         ready ? Verdict::ok : Verdict::warning, ready ? "" : AdviseOnPlatformError(kNotReady)});
        // While the radio is off, only the profiles can be read.
        std::optional<Networks> networks;
        if (AskRadio(adapter))
            networks = AskAir(adapter);
        Ask("Profiles", [&] { return FindProfiles(adapter, networks); });
        if (networks)
            Ask("Connection", [&] { return FindConnection(adapter); });
    }

    /// Whether the radio is on; yes if it does not report that.
    bool AskRadio(const GUID* adapter)
    {
        RadioFacts radio;
        if (!Tried("Radio", [&] { radio = ReadRadio(m_host, adapter); }))
            return true;
        const std::string switches = "software switch " + radio.software + ", hardware switch " + radio.hardware;
        const std::string advice = radio.hardware == "off" ? kUseHardwareSwitch : AdviseOnPlatformError(kRadioOff);
        if (radio.on)
            Note("Radio", {"on: " + switches});
        else
            NoteFailure("Radio", OperationFailure("off: " + switches, advice).report());
        return radio.on;
    }

    /// The networks in view; none if the service refuses to list them.
    std::optional<Networks> AskAir(const GUID* adapter)
    {
        Networks networks;
        try
        {
            networks = m_host.service().Networks(adapter);
        }
        catch (const Failure& failure)
        {
            const bool denied = failure.report().platformError == ERROR_ACCESS_DENIED;
            NoteFailure(denied ? "Location" : "Networks", failure.report());
            return std::nullopt;
        }
        Note("Location", {"access is allowed"});
        Ask("Scan",
            [&]
            {
                unsigned long error = 0;
                m_host.Check("Rescan", m_host.manager().Rescan(adapter, error));
                return Answer{"accepted"};
            });
        Ask("Networks", [&] { return FindNetworks(adapter, networks); });
        return networks;
    }

    Answer FindNetworks(const GUID* adapter, const Networks& networks)
    {
        if (networks.empty())
            return Warning(Cause::networkListEmpty);
        std::uint64_t newest = 0;
        const std::vector<HeardAccessPoint> accessPoints = m_host.service().AccessPoints(adapter);
        for (const HeardAccessPoint& each : accessPoints)
            newest = (std::max)(newest, std::uint64_t{each.entry.ullHostTimestamp});
        const std::string moment = MomentText(newest);
        return {Counted(networks.size(), "network") + ", " + Counted(accessPoints.size(), "access point") + " in view" +
                (moment.empty() ? "" : ", heard last at " + moment)};
    }

    Answer FindProfiles(const GUID* adapter, const std::optional<Networks>& networks)
    {
        const std::vector<WLAN_PROFILE_INFO> profiles = m_host.service().Profiles(adapter);
        if (profiles.empty())
            return Warning(Cause::noProfile);
        std::vector<std::string> inView;
        std::vector<std::string> unreadable;
        Answer answer{std::to_string(profiles.size()) + " stored"};
        for (const WLAN_PROFILE_INFO& profile : profiles)
        {
            const std::wstring name(FixedText(profile.strProfileName));
            if (const int code = m_host.manager().GetProfile(adapter, name.c_str()); code != 0)
            {
                answer.advice = m_host.MethodFailure("GetProfile", code).report().advice;
                unreadable.push_back(Narrow(name));
            }
            const auto carriesIt = [&name](const WLAN_AVAILABLE_NETWORK& network)
            { return FixedText(network.strProfileName) == name; };
            if (networks && std::any_of(networks->begin(), networks->end(), carriesIt))
                inView.push_back(Narrow(name));
        }
        if (networks)
            answer.finding += inView.empty() ? ", none in view" : ", in view: " + Listed(inView);
        if (!unreadable.empty())
            answer.finding += "; cannot be read: " + Listed(unreadable);
        else if (networks && inView.empty())
            answer.advice = host::Describe(Cause::nothingMatches).advice;
        answer.verdict = answer.advice.empty() ? Verdict::ok : Verdict::warning;
        return answer;
    }

    Answer FindConnection(const GUID* adapter)
    {
        const auto attributes = m_host.service().Connection(adapter);
        if (!attributes)
            return {"none", Verdict::warning, "join a network: calvix best, or calvix connect PROFILE"};
        const ConnectionFacts connection = DescribeConnection(*attributes);
        Answer answer{connection.ssid.text + " at " + connection.bssid + ", signal " +
                      std::to_string(connection.quality) + "%"};
        if (connection.quality < kWeakQuality)
            answer = {answer.finding + ", which is weak", Verdict::warning,
                      "go closer to the access point, or look for a better one: calvix roam"};
        return answer;
    }

    Host& m_host;
    unsigned m_adapter = 0; ///< that is being asked about
};

} // namespace

Diagnosis Diagnose(Host& host)
{
    Doctor doctor(host);
    if (doctor.AskService())
        doctor.AskAdapters();
    doctor.AskInternet();
    return doctor.diagnosis;
}

} // namespace calvix::host
