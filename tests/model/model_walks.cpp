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
    if (!m_world.convertsUtf8)
        return kInvalidFlags;
    return ReadUtf8(ssid, text) ? 0 : kNoUnicodeTranslation;
}

bool Model::Walk(const std::vector<std::wstring>& profiles, const std::vector<Network>& networks)
{
    bool attempted = false;
    for (const std::wstring& profile : profiles)
        for (const Network& network : networks)
        {
            if (network.profile != profile)
                continue;
            attempted = true;
            if (m_service.Connect(m_world.asked, network.profile, network.bssType) == 0)
                return true;
        }
    return attempted;
}

Outcome Model::AutoConnect()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    std::vector<std::wstring> profiles;
    if (m_service.Profiles(m_world.asked, profiles) != 0)
        return Failed(Cause::profileListFailed);
    if (profiles.empty())
        return Failed(Cause::noProfile);
    std::vector<Network> networks;
    if (m_service.Networks(m_world.asked, networks) != 0)
        return Failed(Cause::networkListFailed);
    if (networks.empty())
        return Failed(Cause::networkListEmpty);
    return Walk(profiles, networks) ? Ended(0) : Failed(Cause::nothingMatches);
}

Outcome Model::AutoSwitch()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    Link link;
    if (m_service.Connection(m_world.asked, link) != 0)
        return Failed(Cause::notConnected);
    std::vector<std::wstring> profiles;
    if (m_service.Profiles(m_world.asked, profiles) != 0)
        return Failed(Cause::profileListFailed);
    if (profiles.size() > 1 && m_service.Move(m_world.asked, link.profile, profiles.size() - 1) != 0)
        return Failed(Cause::profileNotMoved);
    std::vector<Network> networks;
    if (m_service.Networks(m_world.asked, networks) != 0)
        return Failed(Cause::networkListFailed);
    return Walk(profiles, networks) ? Ended(0) : Failed(Cause::nothingMatches);
}

Outcome Model::SmartSwitch()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    Link link;
    if (const DWORD error = m_service.Connection(m_world.asked, link))
        return EndedBy(error);
    std::wstring currentSsid;
    if (const DWORD error = SsidText(link.ssid, currentSsid))
        return EndedBy(error);
    std::vector<std::wstring> profiles;
    if (const DWORD error = m_service.Profiles(m_world.asked, profiles))
        return EndedBy(error);
    std::vector<Network> networks;
    if (const DWORD error = m_service.Networks(m_world.asked, networks))
        return EndedBy(error);
    for (const std::wstring& profile : profiles)
        for (const Network& network : networks)
            if (network.profile == profile && network.profile != currentSsid && link.quality < network.quality)
                return EndedBy(m_service.Connect(m_world.asked, network.profile, network.bssType));
    return Failed(Cause::nothingBetter);
}

Outcome Model::SmartConnecting()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    std::vector<int> adapters;
    if (const DWORD error = m_service.Adapters(adapters))
        return EndedBy(error);
    if (adapters.empty())
        return Ended(0);
    std::vector<std::wstring> profiles;
    if (const DWORD error = m_service.Profiles(adapters[0], profiles))
        return EndedBy(error);
    std::vector<Network> networks;
    if (const DWORD error = m_service.Networks(adapters[0], networks))
        return EndedBy(error);
    for (const std::wstring& profile : profiles)
        for (const Network& network : networks)
        {
            if (network.profile != profile)
                continue;
            const DWORD error = m_service.Connect(adapters[0], network.profile, network.bssType);
            Outcome outcome = EndedBy(error);
            if (error == 0)
                for (const wchar_t unit : profile)
                    if (outcome.text.size() < 127)
                        outcome.text += static_cast<char>(unit);
            return outcome;
        }
    return Failed(Cause::nothingMatches);
}

Outcome Model::ConnectAutoMode()
{
    if (m_service.Open() != 0)
        return Failed(Cause::clientNotOpened);
    std::vector<std::wstring> profiles;
    if (m_service.Profiles(m_world.asked, profiles) != 0)
        return Failed(Cause::profileListFailed);
    if (profiles.empty())
        return Failed(Cause::noProfile);
    std::vector<Network> networks;
    if (m_service.Networks(m_world.asked, networks) != 0)
        return Failed(Cause::networkListFailed);
    if (networks.empty())
        return Failed(Cause::networkListEmpty);
    bool attempted = false;
    for (const std::wstring& profile : profiles)
    {
        std::wstring xml;
        if (m_service.ProfileText(m_world.asked, profile, xml) != 0)
            continue;
        // The buffer for the text ends here.
        if (xml.substr(0, 1023).find(L">auto</connectionMode>") == std::wstring::npos)
            continue;
        for (const Network& network : networks)
        {
            std::wstring ssid;
            if (SsidText(network.ssid, ssid) != 0)
                continue;
            if (network.profile != profile && ssid != profile)
                continue;
            attempted = true;
            if (m_service.Connect(m_world.asked, network.profile, network.bssType) == 0)
                return Ended(0);
        }
    }
    return attempted ? Ended(0) : Failed(Cause::noCandidate);
}

} // namespace calvix::test
