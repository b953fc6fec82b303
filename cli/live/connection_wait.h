#pragma once

#include "host/host.h"
#include "host/watched_calls.h"
#include "live/notifications.h"

#include <functional>
#include <string>

namespace calvix::host
{

/// Waits for the outcome of a connection that the library asks for after this was made.
class ConnectionWait
{
public:
    explicit ConnectionWait(Host& host) : m_host(host), m_notifications(host) {}

    /// Waits until the service reports the result of the library's last request. Returns the request that the
    /// service accepted. A connection that is refused, fails, or is not made in time is a Failure that says why.
    ConnectRequest Finish(unsigned seconds);

private:
    Host& m_host;
    Notifications m_notifications;
};

/// Has a connection made: carries out `ask`, which asks the library for it, and waits for the outcome.
ConnectRequest ConnectAndWait(Host& host, unsigned seconds, const std::function<void()>& ask);

/// Lets time pass in small steps until `look` says true. Whether it did in time; `waited`, if not null, receives the
/// milliseconds. Ctrl-C is a Failure.
bool WaitUntil(Host& host, unsigned seconds, const std::function<bool()>& look, unsigned* waited = nullptr);

/// A failure for which the service has given a reason: what happened, the reason in our words and in the service's.
Failure ReasonFailure(Host& host, const std::string& what, DWORD reasonCode);

/// "\"Office\"" for messages.
std::string Quoted(const std::wstring& profile);

} // namespace calvix::host
