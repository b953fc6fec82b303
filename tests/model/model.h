#pragma once

#include "model/plain_service.h"
#include "support/result_code.h"

namespace calvix::test
{

/// What the methods that match, rank, walk and pick have to do, step by step in the plainest way there is. Each is asked
/// once, of a model made for it; the arguments are those of the world's caller.
class Model
{
public:
    Model(const World& world, platform::WlanService& service, HANDLE client, std::string method)
        : m_world(world), m_service(world, service, client), m_method(std::move(method))
    {
    }

    Outcome GetMatchAPList();
    Outcome GetConnectableAPList();
    Outcome GetConnectableAPListOfFirst();
    Outcome GetMatchAPCount();
    Outcome GetMatchAPCountWithName();

    Outcome ConnectBestAP(bool byList, bool byName);
    Outcome AutoConnectEx();
    /// Whether the candidates were tried in another order than their qualities alone give.
    bool BonusChangedTheOrder() const { return m_bonusChangedTheOrder; }

    Outcome AutoConnect();
    Outcome AutoSwitch();
    Outcome SmartSwitch();
    Outcome SmartConnecting();
    Outcome ConnectAutoMode();

    Outcome PreRoaming();
    Outcome Roaming();
    Outcome Reconnect();

private:
    using Cause = host::Cause;

    enum class Filter
    {
        none,
        automatic,
        automaticOrNamed
    };

    Outcome Collect(int adapter, Filter filter, bool wantsNames);
    Outcome Rank(bool byList, bool byName, bool automaticOnly);
    Outcome Roam(bool connects);
    /// Requests every matching pair until one is accepted; whether there was one.
    bool Walk(const std::vector<std::wstring>& profiles, const std::vector<Network>& networks);

    bool IsAutomatic(int adapter, const std::wstring& profile);
    bool IsExcluded(const Network& network) const;
    /// Converts an SSID as far as its first zero byte; 0 or the platform's error number.
    DWORD SsidText(const std::string& ssid, std::wstring& text) const;

    Outcome Ended(long long code) { return {.code = code, .events = m_service.Events()}; }
    Outcome Failed(Cause cause) { return Ended(CodeOf(m_method, cause)); }
    /// For the methods that hand the platform's error numbers on.
    Outcome EndedBy(DWORD error) { return Ended(static_cast<long long>(error)); }

    const World& m_world;
    PlainService m_service;
    std::string m_method;
    bool m_bonusChangedTheOrder = false;
};

} // namespace calvix::test
