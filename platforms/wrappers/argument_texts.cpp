#include "wrappers/argument_texts.h"

#include "wrappers/number_names.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <cwchar>

namespace calvix::wrappers::argument
{

namespace
{

constexpr const char* kNull = "null";

std::string NumberText(long long value)
{
    return std::to_string(value);
}

/// The name, or the number where there is none.
std::string NameText(std::string_view name, long long value)
{
    return name.empty() ? NumberText(value) : std::string(name);
}

template <typename... Values>
std::string Formatted(const char* format, Values... values)
{
    char text[64];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

/// Quotes one character after the other; what is not printable ASCII is written as its number.
class QuotedText
{
public:
    void Append(unsigned long character, const char* escape)
    {
        if (character == '"' || character == '\\')
            m_text += '\\';
        if (character >= 0x20 && character < 0x7F)
            m_text += static_cast<char>(character);
        else
            m_text += Formatted(escape, character);
    }

    std::string Finished() const { return m_text + '"'; }

private:
    std::string m_text = "\"";
};

std::string QuotedBytes(const unsigned char* bytes, std::size_t count)
{
    QuotedText quoted;
    for (std::size_t i = 0; i < count; ++i)
        quoted.Append(bytes[i], "\\x%02lX");
    return quoted.Finished();
}

std::string QuotedWide(const wchar_t* text, std::size_t length)
{
    QuotedText quoted;
    for (std::size_t i = 0; i < length; ++i)
        quoted.Append(static_cast<unsigned long>(text[i]), "\\u%04lX");
    return quoted.Finished();
}

std::string SsidText(const DOT11_SSID* ssid)
{
    if (ssid == nullptr)
        return kNull;
    const std::size_t length = ssid->uSSIDLength;
    const std::size_t shown = length <= sizeof ssid->ucSSID ? length : sizeof ssid->ucSSID;
    return QuotedBytes(ssid->ucSSID, shown) + "/" + std::to_string(length);
}

std::string BssidListText(const DOT11_BSSID_LIST* list)
{
    if (list == nullptr)
        return kNull;
    std::string text;
    for (ULONG i = 0; i < list->uNumOfEntries; ++i)
    {
        const UCHAR* const address = reinterpret_cast<const UCHAR*>(list->BSSIDs) + 6 * i;
        text += text.empty() ? "" : " ";
        text += Formatted("%02X:%02X:%02X:%02X:%02X:%02X", static_cast<unsigned>(address[0]),
                          static_cast<unsigned>(address[1]), static_cast<unsigned>(address[2]),
                          static_cast<unsigned>(address[3]), static_cast<unsigned>(address[4]),
                          static_cast<unsigned>(address[5]));
    }
    return "[" + text + "]";
}

std::string SizeText(DWORD value, const RecordShape& record)
{
    if (record.size != 0 && value == record.size)
        return "sizeof(" + std::string(record.name) + ")";
    return NumberText(static_cast<long long>(value));
}

} // namespace

std::string Pointer::Text(HandleNumbers&) const
{
    return value == nullptr ? kNull : "non-null";
}

std::string Function::Text(HandleNumbers&) const
{
    return given ? "non-null" : kNull;
}

std::string Number::Text(HandleNumbers&) const
{
    return NumberText(value);
}

std::string Flag::Text(HandleNumbers&) const
{
    return value != 0 ? "true" : "false";
}

std::string NumberAt::Text(HandleNumbers&) const
{
    return value == nullptr ? kNull : NumberText(static_cast<long long>(*value));
}

std::string SchemeAt::Text(HandleNumbers&) const
{
    // Scheme -1 asks for a new one.
    return value == nullptr ? kNull : NumberText(static_cast<std::int32_t>(*value));
}

std::string Handle::Text(HandleNumbers& numbers) const
{
    if (value == nullptr)
        return kNull;
    // Process handles of this value mean the calling process.
    if (family == HandleFamily::object && value == INVALID_HANDLE_VALUE)
        return "current";
    return NumberText(numbers.NumberOf(family, value));
}

std::string Guid::Text(HandleNumbers&) const
{
    if (value == nullptr)
        return kNull;
    const auto& end = value->Data4;
    return Formatted("{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", static_cast<unsigned>(value->Data1),
                     static_cast<unsigned>(value->Data2), static_cast<unsigned>(value->Data3),
                     static_cast<unsigned>(end[0]), static_cast<unsigned>(end[1]), static_cast<unsigned>(end[2]),
                     static_cast<unsigned>(end[3]), static_cast<unsigned>(end[4]), static_cast<unsigned>(end[5]),
                     static_cast<unsigned>(end[6]), static_cast<unsigned>(end[7]));
}

std::string Ssid::Text(HandleNumbers&) const
{
    return SsidText(value);
}

std::string Narrow::Text(HandleNumbers&) const
{
    if (value == nullptr)
        return kNull;
    const std::size_t count = length < 0 ? std::strlen(value) : static_cast<std::size_t>(length);
    return QuotedBytes(reinterpret_cast<const unsigned char*>(value), count);
}

std::string Wide::Text(HandleNumbers&) const
{
    if (value == nullptr)
        return kNull;
    return QuotedWide(value, length < 0 ? std::wcslen(value) : static_cast<std::size_t>(length));
}

std::string BssType::Text(HandleNumbers&) const
{
    return NameText(NameOf(value), value);
}

std::string Opcode::Text(HandleNumbers&) const
{
    return NameText(NameOf(value), value);
}

std::string AutoConfigOpcode::Text(HandleNumbers&) const
{
    return NameText(NameOf(value), value);
}

std::string PowerLevel::Text(HandleNumbers&) const
{
    return NameText(NameOf(value), value);
}

RecordShape QueriedRecord(WLAN_INTF_OPCODE opcode)
{
    const std::string_view name = NameOf(opcode);
    if (name == "radio_state")
        return {"WLAN_RADIO_STATE", sizeof(WLAN_RADIO_STATE)};
    if (name == "current_connection")
        return {"WLAN_CONNECTION_ATTRIBUTES", sizeof(WLAN_CONNECTION_ATTRIBUTES)};
    if (name == "statistics")
        return {"WLAN_STATISTICS", sizeof(WLAN_STATISTICS)};
    if (name == "interface_state")
        return {"WLAN_INTERFACE_STATE", sizeof(WLAN_INTERFACE_STATE)};
    if (name == "rssi")
        return {"LONG", sizeof(std::int32_t)};
    if (name == "channel_number" || name == "current_operation_mode")
        return {"ULONG", sizeof(ULONG)};
    return SetRecord(opcode);
}

RecordShape SetRecord(WLAN_INTF_OPCODE opcode)
{
    const std::string_view name = NameOf(opcode);
    if (name == "radio_state")
        return {"WLAN_PHY_RADIO_STATE", sizeof(WLAN_PHY_RADIO_STATE)};
    if (name == "bss_type")
        return {"DOT11_BSS_TYPE", sizeof(DOT11_BSS_TYPE)};
    if (name == "current_operation_mode")
        return {"ULONG", sizeof(ULONG)};
    if (name == "autoconf_enabled" || name == "background_scan_enabled" || name == "media_streaming_mode")
        return {"BOOL", sizeof(BOOL)};
    return {};
}

RecordShape QueriedRecord(WLAN_AUTOCONF_OPCODE opcode)
{
    if (NameOf(opcode) == "power_setting")
        return {"WLAN_POWER_SETTING", sizeof(WLAN_POWER_SETTING)};
    return {};
}

RecordShape QueriedRecord(POWER_INFORMATION_LEVEL level)
{
    const std::string_view name = NameOf(level);
    if (name == "SystemPowerCapabilities")
        return {"SYSTEM_POWER_CAPABILITIES", sizeof(SYSTEM_POWER_CAPABILITIES)};
    if (name.starts_with("SystemPowerPolicy"))
        return {"SYSTEM_POWER_POLICY", sizeof(SYSTEM_POWER_POLICY)};
    if (name.starts_with("Last"))
        return {"ULONGLONG", sizeof(ULONGLONG)};
    return {};
}

std::string Size::Text(HandleNumbers&) const
{
    return SizeText(value, record);
}

std::string SizeAt::Text(HandleNumbers&) const
{
    return value == nullptr ? kNull : SizeText(*value, record);
}

std::string InterfaceData::Text(HandleNumbers&) const
{
    if (value == nullptr)
        return kNull;
    const RecordShape shape = SetRecord(opcode);
    if (shape.size == 0 || size < shape.size)
        return "non-null";
    if (shape.name == "WLAN_PHY_RADIO_STATE")
    {
        // The hardware state is the adapter's to tell; whoever switches a radio leaves it unset.
        const auto& phy = *static_cast<const WLAN_PHY_RADIO_STATE*>(value);
        return Formatted("{phyIndex=%u, software=%u}", static_cast<unsigned>(phy.dwPhyIndex),
                         static_cast<unsigned>(phy.dot11SoftwareRadioState));
    }
    if (shape.name == "ULONG")
        return NumberText(static_cast<long long>(*static_cast<const ULONG*>(value)));
    std::uint32_t number = 0;
    std::memcpy(&number, value, sizeof number);
    return shape.name == "BOOL" ? NumberText(number) : NameText(NameOf(static_cast<DOT11_BSS_TYPE>(number)), number);
}

std::string ConnectionParameters::Text(HandleNumbers& numbers) const
{
    if (value == nullptr)
        return kNull;
    return "{mode=" + NameText(NameOf(value->wlanConnectionMode), value->wlanConnectionMode) +
           ", profile=" + Wide{"", value->strProfile}.Text(numbers) + ", ssid=" + SsidText(value->pDot11Ssid) +
           ", bssids=" + BssidListText(value->pDesiredBssidList) +
           ", bssType=" + NameText(NameOf(value->dot11BssType), value->dot11BssType) +
           ", flags=" + NumberText(static_cast<long long>(value->dwFlags)) + "}";
}

std::string Startup::Text(HandleNumbers&) const
{
    if (value == nullptr)
        return kNull;
    const std::string size = SizeText(value->cb, {"STARTUPINFOA", sizeof(STARTUPINFOA)});
    return "{size=" + size + ", flags=" + NumberText(static_cast<long long>(value->dwFlags)) +
           ", showWindow=" + NumberText(value->wShowWindow) + "}";
}

std::string Privileges::Text(HandleNumbers&) const
{
    if (value == nullptr)
        return kNull;
    return Formatted("{count=%u, attributes=%u}", static_cast<unsigned>(value->PrivilegeCount),
                     static_cast<unsigned>(value->PrivilegeCount > 0 ? value->Privileges[0].Attributes : 0));
}

std::string FileTime::Text(HandleNumbers&) const
{
    if (value == nullptr)
        return kNull;
    const auto high = static_cast<std::uint64_t>(value->dwHighDateTime);
    return std::to_string((high << 32) | static_cast<std::uint32_t>(value->dwLowDateTime));
}

} // namespace calvix::wrappers::argument
