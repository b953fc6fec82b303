#include "model/model.h"

namespace calvix::test
{

/// The last entry that is better than the first, or the first.
static const Heard& PickOf(const std::vector<Heard>& entries)
{
    std::size_t pick = 0;
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (entries[i].quality > entries[0].quality)
            pick = i;
    return entries[pick];
}

Outcome Model::Roam(bool connects)
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    const auto& [failure, link] = m_service.Connection(m_situation.asked);
    if (failure != 0)
        return Failed(Cause::notConnected);
    if (link.quality > 79)
        return Failed(Cause::signalGoodEnough);
    const auto& entries = m_service.Entries(m_situation.asked, link.ssid, link.bssType, link.secured);
    if (entries.error != 0)
        return Failed(Cause::bssListFailed);
    if (entries.data.empty())
        return Failed(Cause::noBssInView);
    const Heard& pick = PickOf(entries.data);
    if (pick.bssid == link.bssid)
        return Failed(Cause::alreadyThere);
    if (!connects)
        return Ended(0);
    const DWORD error = m_service.Connect(m_situation.asked, link.profile, link.bssType, pick.bssid);
    return error == 0 ? Ended(0) : Failed(Cause::requestRefused);
}

Outcome Model::Reconnect()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    const auto& entries = m_service.Entries(m_situation.asked, m_situation.rememberedSsid,
                                            m_situation.rememberedBssType, m_situation.rememberedSecured);
    if (entries.error != 0)
        return Failed(Cause::bssListFailed);
    if (entries.data.empty())
        return Failed(Cause::accessPointNotJoined);
    const DWORD error = m_service.Connect(m_situation.asked, m_situation.rememberedProfile,
                                          m_situation.rememberedBssType, PickOf(entries.data).bssid);
    return error == 0 ? Ended(0) : Failed(Cause::accessPointNotJoined);
}

} // namespace calvix::test
