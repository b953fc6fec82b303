#include "view/roaming.h"

#include "explain/result_codes.h"
#include "host/service_view.h"
#include "host/watched_calls.h"
#include "output/text_forms.h"

namespace calvix::host
{

namespace
{

std::string CurrentAccessPoint(Host& host)
{
    const auto connection = host.service().Connection(host.adapterGuid());
    return connection ? MacText(connection->wlanAssociationAttributes.dot11Bssid) : std::string();
}

/// The access point that the library asked for, or, after a mere decision, would ask for.
std::string Target(Host& host, bool dryRun)
{
    const std::vector<ConnectRequest> requests =
        dryRun ? host.Rehearse([&host] { host.manager().Roaming(host.adapterGuid()); })
               : host.watched().ConnectRequests();
    return requests.empty() ? std::string() : requests.back().accessPoint;
}

std::string DecisionText(const std::optional<Cause>& obstacle)
{
    if (!obstacle)
        return "roam";
    return *obstacle == Cause::signalGoodEnough || *obstacle == Cause::alreadyThere ? "stay" : "none";
}

} // namespace

const char* RoamMethod(bool dryRun)
{
    return dryRun ? "PreRoaming" : "Roaming";
}

RoamFacts Roam(Host& host, bool dryRun)
{
    const GUID* const adapter = host.adapterGuid();
    RoamFacts facts;
    facts.from = CurrentAccessPoint(host);
    facts.code = dryRun ? host.manager().PreRoaming(adapter) : host.manager().Roaming(adapter);
    const char* const method = RoamMethod(dryRun);
    const std::optional<Cause> obstacle = FindCause(*FindMethod(method), facts.code);
    if (obstacle && *obstacle == Cause::clientNotOpened)
        throw host.MethodFailure(method, facts.code);
    facts.decision = DecisionText(obstacle);
    facts.why = obstacle ? Describe(*obstacle).meaning : "the network has a better access point";
    if (!obstacle)
        facts.to = Target(host, dryRun);
    return facts;
}

} // namespace calvix::host
