#pragma once

#include "model/plain_service.h"
#include "support/result_code.h"

#include <functional>
#include <optional>
#include <span>

namespace calvix::test
{

/// What the methods that match, rank, walk and pick have to do, step by step in the plainest way there is. Each is asked
/// once, of a model made for it; the arguments are those of the situation's caller.
class Model
{
public:
    enum class Adapter
    {
        asked,
        first
    };
    enum class Filter
    {
        none,
        automatic,
        automaticOrNamed
    };

    Model(const Situation& situation, PlainService& service, std::string method)
        : m_situation(situation), m_service(service), m_method(std::move(method))
    {
    }

    Outcome CollectEntries(Adapter which, Filter filter);
    Outcome CollectNames(Filter inModeOne);

    Outcome ConnectBestAP(bool byList, bool byName) { return Rank(byList, byName, true); }
    Outcome AutoConnectEx() { return Rank(false, false, false); }
    /// Whether the candidates were tried in another order than their qualities alone give.
    bool BonusChangedTheOrder() const { return m_bonusChangedTheOrder; }

    Outcome AutoConnect();
    Outcome AutoSwitch();
    Outcome SmartSwitch();
    Outcome SmartConnecting();
    Outcome ConnectAutoMode();

    Outcome Roam(bool connects);
    Outcome Reconnect();

private:
    using Cause = host::Cause;

    /// The two lists that most methods begin with; the platform's error number.
    DWORD ListProfiles(int adapter);
    DWORD ListNetworks(int adapter);
    /// Lists both, and what the method ends with if one of them fails or is empty.
    std::optional<Outcome> FailureToList(int adapter);
    /// The networks of the first profile, of the second and so on.
    std::vector<Network> Matches() const;

    /// Takes what it wants of a matching network's entries; how many there are of it.
    using Take = std::function<std::size_t(const Network& network, const std::vector<Heard>& entries)>;
    Outcome Collect(Adapter which, Filter filter, const Take& take);
    Outcome Rank(bool byList, bool byName, bool automaticOnly);
    /// Requests every matching pair until one is accepted; fails if there is none.
    Outcome Walk();

    bool IsAutomatic(int adapter, const std::wstring& profile);
    bool IsExcluded(const Network& network) const;
    /// Converts an SSID as far as its first zero byte; 0 or the platform's error number.
    DWORD SsidText(const std::string& ssid, std::wstring& text) const;

    Outcome Ended(long long code) { return {.code = code, .events = m_service.TakeEvents()}; }
    Outcome Failed(Cause cause) { return Ended(CodeOf(m_method, cause)); }
    /// For the methods that hand the platform's error numbers on.
    Outcome EndedBy(DWORD error) { return Ended(static_cast<long long>(error)); }

    const Situation& m_situation;
    PlainService& m_service;
    std::string m_method;
    std::span<const std::wstring> m_profiles;
    std::span<const Network> m_networks;
    bool m_bonusChangedTheOrder = false;
};

} // namespace calvix::test
