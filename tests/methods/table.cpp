// A new method is a row here. What its parameters are usually for follows from their types; a row has only what does
// not: a useful value, or that a parameter is for something else.

#include "methods/method.h"

#include <type_traits>
#include <utility>

namespace calvix::test::methods
{

namespace
{

using Manager = CWirelessManage;

using Attributes = WLAN_CONNECTION_ATTRIBUTES;
using Notification = WLAN_CONNECTION_NOTIFICATION_DATA;

/// A type's name, what its parameters are for, and what they are for before a number, if that is something else.
struct Type
{
    const char* name;
    Role role;
    std::optional<Role> beforeNumber{};
};

template <typename Parameter>
struct Of
{
};

struct Types
{
    static Type Get(Of<bool>) { return {"bool", Role::number}; }
    static Type Get(Of<int>) { return {"int", Role::number}; }
    static Type Get(Of<unsigned long>) { return {"unsigned long", Role::number}; }
    static Type Get(Of<unsigned long long>) { return {"unsigned long long", Role::number}; }
    static Type Get(Of<int&>) { return {"int&", Role::record}; }
    static Type Get(Of<unsigned int&>) { return {"unsigned int&", Role::record}; }
    static Type Get(Of<unsigned long&>) { return {"unsigned long&", Role::record}; }
    static Type Get(Of<int*>) { return {"int*", Role::record}; }
    static Type Get(Of<const GUID*>) { return {"GUID const*", Role::adapter}; }
    static Type Get(Of<const GUID&>) { return {"GUID const&", Role::adapter}; }
    static Type Get(Of<GUID&>) { return {"GUID&", Role::record}; }
    static Type Get(Of<const char*>) { return {"char const*", Role::name, Role::bytes}; }
    static Type Get(Of<const wchar_t*>) { return {"wchar_t const*", Role::name}; }
    static Type Get(Of<char*>) { return {"char*", Role::name, Role::room}; }
    static Type Get(Of<wchar_t*>) { return {"wchar_t*", Role::name, Role::room}; }
    static Type Get(Of<const unsigned char*>) { return {"unsigned char const*", Role::bytes}; }
    static Type Get(Of<unsigned char*>) { return {"unsigned char*", Role::room}; }
    static Type Get(Of<void*>) { return {"void*", Role::context, Role::room}; }
    static Type Get(Of<DOT11_SSID*>) { return {"DOT11_SSID*", Role::ssid}; }
    static Type Get(Of<DOT11_SSID&>) { return {"DOT11_SSID&", Role::ssid}; }
    static Type Get(Of<const DOT11_SSID*>) { return {"DOT11_SSID const*", Role::ssid}; }
    static Type Get(Of<Attributes*>) { return {"WLAN_CONNECTION_ATTRIBUTES*", Role::connection}; }
    static Type Get(Of<Notification*>) { return {"WLAN_CONNECTION_NOTIFICATION_DATA*", Role::notification}; }
    static Type Get(Of<WLAN_NOTIFICATION_CALLBACK>) { return {"WLAN_NOTIFICATION_CALLBACK", Role::callback}; }
    static Type Get(Of<_WIFI_TXRX_COUNT*>) { return {"_WIFI_TXRX_COUNT*", Role::record}; }
    static Type Get(Of<std::vector<WLAN_INTERFACE_INFO>*>) { return {"std::vector<WLAN_INTERFACE_INFO>*", Role::list}; }
    static Type Get(Of<std::vector<WLAN_BSS_ENTRY>*>) { return {"std::vector<WLAN_BSS_ENTRY>*", Role::list}; }
    static Type Get(Of<std::vector<std::string>*>) { return {"std::vector<std::string>*", Role::list}; }
    static Type Get(Of<std::vector<std::wstring>*>) { return {"std::vector<std::wstring>*", Role::list}; }
    static Type Get(Of<const Manager&>) { return {"CWirelessManage const&", Role::manager}; }
};

/// What a row says about a parameter.
struct Told
{
    Told() = default;
    Told(long long value) : number(value) {}
    Told(Role other, std::string value = {}, long long size = 0) : role(other), text(std::move(value)), number(size) {}

    std::optional<Role> role{};
    std::string text{};
    long long number = 0;
};

const Told usual;
const Told document = Role::document;
const Told record = Role::record;

Told Name(std::string name)
{
    return {Role::name, std::move(name)};
}

Told Text(std::string text)
{
    return {Role::text, std::move(text)};
}

Told Bytes(std::string bytes)
{
    return {Role::bytes, std::move(bytes)};
}

Told Room(long long size)
{
    return {Role::room, {}, size};
}

template <typename Item>
std::string EntryText(const Item& item)
{
    if constexpr (std::is_trivially_copyable_v<Item>)
        return BytesText(&item, sizeof(item));
    else
        return BytesText(item.data(), item.size() * sizeof(item[0]));
}

template <typename Item>
std::string EntriesText(const void* list)
{
    const auto& items = *static_cast<const std::vector<Item>*>(list);
    if (items.size() == 1 && EntryText(items.front()) == EntryText(Item())) // zero to the last byte
        return kUntouched;
    std::string text = std::to_string(items.size()) + " entries";
    for (const Item& item : items)
        text += " " + EntryText(item);
    return text;
}

/// Of what a parameter points to; a character has its own, and what has none counts bytes.
template <typename Pointed>
constexpr std::size_t SizeOf()
{
    if constexpr (std::is_object_v<Pointed>)
        return sizeof(Pointed);
    else
        return 1;
}

template <typename Pointed>
constexpr const ListKind* kListKind = nullptr;
template <typename Item>
constexpr ListKind kListOf = {[]() -> std::shared_ptr<void> { return std::make_shared<std::vector<Item>>(1); },
                              EntriesText<Item>};
template <typename Item>
constexpr const ListKind* kListKind<std::vector<Item>> = &kListOf<Item>;

/// An argument as the method takes it.
template <typename Parameter>
Parameter As(const Argument& argument, Manager& manager)
{
    using Pointed = std::remove_pointer_t<std::remove_reference_t<Parameter>>;
    if constexpr (std::is_same_v<Parameter, const Manager&>)
        return manager;
    else if constexpr (std::is_arithmetic_v<Parameter>)
        return static_cast<Parameter>(argument.number);
    else if constexpr (std::is_reference_v<Parameter>)
        return *static_cast<Pointed*>(argument.pointer);
    else if constexpr (std::is_function_v<Pointed>)
        return reinterpret_cast<Parameter>(argument.pointer);
    else
        return static_cast<Parameter>(argument.pointer);
}

Result Given(const Manager& manager, const Manager* result)
{
    return {result == &manager};
}

Result Given(const Manager&, const void* text)
{
    return {{}, text != nullptr ? static_cast<const char*>(text) : "null"};
}

template <typename Parameter>
methods::Parameter Describe(bool isBeforeNumber)
{
    using Pointed = std::remove_cv_t<std::remove_pointer_t<std::remove_reference_t<Parameter>>>;
    const Type type = Types::Get(Of<Parameter>());
    return {type.name, isBeforeNumber ? type.beforeNumber.value_or(type.role) : type.role, SizeOf<Pointed>(),
            kListKind<Pointed>};
}

template <typename Value>
Result Give(const Manager& manager, Value&& value)
{
    if constexpr (std::is_same_v<Value, Manager&>)
        return Given(manager, &value);
    else if constexpr (std::is_arithmetic_v<Value>)
        return {static_cast<long long>(value)};
    else
        return Given(manager, value);
}

/// The part of a method that follows from its type.
template <typename... Parameters, typename Body, std::size_t... place>
Method Make(Body body, std::index_sequence<place...>)
{
    [[maybe_unused]] constexpr bool isNumber[] = {std::is_arithmetic_v<Parameters>..., false};
    const auto call = [body](Manager& manager, [[maybe_unused]] const std::vector<Argument>& arguments) -> Result
    {
        const auto made = [&]() -> decltype(auto)
        { return body(manager, As<Parameters>(arguments[place], manager)...); };
        if constexpr (std::is_void_v<decltype(made())>)
            return made(), Result{};
        else
            return Give(manager, made());
    };
    return {{}, {Describe<Parameters>(isNumber[place + 1])...}, call};
}

template <typename Return, typename... Parameters>
Method Typed(Return (Manager::*method)(Parameters...))
{
    return Make<Parameters...>([method](Manager& manager, Parameters... arguments) -> Return
                               { return (manager.*method)(arguments...); },
                               std::index_sequence_for<Parameters...>());
}

template <typename Return, typename... Parameters>
Method Typed(Return (*method)(Parameters...))
{
    return Make<Parameters...>([method](Manager&, Parameters... arguments) -> Return { return method(arguments...); },
                               std::index_sequence_for<Parameters...>());
}

/// Finds the one of several methods that takes these.
template <typename... Parameters>
struct Taking
{
    template <typename Return>
    static Method Of(Return (Manager::*method)(Parameters...))
    {
        return Typed(method);
    }
};

/// A number after bytes or a buffer is its size.
void Relate(Parameter& parameter, Parameter& next)
{
    if (next.role != Role::number)
        return;
    if (parameter.role == Role::bytes)
        next.role = Role::length;
    else if (parameter.role == Role::room || parameter.role == Role::digits)
        next.role = Role::capacity;
}

Method Row(const std::string& name, Method method, const std::vector<Told>& told)
{
    std::string types;
    for (std::size_t place = 0; place < method.parameters.size(); ++place)
    {
        Parameter& parameter = method.parameters[place];
        types += (place != 0 ? ", " : "") + parameter.type;
        if (place >= told.size())
            continue;
        parameter.role = told[place].role.value_or(parameter.role);
        parameter.text = told[place].text;
        parameter.number = told[place].number;
    }
    for (std::size_t place = 1; place < method.parameters.size(); ++place)
        Relate(method.parameters[place - 1], method.parameters[place]);
    method.declaration = name + "(" + types + ")";
    return method;
}

// METHOD(name, facts about its parameters, from the first on); OVERLOAD is for a name that several methods share.
#define METHOD(name, ...) Row(#name, Typed(&Manager::name), {__VA_ARGS__})
#define TYPES(...) __VA_ARGS__
#define OVERLOAD(name, types, ...) Row(#name, Taking<TYPES types>::Of(&Manager::name), {__VA_ARGS__})

std::vector<Method> ServiceMethods()
{
    return {
        METHOD(Get),
        METHOD(Delete),
        METHOD(operator=),
        METHOD(__autoclassinit2, sizeof(Manager)),
        METHOD(CheckAutoConfig),
        METHOD(GetWlanStatus),
        METHOD(GetWlanIsLink),
        METHOD(GetWlanInterfaceState, wlan_interface_state_connected),
        METHOD(GetWlanInterfaceGuid, Text("Wireless Adapter A")),
        METHOD(GUID2String),
        METHOD(GetWlanInterfaceDesc),
        METHOD(GetWiFiAdapterCount),
        METHOD(GetWlanInterface),
        METHOD(RegisterNotification),
        METHOD(UnRegisterNotification),
        METHOD(PhyRadioIsOn),
        OVERLOAD(PhyRadioIsOn2, (const GUID*)),
        OVERLOAD(PhyRadioIsOn2, (const GUID*, unsigned int&, unsigned int&)),
        METHOD(PhyRadioTurnedOff),
        METHOD(PhyRadioTurnedOff2),
        METHOD(SupportedSafeMode),
        METHOD(RadioTurnOn),
        OVERLOAD(TurnOnSoftwareRadio, (const GUID*)),
        OVERLOAD(TurnOnSoftwareRadio, (const GUID*, unsigned long&)),
        METHOD(RadioTurnOff),
        METHOD(ResetWiFiRadio),
        METHOD(RestartWiFiRadio),
        METHOD(EnableAutoCfg),
        METHOD(EnableBackgroundScan),
        METHOD(GetPowerSetting),
        METHOD(SetPowerSetting, wlan_power_setting_medium_saving),
        METHOD(GetPowerSettingStr, wlan_power_setting_medium_saving),
        METHOD(SetIhvSecuritySettings),
        METHOD(IhvControl, usual, usual, 16),
    };
}

std::vector<Method> AirMethods()
{
    return {
        OVERLOAD(Rescan, (const GUID*, unsigned long&)),
        OVERLOAD(Rescan, ()),
        METHOD(GetAvailableNetworkCount),
        METHOD(GetNetworkBssCount),
        METHOD(GetConnectableNetworkCount),
        METHOD(GetAP),
        METHOD(GetNotConnectableReason, usual, usual, dot11_BSS_type_infrastructure),
        METHOD(IsWiFiDisappear),
        METHOD(GetCurrentBSS),
        METHOD(GetSoftAPList),
        METHOD(SpecialSoftAP),
        METHOD(GetAvailableNetwork),
        METHOD(GetNetworkBss),
        METHOD(ReasonCode2String, 0, usual, 64),
        METHOD(GetMatchAPList),
        OVERLOAD(GetConnectableAPList, (const GUID*, wchar_t*, std::vector<WLAN_BSS_ENTRY>*)),
        OVERLOAD(GetConnectableAPList, (wchar_t*, std::vector<WLAN_BSS_ENTRY>*)),
        OVERLOAD(GetMatchAPCount, (const GUID*, std::vector<std::wstring>*, int), usual, usual, 1),
        OVERLOAD(GetMatchAPCount, (const GUID*, std::vector<std::wstring>*, const wchar_t*, int), usual, usual, usual,
                 1),
        METHOD(GetMatchBSSID),
        METHOD(GetChannel, 5180000),
        METHOD(GetSignalStrength, -75),
        METHOD(GetRssi),
        METHOD(GetCurrentRSSI),
        METHOD(GetWiFiRSSI),
        METHOD(GetSignalQuality),
    };
}

std::vector<Method> ProfileMethods()
{
    return {
        METHOD(GetWlanProfile),
        OVERLOAD(DeleteProfile, (const GUID*, const char*)),
        OVERLOAD(DeleteProfile, (const GUID*, const wchar_t*)),
        METHOD(ResetProfilePosition),
        METHOD(SetProfilePosition),
        METHOD(GetProfileCount),
        OVERLOAD(GetProfile, (const GUID*, const wchar_t*, wchar_t*, int), usual, usual, usual, 4096),
        OVERLOAD(GetProfile, (const GUID*, const wchar_t*, char*, int), usual, usual, usual, 4096),
        OVERLOAD(GetProfile, (const GUID*, const wchar_t*)),
        METHOD(SetProfile, usual, document),
        METHOD(IsThisSSID, document, Name("NewNet")),
        METHOD(IsAutoConnMode, document),
        METHOD(IsAutoConnMode2, usual, Name("HomeNet")),
    };
}

std::vector<Method> ConnectionMethods()
{
    return {
        OVERLOAD(GetCurrentConnection, (const GUID*, Attributes*), usual, record),
        OVERLOAD(GetCurrentConnection, (Attributes*), record),
        OVERLOAD(GetCurrentSSID, (char*, int), usual, 33),
        OVERLOAD(GetCurrentSSID, (char*, int, Attributes*), usual, 33, record),
        METHOD(GetCurrentLinkInfo, usual, usual, usual, usual, 33, Room(6)),
        METHOD(GetCurrentWiFi),
        METHOD(WiFiIsConnected),
        METHOD(WiFiIsDisconnected),
        METHOD(GetWlanStatistics),
        METHOD(LinkProfile),
        METHOD(Disconnect),
        OVERLOAD(Reconnect, (const GUID*, Attributes*, unsigned long)),
        OVERLOAD(Reconnect, (const GUID*, Notification*, unsigned long)),
        METHOD(RecoverConnection),
        METHOD(ResetConnection),
        METHOD(SetCurrentWiFiToLast),
        METHOD(SaveCurrentConnectionAttributes),
        METHOD(RecoverConnetionAttributes),
        METHOD(SaveConnNotificationData),
        METHOD(RecoverConnNotificationData),
        OVERLOAD(ConnectBestAP, (const GUID*)),
        OVERLOAD(ConnectBestAP, (const GUID*, std::vector<WLAN_BSS_ENTRY>*)),
        OVERLOAD(ConnectBestAP, (const GUID*, const wchar_t*), usual, Name("HiddenNet")),
        OVERLOAD(ConnectBestAP, (const GUID*, std::vector<WLAN_BSS_ENTRY>*, const wchar_t*), usual, usual,
                 Name("HiddenNet")),
        METHOD(AutoConnect),
        METHOD(AutoConnectEx),
        METHOD(AutoSwitch),
        METHOD(SmartSwitch),
        METHOD(SmartConnecting, usual, Room(128)),
        METHOD(ConnectAutoMode),
        METHOD(PreRoaming),
        METHOD(Roaming),
    };
}

std::vector<Method> TextMethods()
{
    const Told longText = Text(std::string(300, 'x')); // longer than what conversions keep on the stack
    return {
        METHOD(UnicodeToAnsi, Text("Home"), Room(1024)),
        METHOD(WideCharToChar, longText, usual, 512),
        OVERLOAD(GetSSID, (const DOT11_SSID*, char*, int), usual, usual, 33),
        OVERLOAD(GetSSID, (const DOT11_SSID*, wchar_t*, int), usual, usual, 33),
        METHOD(StringToHex, Bytes("4142"), 4, usual, 2),
        METHOD(HexToString, Bytes("\x1A\x2B"), 2, Told(Role::digits), 4),
        METHOD(StringToHexString, Bytes("A"), 1, usual, 4),
        METHOD(FormMAC, usual, Room(18)),
        METHOD(GetBSSID, usual, usual, 18),
    };
}

std::vector<Method> SystemMethods()
{
    return {
        METHOD(GetPrivileges),
        METHOD(EnablePriviledge, Text("SeShutdownPrivilege")),
        METHOD(ForceComputerSleep),
        METHOD(SetPowerScheme),
        METHOD(ResetPowerScheme),
        METHOD(GetPowerScheme),
        METHOD(GetSystemPowerPolicy),
        METHOD(IsSurpportAoAc),
        METHOD(IsPowerHibernateAllowed),
        METHOD(GetLastWakeTime),
        METHOD(GetLastSleepTime),
        METHOD(IsWow64),
        METHOD(CloseProcess, kProcess),
        METHOD(CreateProcRunCmd, Text("\"" + std::string(kFolder) + kProgram + "\" now")),
        METHOD(CreateProcRunExe, Text(kProgram)),
        METHOD(GetAppPath),
        METHOD(OpenUrl),
    };
}

} // namespace

const std::vector<Method>& EveryMethod()
{
    static const std::vector<Method> methods = []
    {
        std::vector<Method> all;
        for (const auto family :
             {ServiceMethods, AirMethods, ProfileMethods, ConnectionMethods, TextMethods, SystemMethods})
            for (Method& method : family())
                all.push_back(std::move(method));
        return all;
    }();
    return methods;
}

} // namespace calvix::test::methods
