// The methods whose arguments depend on each other, such as a buffer and its size, or are of a kind of their own. Each
// argument that takes from the input is made by a statement of its own: compilers differ in the order of a call's.

#include "session/methods.h"

#include "session/world.h"

#include "support/test_worlds.h"

#include <algorithm>
#include <atomic>

namespace calvix::fuzz::session
{

namespace
{

using Manager = CWirelessManage;
using Code = std::optional<long long>;

std::atomic<unsigned> notifications;

void WINAPI CountNotification(PWLAN_NOTIFICATION_DATA, PVOID)
{
    ++notifications;
}

char* CommandLine(Arguments& a)
{
    constexpr const char* kCommands[] = {kProgram, "nothing.exe", "\"C:\\Tools\\worker.exe\" now", "\"", ""};
    const char* const command = a.input().OneIn(4) ? a.NarrowText() : a.input().OneOf(kCommands);
    return command == nullptr ? nullptr : a.New(std::string(command)).data();
}

Code FormAddress(Manager& m, Arguments& a)
{
    const unsigned char* const address = a.OrNull(a.Room<unsigned char>(6));
    m.FormMAC(address, a.OrNull(a.Room<char>(18)));
    return {};
}

Code FormBssid(Manager& m, Arguments& a)
{
    const unsigned char* const address = a.OrNull(a.Room<unsigned char>(6));
    const int capacity = a.Capacity();
    m.GetBSSID(address, a.OrNull(a.RoomFor<char>(capacity)), capacity);
    return {};
}

Code CurrentSsid(Manager& m, Arguments& a)
{
    const int capacity = a.Capacity();
    return m.GetCurrentSSID(a.OrNull(a.RoomFor<char>(capacity)), capacity);
}

Code CurrentSsidAndConnection(Manager& m, Arguments& a)
{
    const int capacity = a.Capacity();
    char* const ssid = a.OrNull(a.RoomFor<char>(capacity));
    return m.GetCurrentSSID(ssid, capacity, a.OrNull(a.Connection()));
}

Code CurrentLink(Manager& m, Arguments& a)
{
    const GUID* const adapter = a.Adapter();
    int* const state = a.OrNull(&a.New<int>());
    int* const bssType = a.OrNull(&a.New<int>());
    const int capacity = a.Capacity();
    char* const ssid = a.OrNull(a.RoomFor<char>(capacity));
    return m.GetCurrentLinkInfo(adapter, state, bssType, ssid, capacity, a.OrNull(a.Room<char>(6)));
}

template <typename Character>
Code ReadProfile(Manager& m, Arguments& a)
{
    const GUID* const adapter = a.Adapter();
    const wchar_t* const name = a.WideText();
    const int capacity = a.Capacity() * 10;
    return m.GetProfile(adapter, name, a.OrNull(a.RoomFor<Character>(capacity)), capacity);
}

template <typename Character>
Code SsidText(Manager& m, Arguments& a)
{
    const DOT11_SSID* const ssid = a.OrNull(a.Ssid());
    const int capacity = a.Capacity();
    return m.GetSSID(ssid, a.OrNull(a.RoomFor<Character>(capacity)), capacity);
}

Code BytesAsHex(Manager& m, Arguments& a)
{
    const int count = static_cast<int>(a.input().Below(40));
    const int capacity = a.Capacity();
    const bool fromStart = a.input().OneIn(2);
    const unsigned char* const bytes = a.OrNull(a.RoomFor<unsigned char>(count));
    // From the start all digits are written whatever the capacity says.
    m.HexToString(bytes, count, a.RoomFor<char>((std::max)(capacity, fromStart ? 2 * count : 0)), capacity, fromStart);
    return {};
}

Code BytesOfHex(Manager& m, Arguments& a)
{
    const int length = static_cast<int>(a.input().Below(40));
    const int capacity = a.Capacity();
    const bool reversed = a.input().OneIn(2);
    const char* const text = a.OrNull(a.RoomFor<char>(length));
    m.StringToHex(text, length, a.RoomFor<unsigned char>(capacity), capacity, reversed);
    return {};
}

Code TextAsHex(Manager& m, Arguments& a)
{
    const int length = static_cast<int>(a.input().Below(40));
    const int capacity = a.Capacity();
    const char* const text = a.OrNull(a.RoomFor<char>(length));
    m.StringToHexString(text, length, a.RoomFor<unsigned char>(capacity), capacity);
    return {};
}

Code Narrow(Manager& m, Arguments& a)
{
    const wchar_t* const text = a.WideText();
    return m.UnicodeToAnsi(text, a.OrNull(a.Room<char>(1024)));
}

Code NarrowInto(Manager& m, Arguments& a)
{
    const wchar_t* const text = a.WideText();
    const int capacity = a.Capacity();
    return m.WideCharToChar(text, a.OrNull(a.RoomFor<char>(capacity)), capacity);
}

Code ReasonText(Manager& m, Arguments& a)
{
    const std::uint32_t reason = a.Number();
    const int capacity = a.Capacity();
    return m.ReasonCode2String(reason, a.OrNull(a.RoomFor<char>(capacity)), capacity);
}

Code AskDriver(Manager& m, Arguments& a)
{
    const GUID* const adapter = a.Adapter();
    const unsigned long size = a.input().Byte();
    return m.IhvControl(adapter, a.OrNull(a.Room<char>(size + 1)), size, a.New<unsigned long>());
}

Code StoreDocument(Manager& m, Arguments& a)
{
    const GUID* const adapter = a.Adapter();
    return m.SetProfile(adapter, a.Document());
}

Code CompareSsid(Manager& m, Arguments& a)
{
    const wchar_t* const document = a.Document();
    return m.IsThisSSID(document, const_cast<wchar_t*>(a.WideText()));
}

Code FindAdapter(Manager& m, Arguments& a)
{
    const wchar_t* const description = a.input().OneIn(2) ? test::kAdapterADescription : a.WideText();
    return m.GetWlanInterfaceGuid(description, a.New<GUID>());
}

Code Enable(Manager& m, Arguments& a)
{
    return m.EnablePriviledge(a.input().OneIn(2) ? "SeShutdownPrivilege" : a.NarrowText());
}

Code JoinFirst(Manager& m, Arguments& a)
{
    const GUID* const adapter = a.Adapter();
    return m.SmartConnecting(adapter, a.OrNull(a.Room<char>(128)));
}

Code Register(Manager& m, Arguments& a)
{
    return m.RegisterNotification(a.input().OneIn(16) ? nullptr : CountNotification, nullptr);
}

Code Unregister(Manager& m, Arguments& a)
{
    return m.UnRegisterNotification(a.input().OneIn(2) ? nullptr : CountNotification, nullptr);
}

Code RunCommand(Manager& m, Arguments& a)
{
    m.CreateProcRunCmd(CommandLine(a));
    return {};
}

Code EndProcess(Manager& m, Arguments& a)
{
    m.CloseProcess(a.input().OneIn(2) ? kProcess : a.Number());
    return {};
}

Code Assign(Manager& m, Arguments&)
{
    const Manager& other = m;
    return &(m = other) == &m;
}

Code Delete(Manager&, Arguments&)
{
    Manager::Delete();
    return {};
}

Code GuidText(Manager& m, Arguments& a)
{
    const GUID* const adapter = a.Adapter();
    m.GUID2String(adapter != nullptr ? *adapter : GUID{});
    return {};
}

} // namespace

std::vector<Method> MethodsOfParticularArguments()
{
    return {
        {"CloseProcess(unsigned long)", EndProcess},
        {"CreateProcRunCmd(char*)", RunCommand},
        {"CreateProcRunExe(char*)",
         [](Manager& m, Arguments& a) -> Code { return m.CreateProcRunExe(CommandLine(a)); }},
        {"Delete()", Delete},
        {"EnablePriviledge(char const*)", Enable},
        {"FormMAC(unsigned char const*, char*)", FormAddress},
        {"GUID2String(GUID const&)", GuidText},
        {"Get()", [](Manager& m, Arguments&) -> Code { return Manager::Get() == &m; }},
        {"GetBSSID(unsigned char const*, char*, int)", FormBssid},
        {"GetCurrentLinkInfo(GUID const*, int*, int*, char*, int, char*)", CurrentLink},
        {"GetCurrentSSID(char*, int)", CurrentSsid},
        {"GetCurrentSSID(char*, int, WLAN_CONNECTION_ATTRIBUTES*)", CurrentSsidAndConnection},
        {"GetProfile(GUID const*, wchar_t const*, char*, int)", ReadProfile<char>},
        {"GetProfile(GUID const*, wchar_t const*, wchar_t*, int)", ReadProfile<wchar_t>},
        {"GetSSID(DOT11_SSID const*, char*, int)", SsidText<char>},
        {"GetSSID(DOT11_SSID const*, wchar_t*, int)", SsidText<wchar_t>},
        {"GetWlanInterfaceGuid(wchar_t const*, GUID&)", FindAdapter},
        {"HexToString(unsigned char const*, int, char*, int, bool)", BytesAsHex},
        {"IhvControl(GUID const*, void*, unsigned long, unsigned long&)", AskDriver},
        {"IsAutoConnMode(wchar_t const*)",
         [](Manager& m, Arguments& a) -> Code { return m.IsAutoConnMode(a.Document()); }},
        {"IsThisSSID(wchar_t const*, wchar_t*)", CompareSsid},
        {"ReasonCode2String(unsigned long, char*, int)", ReasonText},
        {"RegisterNotification(WLAN_NOTIFICATION_CALLBACK, void*)", Register},
        {"SetProfile(GUID const*, wchar_t const*)", StoreDocument},
        {"SmartConnecting(GUID const*, char*)", JoinFirst},
        {"StringToHex(char const*, int, unsigned char*, int, bool)", BytesOfHex},
        {"StringToHexString(char const*, int, unsigned char*, int)", TextAsHex},
        {"UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK, void*)", Unregister},
        {"UnicodeToAnsi(wchar_t const*, char*)", Narrow},
        {"WideCharToChar(wchar_t const*, char*, int)", NarrowInto},
        {"operator=(CWirelessManage const&)", Assign},
    };
}

} // namespace calvix::fuzz::session
