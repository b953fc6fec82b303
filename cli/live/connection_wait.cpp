#include "live/connection_wait.h"

#include "core/wlan_records.h"
#include "explain/failure_words.h"
#include "explain/platform_errors.h"
#include "explain/reason_words.h"
#include "host/interrupt.h"
#include "host/service_view.h"
#include "live/progress.h"
#include "output/text_forms.h"
#include "view/describe.h"
#include "view/status.h"

#include <optional>

namespace calvix::host
{

namespace
{

constexpr unsigned kWaitStepMilliseconds = 100;

/// The request that was accepted; they end with it.
ConnectRequest AcceptedRequest(Host& host)
{
    const std::vector<ConnectRequest>& requests = host.watched().ConnectRequests();
    if (requests.empty())
        throw OperationFailure("no connection was requested", "scan, and check the stored profiles");
    if (requests.back().error == 0)
        return requests.back();
    // The methods that try several networks report success even if the service refused each request.
    Failure refused = ServiceFailure("WlanConnect", requests.back().error);
    FailureReport report = refused.report();
    report.message = "the connection by " + Quoted(requests.back().profile) + " was refused: " + report.message;
    throw Failure(report);
}

Failure NeverConnected(const ConnectRequest& request, unsigned seconds)
{
    return OperationFailure("the request for " + Quoted(request.profile) +
                                " was accepted, but the connection was not made within " + Counted(seconds, "second"),
                            "check the passphrase in the profile and the signal, or wait longer with --timeout");
}

/// What the notifications say of a request: nothing yet, or the reason code of its completion.
class ReportedOutcome
{
public:
    explicit ReportedOutcome(const ConnectRequest& request) : m_request(request) {}

    void Look(const Notice& notice)
    {
        if (!notice.ofConnection || !IsEqualGUID(notice.adapter, m_request.adapter) ||
            notice.profile != m_request.profile)
            return;
        // Earlier notifications belong to an attempt that this one has replaced.
        if (notice.code == wlan_notification_acm_connection_start)
            m_reason.reset();
        else if (notice.code == wlan_notification_acm_connection_complete)
            m_reason = notice.reason;
    }

    const std::optional<DWORD>& reason() const { return m_reason; }

private:
    const ConnectRequest& m_request;
    std::optional<DWORD> m_reason;
};

/// Notifications get lost on busy computers: in the end the state of the connection decides.
bool IsConnectedNow(Host& host, const ConnectRequest& request)
{
    const auto connection = host.service().Connection(&request.adapter);
    return connection && IsConnectedState(connection->isState) &&
           FixedText(connection->strProfileName) == request.profile;
}

} // namespace

std::string Quoted(const std::wstring& profile)
{
    return '"' + VisibleText(Narrow(profile)) + '"';
}

Failure ReasonFailure(Host& host, const std::string& what, DWORD reasonCode)
{
    const ReasonAdvice known = AdviseOnReason(reasonCode);
    FailureReport report;
    report.reasonCode = static_cast<std::uint32_t>(reasonCode);
    report.reason = ReasonInServiceWords(host.manager(), reasonCode);
    report.message = what;
    if (!known.meaning.empty())
        report.message += ": " + known.meaning;
    report.message += ". The service says: " + report.reason;
    report.advice = known.advice;
    return Failure(report);
}

bool WaitUntil(Host& host, unsigned seconds, const std::function<bool()>& look, unsigned* waited)
{
    unsigned milliseconds = 0;
    for (; !look(); milliseconds += kWaitStepMilliseconds)
    {
        if (milliseconds >= seconds * 1000)
            return false;
        host.Wait(kWaitStepMilliseconds);
        if (Interrupted())
            throw OperationFailure("interrupted", "the request continues without this program");
    }
    if (waited != nullptr)
        *waited = milliseconds;
    return true;
}

ConnectRequest ConnectionWait::Finish(unsigned seconds)
{
    ConnectRequest request = AcceptedRequest(m_host);
    ReportedOutcome outcome(request);
    const Progress progress(m_host, "Requested " + Quoted(request.profile) + ", waiting for the connection");
    const bool reported = WaitUntil(m_host, seconds,
                                    [&]
                                    {
                                        for (const Notice& notice : m_notifications.Take())
                                            outcome.Look(notice);
                                        return outcome.reason().has_value();
                                    });
    if (reported && *outcome.reason() != WLAN_REASON_CODE_SUCCESS)
        throw ReasonFailure(m_host, "the connection by " + Quoted(request.profile) + " was not made",
                            *outcome.reason());
    if (!reported && !IsConnectedNow(m_host, request))
        throw NeverConnected(request, seconds);
    return request;
}

ConnectRequest ConnectAndWait(Host& host, unsigned seconds, const std::function<void()>& ask)
{
    ConnectionWait wait(host);
    ask();
    return wait.Finish(seconds);
}

} // namespace calvix::host
