#include "model/model.h"

#include <cstdint>

namespace calvix::test
{

namespace
{

constexpr DWORD kInvalidFlags = 1004;
constexpr DWORD kNoUnicodeTranslation = 1113;

/// The number of bytes that follow a first byte, -1 for another byte. Four-byte characters are not generated here.
int FollowersOf(std::uint8_t first)
{
    if (first < 0x80)
        return 0;
    if (first >= 0xC2 && first < 0xE0)
        return 1;
    return first >= 0xE1 && first < 0xF0 ? 2 : -1;
}

bool ReadUtf8(const std::string& bytes, std::wstring& text)
{
    for (std::size_t i = 0; i < bytes.size() && bytes[i] != '\0';)
    {
        const auto first = static_cast<std::uint8_t>(bytes[i++]);
        const int followers = FollowersOf(first);
        if (followers < 0)
            return false;
        unsigned character = followers == 0 ? first : followers == 1 ? first & 0x1Fu : first & 0x0Fu;
        for (int n = 0; n < followers; ++n)
        {
            const auto next = i < bytes.size() ? static_cast<std::uint8_t>(bytes[i++]) : std::uint8_t{0};
            if ((next & 0xC0) != 0x80)
                return false;
            character = character << 6 | (next & 0x3Fu);
        }
        text += static_cast<wchar_t>(character);
    }
    return true;
}

} // namespace

DWORD Model::SsidText(const std::string& ssid, std::wstring& text) const
{
    if (!m_situation.convertsUtf8)
        return kInvalidFlags;
    return ReadUtf8(ssid, text) ? 0 : kNoUnicodeTranslation;
}

Outcome Model::Walk()
{
    const std::vector<Network> matches = Matches();
    for (const Network& network : matches)
        if (m_service.Connect(m_situation.asked, network.profile, network.bssType) == 0)
            break;
    return matches.empty() ? Failed(Cause::nothingMatches) : Ended(0);
}

Outcome Model::AutoConnect()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    if (const auto failure = FailureToList(m_situation.asked))
        return *failure;
    return Walk();
}

Outcome Model::AutoSwitch()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    const Answer<Link>& link = m_service.Connection(m_situation.asked);
    if (link.error != 0)
        return Failed(Cause::notConnected);
    if (ListProfiles(m_situation.asked) != 0)
        return Failed(Cause::profileListFailed);
    if (m_profiles.size() > 1 && m_service.Move(m_situation.asked, link.data.profile, m_profiles.size() - 1) != 0)
        return Failed(Cause::profileNotMoved);
    if (ListNetworks(m_situation.asked) != 0)
        return Failed(Cause::networkListFailed);
    return Walk();
}

Outcome Model::SmartSwitch()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    const auto& [failure, link] = m_service.Connection(m_situation.asked);
    if (failure != 0)
        return EndedBy(failure);
    std::wstring currentSsid;
    if (const DWORD error = SsidText(link.ssid, currentSsid))
        return EndedBy(error);
    if (const DWORD error = ListProfiles(m_situation.asked))
        return EndedBy(error);
    if (const DWORD error = ListNetworks(m_situation.asked))
        return EndedBy(error);
    for (const Network& network : Matches())
        if (network.profile != currentSsid && link.quality < network.quality)
            return EndedBy(m_service.Connect(m_situation.asked, network.profile, network.bssType));
    return Failed(Cause::nothingBetter);
}

Outcome Model::SmartConnecting()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    const Answer<std::vector<int>> adapters = m_service.Adapters();
    if (adapters.error != 0)
        return EndedBy(adapters.error);
    if (adapters.data.empty())
        return Ended(0);
    if (const DWORD error = ListProfiles(adapters.data[0]))
        return EndedBy(error);
    if (const DWORD error = ListNetworks(adapters.data[0]))
        return EndedBy(error);
    const std::vector<Network> matches = Matches();
    if (matches.empty())
        return Failed(Cause::nothingMatches);
    const DWORD error = m_service.Connect(adapters.data[0], matches[0].profile, matches[0].bssType);
    Outcome outcome = EndedBy(error);
    if (error == 0)
    {
        outcome.text.clear();
        for (const wchar_t unit : matches[0].profile.substr(0, 127))
            outcome.text += static_cast<char>(unit);
    }
    return outcome;
}

Outcome Model::ConnectAutoMode()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    if (const auto failure = FailureToList(m_situation.asked))
        return *failure;
    bool attempted = false;
    for (const std::wstring& profile : m_profiles)
    {
        const Answer<std::wstring>& xml = m_service.ProfileText(m_situation.asked, profile);
        if (xml.error != 0)
            continue;
        // The buffer for the text ends here.
        if (xml.data.substr(0, 1023).find(L">auto</connectionMode>") == std::wstring::npos)
            continue;
        for (const Network& network : m_networks)
        {
            std::wstring ssid;
            if (SsidText(network.ssid, ssid) != 0)
                continue;
            if (network.profile != profile && ssid != profile)
                continue;
            attempted = true;
            if (m_service.Connect(m_situation.asked, network.profile, network.bssType) == 0)
                return Ended(0);
        }
    }
    return attempted ? Ended(0) : Failed(Cause::noCandidate);
}

} // namespace calvix::test
