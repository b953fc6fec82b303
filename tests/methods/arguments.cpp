#include "forms/utf8.h"
#include "methods/method.h"

#include "support/test_scenarios.h"

#include <algorithm>
#include <iterator>

namespace calvix::test::methods
{

namespace
{

/// What is to be filled is full of it before.
constexpr unsigned char kPattern = 0xA5;

void WINAPI IgnoreNotification(PWLAN_NOTIFICATION_DATA, PVOID) {}

template <typename Value>
Argument Owning(Value value)
{
    auto owned = std::make_shared<Value>(std::move(value));
    return {0, owned.get(), sizeof(Value), owned};
}

/// On the heap and exactly as large, where the sanitizers see a byte too many.
template <typename Item>
Argument OwningAll(std::vector<Item> items)
{
    auto owned = std::make_shared<std::vector<Item>>(std::move(items));
    return {0, owned->data(), owned->size() * sizeof(Item), owned};
}

Argument Filled(std::size_t size)
{
    return OwningAll(std::vector<unsigned char>(size, kPattern));
}

Argument Characters(const Parameter& parameter, const std::string& text)
{
    if (parameter.size == sizeof(char))
        return OwningAll(std::vector<char>(text.c_str(), text.c_str() + text.size() + 1));
    const std::wstring wide = forms::WideFromUtf8(text);
    return OwningAll(std::vector<wchar_t>(wide.c_str(), wide.c_str() + wide.size() + 1));
}

/// The row's bytes, or an access point's address, as often as it takes.
Argument Bytes(const Parameter& parameter, std::optional<long long> count)
{
    constexpr unsigned char kAddress[] = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
    std::vector<unsigned char> source(parameter.text.begin(), parameter.text.end());
    if (source.empty())
        source.assign(std::begin(kAddress), std::end(kAddress));
    std::vector<unsigned char> bytes(count ? static_cast<std::size_t>((std::max)(*count, 1LL)) : source.size());
    for (std::size_t place = 0; place < bytes.size(); ++place)
        bytes[place] = source[place % source.size()];
    return OwningAll(std::move(bytes));
}

WLAN_CONNECTION_NOTIFICATION_DATA AsNotified(const WLAN_CONNECTION_ATTRIBUTES& connection)
{
    WLAN_CONNECTION_NOTIFICATION_DATA data{};
    data.wlanConnectionMode = connection.wlanConnectionMode;
    std::copy(std::begin(connection.strProfileName), std::end(connection.strProfileName), data.strProfileName);
    data.dot11Ssid = connection.wlanAssociationAttributes.dot11Ssid;
    data.dot11BssType = connection.wlanAssociationAttributes.dot11BssType;
    data.bSecurityEnabled = connection.wlanSecurityAttributes.bSecurityEnabled;
    return data;
}

bool IsNumber(Role role)
{
    return role == Role::number || role == Role::length || role == Role::capacity;
}

} // namespace

bool IsUntouched(const Argument& argument)
{
    const auto* const bytes = static_cast<const unsigned char*>(argument.pointer);
    return std::all_of(bytes, bytes + argument.size, [](unsigned char byte) { return byte == kPattern; });
}

std::string ProfileDocument(const std::string& name, bool isAutomatic)
{
    return "<?xml version=\"1.0\"?><WLANProfile xmlns=\"http://www.microsoft.com/networking/WLAN/profile/v1\"><name>" +
           name + "</name><SSIDConfig><SSID><name>" + name +
           "</name></SSID></SSIDConfig><connectionType>ESS</connectionType><connectionMode>" +
           (isAutomatic ? "auto" : "manual") +
           "</connectionMode><MSM><security><authEncryption><authentication>open</authentication><encryption>none"
           "</encryption><useOneX>false</useOneX></authEncryption></security></MSM></WLANProfile>";
}

WLAN_CONNECTION_ATTRIBUTES ConnectionWith(const std::string& name)
{
    WLAN_CONNECTION_ATTRIBUTES connection{};
    connection.isState = wlan_interface_state_connected;
    connection.wlanConnectionMode = wlan_connection_mode_profile;
    forms::WideFromUtf8(name).copy(connection.strProfileName, WLAN_MAX_NAME_LENGTH - 1);
    connection.wlanAssociationAttributes.dot11Ssid = MakeSsid(name);
    connection.wlanAssociationAttributes.dot11BssType = dot11_BSS_type_infrastructure;
    std::copy(kHomeNet24.begin(), kHomeNet24.end(), connection.wlanAssociationAttributes.dot11Bssid);
    connection.wlanSecurityAttributes.bSecurityEnabled = TRUE;
    return connection;
}

const GUID* Arguments::Adapter()
{
    return &kAdapterA;
}

std::string Arguments::Text(const Parameter& parameter)
{
    return parameter.text.empty() ? "OfficeNet" : parameter.text;
}

std::string Arguments::Document()
{
    return ProfileDocument("NewNet", true);
}

DOT11_SSID Arguments::Ssid()
{
    return MakeSsid("OfficeNet");
}

WLAN_CONNECTION_ATTRIBUTES Arguments::Connection()
{
    return ConnectionWith("HomeNet");
}

WLAN_NOTIFICATION_CALLBACK Arguments::Callback()
{
    return IgnoreNotification;
}

std::vector<Argument> Arguments::For(const Method& method)
{
    const std::vector<Parameter>& parameters = method.parameters;
    std::vector<Argument> made(parameters.size());
    for (std::size_t place = 0; place < made.size(); ++place)
        if (IsNumber(parameters[place].role))
            made[place].number = Number(parameters[place]);
    for (std::size_t place = 0; place < made.size(); ++place)
    {
        const Parameter& parameter = parameters[place];
        if (IsNumber(parameter.role) || (parameter.IsPointer() && IsNull(parameter)))
            continue;
        std::optional<long long> count;
        if (place + 1 < made.size() && IsNumber(parameters[place + 1].role))
            count = made[place + 1].number;
        if (parameter.role == Role::digits && made.back().number != 0)
            count = (std::max)(*count, 2 * made[1].number); // from the start all are written, whatever the capacity
        made[place] = Make(parameter, count);
    }
    return made;
}

Argument Arguments::Make(const Parameter& parameter, std::optional<long long> count)
{
    switch (parameter.role)
    {
    case Role::adapter:
        return {0, const_cast<GUID*>(Adapter())};
    case Role::ssid:
        return Owning(Ssid());
    case Role::name:
    case Role::text:
        return Characters(parameter, Text(parameter));
    case Role::document:
        return Characters(parameter, Document());
    case Role::bytes:
        return Bytes(parameter, count);
    case Role::connection:
        return Owning(Connection());
    case Role::notification:
        return Owning(AsNotified(Connection()));
    case Role::callback:
        return {0, reinterpret_cast<void*>(Callback())};
    case Role::context:
        return {0, Context()};
    case Role::record:
        return Filled(parameter.size);
    case Role::list:
    {
        const std::shared_ptr<void> list = parameter.list->make();
        return {0, list.get(), 0, list};
    }
    case Role::room:
    case Role::digits:
        return Filled(parameter.size * static_cast<std::size_t>((std::max)(count.value_or(parameter.number), 1LL)));
    case Role::manager: // the one that is called
    case Role::number:
    case Role::length:
    case Role::capacity:
        break;
    }
    return {};
}

} // namespace calvix::test::methods
