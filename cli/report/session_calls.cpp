#include "report/session_calls.h"

#include "core/wlan_records.h"
#include "output/text_forms.h"
#include "platform/records/error_numbers.h"
#include "wrappers/recording/damage.h"
#include "wrappers/recording/lines.h"
#include "wrappers/recording/recorded_lines.h"
#include "wrappers/recording/wlan_records.h"
#include "wrappers/recording/wlan_results.h"
#include <calvix/platform_records.h>

#include <map>
#include <type_traits>
#include <utility>

namespace calvix::host
{

namespace
{

using recording::Fields;

/// A recorded call that succeeded.
struct AnsweredCall
{
    Fields& in;
    Fields& out;
    GUID adapter{};
    SessionListener& listener;
};

bool IsPresent(Fields& fields, const char* name)
{
    return fields.Has(name) && !fields.IsNull(name, static_cast<const void*>(nullptr));
}

template <typename List>
List* ReadList(AnsweredCall& call)
{
    List* list = nullptr;
    recording::DescribeList(call.out, &list);
    return list;
}

template <typename List>
auto ReadItems(AnsweredCall& call)
{
    using Item = std::remove_cv_t<typename decltype(Items(std::declval<const List&>()))::element_type>;
    const List* const list = ReadList<List>(call);
    if (list == nullptr)
        return std::vector<Item>();
    const auto items = Items(*list);
    return std::vector<Item>(items.begin(), items.end());
}

void HearAdapters(AnsweredCall& call)
{
    call.listener.Hear(ReadItems<WLAN_INTERFACE_INFO_LIST>(call));
}

void HearNetworks(AnsweredCall& call)
{
    call.listener.Hear(call.adapter, ReadItems<WLAN_AVAILABLE_NETWORK_LIST>(call));
}

void HearProfiles(AnsweredCall& call)
{
    call.listener.Hear(call.adapter, ReadItems<WLAN_PROFILE_INFO_LIST>(call));
}

void HearAccessPoints(AnsweredCall& call)
{
    AirQuestion asked;
    if (IsPresent(call.in, "ssid"))
    {
        Fields ssid = call.in.Object("ssid");
        recording::Describe(ssid, asked.ssid.emplace());
        BOOL secured = FALSE;
        call.in.Number("securityEnabled", secured);
        asked.secured = secured != FALSE;
    }
    if (const WLAN_BSS_LIST* const list = ReadList<WLAN_BSS_LIST>(call))
        call.listener.Hear(call.adapter, asked, ReadAccessPoints(*list));
}

void HearAnswer(AnsweredCall& call)
{
    auto opcode = wlan_intf_opcode_autoconf_start;
    call.in.Number("opcode", opcode);
    if (opcode != wlan_intf_opcode_current_connection && opcode != wlan_intf_opcode_rssi)
        return;
    DWORD size = 0;
    PVOID data = nullptr;
    recording::DescribeAnswer(call.out, opcode, &size, &data);
    // Answers with an unexpected length are recorded as bytes and ignored here.
    if (data == nullptr || call.out.Has("bytes"))
        return;
    if (opcode == wlan_intf_opcode_rssi)
        call.listener.HearSignal(call.adapter, *static_cast<const std::int32_t*>(data));
    else
        call.listener.HearConnection(call.adapter, *static_cast<const WLAN_CONNECTION_ATTRIBUTES*>(data));
}

void HearProfileText(AnsweredCall& call)
{
    wchar_t* xml = nullptr;
    if (call.out.Has("xml"))
        recording::DescribeText(call.out, &xml);
    if (xml != nullptr)
        call.listener.HearProfile(call.adapter, xml);
}

void HearRequest(AnsweredCall& call)
{
    std::optional<std::string> bssid;
    if (call.in.Has("bssids") && call.in.Count("bssids", 0) == 1)
    {
        DOT11_MAC_ADDRESS address{};
        call.in.Element("bssids", 0).Address("address", address);
        bssid = MacText(address);
    }
    call.listener.AskForConnection(call.adapter, bssid);
}

void HearOfChange(AnsweredCall& call)
{
    call.listener.ChangeProfiles(call.adapter);
}

using HearCall = void (*)(AnsweredCall&);

/// The calls whose answers describe the air.
HearCall FindHearing(const std::string& operation)
{
    static const std::map<std::string, HearCall> hearings = {
        {"WlanOpenHandle", [](AnsweredCall&) {}},
        {"WlanEnumInterfaces", HearAdapters},
        {"WlanGetAvailableNetworkList", HearNetworks},
        {"WlanGetNetworkBssList", HearAccessPoints},
        {"WlanQueryInterface", HearAnswer},
        {"WlanGetProfileList", HearProfiles},
        {"WlanGetProfile", HearProfileText},
        {"WlanSetProfile", HearOfChange},
        {"WlanDeleteProfile", HearOfChange},
        {"WlanSetProfilePosition", HearOfChange},
        {"WlanConnect", HearRequest},
    };
    const auto found = hearings.find(operation);
    return found == hearings.end() ? nullptr : found->second;
}

void HearRefusal(AnsweredCall& call, const GUID* adapter, std::string operation, DWORD error)
{
    if (operation == "WlanQueryInterface")
    {
        auto opcode = wlan_intf_opcode_autoconf_start;
        call.in.Number("opcode", opcode);
        operation += " " + std::to_string(static_cast<std::uint32_t>(opcode));
    }
    // The service's way to say that there is no connection.
    if (operation == kConnectionQuestion && error == ERROR_INVALID_STATE && adapter != nullptr)
        call.listener.Disconnect(*adapter);
    else
        call.listener.Refuse(adapter, operation, static_cast<std::uint32_t>(error));
}

void HearCallOf(HearCall hear, const std::string& operation, AnsweredCall call)
{
    DWORD error = 0;
    call.out.Number("result", error);
    const bool named = IsPresent(call.in, "interface");
    if (named)
        call.in.AdapterGuid("interface", call.adapter);
    if (error == ERROR_SUCCESS)
        hear(call);
    else
        HearRefusal(call, named ? &call.adapter : nullptr, operation, error);
}

void HearLineOfCall(nlohmann::ordered_json& line, SessionListener& listener)
{
    recording::Holdings own(recording::Holdings::Source::recording);
    const Fields::Surroundings surroundings{own};
    Fields in(line[recording::key::arguments], Fields::Direction::reading, surroundings);
    Fields out(line[recording::key::results], Fields::Direction::reading, surroundings);
    const auto operation = line[recording::key::call].get<std::string>();
    if (operation == "Sleep")
    {
        DWORD milliseconds = 0;
        in.Number("milliseconds", milliseconds);
        listener.Pass(static_cast<unsigned>(milliseconds));
    }
    else if (const HearCall hear = FindHearing(operation))
    {
        HearCallOf(hear, operation, {in, out, {}, listener});
    }
}

void HearNotification(nlohmann::ordered_json& content, SessionListener& listener)
{
    recording::Holdings own(recording::Holdings::Source::recording);
    const Fields::Surroundings surroundings{own};
    Fields fields(content, Fields::Direction::reading, surroundings);
    WLAN_NOTIFICATION_DATA news{};
    recording::DescribeNews(fields, news);
    if (news.NotificationSource != WLAN_NOTIFICATION_SOURCE_ACM)
        return;
    if (news.NotificationCode == wlan_notification_acm_disconnected)
        listener.Disconnect(news.InterfaceGuid);
    const bool isWhole = news.pData != nullptr && news.dwDataSize == sizeof(WLAN_CONNECTION_NOTIFICATION_DATA);
    if (news.NotificationCode != wlan_notification_acm_connection_complete || !isWhole)
        return;
    if (static_cast<const WLAN_CONNECTION_NOTIFICATION_DATA*>(news.pData)->wlanReasonCode == WLAN_REASON_CODE_SUCCESS)
        listener.Connect(news.InterfaceGuid);
}

void HearLine(recording::RecordedLine& line, SessionListener& listener)
{
    if (line.Has(recording::key::call))
        HearLineOfCall(line.content, listener);
    else if (line.Has(recording::key::notification))
        HearNotification(line.content[recording::key::notification], listener);
}

/// "WlanGetNetworkBssList", "the notification"
std::string WhereIn(const recording::RecordedLine& line)
{
    return line.Has(recording::key::call) ? line.content[recording::key::call].get<std::string>() : "the notification";
}

} // namespace

SessionTraits ListenToSession(std::istream& recording, const std::string& name, SessionListener& listener)
{
    recording::RecordedLines recorded = recording::ReadRecording(recording, name);
    for (recording::RecordedLine& line : recorded.lines)
    {
        try
        {
            HearLine(line, listener);
        }
        catch (const recording::Damage& damage)
        {
            throw recording::RecordingError(name + ":" + std::to_string(line.number) +
                                            ": the recording is damaged: in " + WhereIn(line) + ", " + damage.what());
        }
    }
    return {recorded.header.simulated, recorded.header.anonymised, recorded.complete, recorded.lastLine};
}

} // namespace calvix::host
