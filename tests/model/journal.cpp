#include "model/journal.h"

#include "support/test_scenarios.h"
#include "testing/manager_internals.h"

#include <utility>

namespace calvix::test
{

namespace
{

bool IsForOne(const DOT11_BSSID_LIST& list)
{
    return list.Header.Type == 0x80 && list.Header.Revision == 1 && list.Header.Size == sizeof(list) &&
           list.uNumOfEntries == 1 && list.uTotalNumOfEntries == 1;
}

} // namespace

Journal::Journal(const Situation& situation) : m_situation(situation)
{
    NoteLists();
    NoteQuestions();
    JudgeRequests();
    ConvertAsTheSituationSays();
}

std::vector<Event> Journal::TakeEvents()
{
    m_requests = 0;
    return std::exchange(m_events, {});
}

Event& Journal::Note(std::string_view operation, HANDLE client, const GUID* interfaceGuid, PVOID reserved)
{
    Event event{operation};
    if (interfaceGuid != nullptr)
        event.adapter = AdapterNumber(*interfaceGuid);
    if (client == nullptr || client != ManagerInternals::Client())
        event.oddity += "client ";
    if (reserved != nullptr)
        event.oddity += "reserved ";
    m_events.push_back(std::move(event));
    return m_events.back();
}

template <auto operation, typename Look>
void Journal::Noted(const char* name, Look look)
{
    Instead<operation>(
        [this, name, look, call = Now<operation>()](auto... arguments)
        {
            look(arguments...);
            const DWORD error = m_situation.FailureOf(name);
            return error != 0 ? error : call(arguments...);
        });
}

void Journal::NoteLists()
{
    Noted<&WlanService::WlanEnumInterfaces>("WlanEnumInterfaces", [this](HANDLE client, PVOID reserved, auto)
                                            { Note("WlanEnumInterfaces", client, nullptr, reserved); });
    Noted<&WlanService::WlanGetProfileList>("WlanGetProfileList",
                                            [this](HANDLE client, const GUID* adapter, PVOID reserved, auto)
                                            { Note("WlanGetProfileList", client, adapter, reserved); });
    After<&WlanService::WlanGetAvailableNetworkList>(
        [this](DWORD error, HANDLE, const GUID*, DWORD, PVOID, WLAN_AVAILABLE_NETWORK_LIST** list)
        {
            for (DWORD i = 0; error == 0 && i < (*list)->dwNumberOfItems; ++i)
            {
                WLAN_AVAILABLE_NETWORK& network = *((*list)->Network + i);
                if (m_situation.untaggedProfiles.count(network.strProfileName) != 0)
                    network.strProfileName[0] = L'\0';
            }
        });
    Noted<&WlanService::WlanGetAvailableNetworkList>(
        "WlanGetAvailableNetworkList", [this](HANDLE client, const GUID* adapter, DWORD flags, PVOID reserved, auto)
        { Note("WlanGetAvailableNetworkList", client, adapter, reserved).number = static_cast<unsigned>(flags); });
    Instead<&WlanService::WlanGetNetworkBssList>(
        [this, call = Now<&WlanService::WlanGetNetworkBssList>()](
            HANDLE client, const GUID* adapter, const DOT11_SSID* ssid, DOT11_BSS_TYPE bssType, BOOL securityEnabled,
            PVOID reserved, WLAN_BSS_LIST** list)
        {
            Event& event = Note("WlanGetNetworkBssList", client, adapter, reserved);
            event.ssid = BytesOf(*ssid);
            event.number = bssType;
            event.secured = securityEnabled != FALSE;
            if (m_situation.failingSsids.count(event.ssid) != 0)
                return DWORD{31};
            const DOT11_SSID unheard = MakeSsid("nobody");
            const DOT11_SSID& wanted = m_situation.silentSsids.count(event.ssid) != 0 ? unheard : *ssid;
            return call(client, adapter, &wanted, bssType, securityEnabled, reserved, list);
        });
}

void Journal::NoteQuestions()
{
    Noted<&WlanService::WlanOpenHandle>("WlanOpenHandle",
                                        [this](DWORD clientVersion, PVOID reserved, DWORD*, HANDLE*)
                                        {
                                            Event event{"WlanOpenHandle"};
                                            event.number = static_cast<unsigned>(clientVersion);
                                            event.oddity = reserved != nullptr ? "reserved " : "";
                                            m_events.push_back(event);
                                        });
    Noted<&WlanService::WlanQueryInterface>(
        "WlanQueryInterface",
        [this](HANDLE client, const GUID* adapter, WLAN_INTF_OPCODE opcode, PVOID reserved, DWORD* dataSize, PVOID*,
               WLAN_OPCODE_VALUE_TYPE* valueType)
        {
            Event& event = Note("WlanQueryInterface", client, adapter, reserved);
            event.number = static_cast<unsigned>(opcode);
            if (*dataSize != sizeof(WLAN_CONNECTION_ATTRIBUTES) || valueType != nullptr)
                event.oddity += "size or value type ";
        });
    Instead<&WlanService::WlanGetProfile>(
        [this, call = Now<&WlanService::WlanGetProfile>()](HANDLE client, const GUID* adapter, const wchar_t* name,
                                                           PVOID reserved, wchar_t** xml, DWORD* flags,
                                                           DWORD* grantedAccess)
        {
            Event& event = Note("WlanGetProfile", client, adapter, reserved);
            event.profile = name;
            event.number = static_cast<unsigned>(*flags);
            if (*grantedAccess != 0x20001)
                event.oddity += "access ";
            if (m_situation.unreadableProfiles.count(name) != 0)
                return DWORD{5};
            return call(client, adapter, name, reserved, xml, flags, grantedAccess);
        });
}

void Journal::JudgeRequests()
{
    Instead<&WlanService::WlanSetProfilePosition>(
        [this](HANDLE client, const GUID* adapter, const wchar_t* name, DWORD position, PVOID reserved)
        {
            Event& event = Note("WlanSetProfilePosition", client, adapter, reserved);
            event.profile = name;
            event.number = static_cast<unsigned>(position);
            return m_situation.FailureOf("WlanSetProfilePosition");
        });
    Instead<&WlanService::WlanConnect>(
        [this](HANDLE client, const GUID* adapter, const WLAN_CONNECTION_PARAMETERS* parameters, PVOID reserved)
        {
            Event& event = Note("WlanConnect", client, adapter, reserved);
            event.profile = parameters->strProfile;
            event.number = parameters->dot11BssType;
            if (parameters->wlanConnectionMode != 0 || parameters->pDot11Ssid != nullptr || parameters->dwFlags != 0)
                event.oddity += "mode, SSID or flags ";
            if (const DOT11_BSSID_LIST* const desired = parameters->pDesiredBssidList)
            {
                event.bssid.assign(reinterpret_cast<const char*>(desired->BSSIDs[0]), 6);
                event.oddity += IsForOne(*desired) ? "" : "desired list ";
            }
            return m_situation.AnswerToRequest(++m_requests, !event.profile.empty());
        });
}

void Journal::ConvertAsTheSituationSays()
{
    Instead<&platform::Text::MultiByteToWideChar>(
        [this, convert = Now<&platform::Text::MultiByteToWideChar>()](UINT codePage, DWORD flags, auto... rest)
        {
            constexpr UINT utf8 = 65001;
            constexpr DWORD precomposed = 1;
            return convert(codePage, codePage == utf8 && m_situation.convertsUtf8 ? flags & ~precomposed : flags,
                           rest...);
        });
}

} // namespace calvix::test
