#include "model/library_outcomes.h"

#include "support/test_worlds.h"
#include "testing/manager_internals.h"

#include <algorithm>

namespace calvix::test
{

namespace
{

void CopyName(const std::wstring& name, wchar_t* destination)
{
    std::copy(name.begin(), name.end(), destination);
    destination[name.size()] = L'\0';
}

/// What the containers hold before the call, which is none of the result.
const std::vector<WLAN_BSS_ENTRY> kOldEntries(1);
const std::vector<std::wstring> kOldNames = {L"old"};

} // namespace

CWirelessManage& Library::Manager()
{
    return *ManagerInternals::Instance();
}

Outcome Library::EndedWith(long long code, const std::vector<WLAN_BSS_ENTRY>& entries)
{
    Outcome outcome = Ended(code);
    for (const WLAN_BSS_ENTRY& entry : entries)
        outcome.entries.push_back({BytesOf(entry.dot11Ssid),
                                   {reinterpret_cast<const char*>(&entry.dot11Bssid[0]), 6},
                                   entry.ulChCenterFrequency,
                                   entry.uLinkQuality});
    return outcome;
}

Outcome Library::EndedWith(long long code, const std::vector<std::wstring>& names)
{
    Outcome outcome = Ended(code);
    outcome.names = names;
    return outcome;
}

Outcome Library::GetMatchAPList()
{
    std::vector<WLAN_BSS_ENTRY> entries = kOldEntries;
    const int code = Manager().GetMatchAPList(Guid(), &entries);
    return EndedWith(code, entries);
}

Outcome Library::GetConnectableAPList()
{
    std::vector<WLAN_BSS_ENTRY> entries = kOldEntries;
    std::wstring name = m_world.name;
    const int code = Manager().GetConnectableAPList(Guid(), name.data(), &entries);
    return EndedWith(code, entries);
}

Outcome Library::GetConnectableAPListOfFirst()
{
    std::vector<WLAN_BSS_ENTRY> entries = kOldEntries;
    std::wstring name = m_world.name;
    const int code = Manager().GetConnectableAPList(name.data(), &entries);
    return EndedWith(code, entries);
}

Outcome Library::GetMatchAPCount()
{
    std::vector<std::wstring> names = kOldNames;
    const int code = Manager().GetMatchAPCount(Guid(), &names, m_world.mode);
    return EndedWith(code, names);
}

Outcome Library::GetMatchAPCountWithName()
{
    std::vector<std::wstring> names = kOldNames;
    const int code = Manager().GetMatchAPCount(Guid(), &names, m_world.name.c_str(), m_world.mode);
    return EndedWith(code, names);
}

Outcome Library::ConnectBestAP(bool byList, bool byName)
{
    std::vector<WLAN_BSS_ENTRY> excluded;
    for (const std::string& ssid : m_world.excludedSsids)
    {
        excluded.emplace_back();
        excluded.back().dot11Ssid = MakeSsid(ssid);
    }
    const wchar_t* const name = m_world.name.c_str();
    if (byList)
        return Ended(byName ? Manager().ConnectBestAP(Guid(), &excluded, name)
                            : Manager().ConnectBestAP(Guid(), &excluded));
    return Ended(byName ? Manager().ConnectBestAP(Guid(), name) : Manager().ConnectBestAP(Guid()));
}

Outcome Library::SmartConnecting()
{
    char text[128] = "";
    Outcome outcome = Ended(0);
    outcome.code = Manager().SmartConnecting(Guid(), text);
    outcome.events = m_journal.Events();
    outcome.text = text;
    return outcome;
}

Outcome Library::ReconnectByAttributes()
{
    WLAN_CONNECTION_ATTRIBUTES remembered{};
    CopyName(m_world.rememberedProfile, remembered.strProfileName);
    remembered.wlanAssociationAttributes.dot11Ssid = MakeSsid(m_world.rememberedSsid);
    remembered.wlanAssociationAttributes.dot11BssType = static_cast<DOT11_BSS_TYPE>(m_world.rememberedBssType);
    remembered.wlanSecurityAttributes.bSecurityEnabled = m_world.rememberedSecured ? TRUE : FALSE;
    const int code = Manager().Reconnect(Guid(), &remembered, 20);
    return Ended(code);
}

Outcome Library::ReconnectByNotification()
{
    WLAN_CONNECTION_NOTIFICATION_DATA remembered{};
    CopyName(m_world.rememberedProfile, remembered.strProfileName);
    remembered.dot11Ssid = MakeSsid(m_world.rememberedSsid);
    remembered.dot11BssType = static_cast<DOT11_BSS_TYPE>(m_world.rememberedBssType);
    remembered.bSecurityEnabled = m_world.rememberedSecured ? TRUE : FALSE;
    const int code = Manager().Reconnect(Guid(), &remembered, 20);
    return Ended(code);
}

} // namespace calvix::test
