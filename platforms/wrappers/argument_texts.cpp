#include "wrappers/argument_texts.h"

#include "forms/address_text.h"
#include "forms/guid_text.h"

#include <concepts>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <cwchar>

namespace calvix::wrappers
{

namespace
{

constexpr const char* kNull = "null";

template <typename... Values>
std::string Formatted(const char* format, Values... values)
{
    char text[64];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

/// Quotes one character after the other; what is not printable ASCII is written as its number.
class Quotation
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
    Quotation quoted;
    for (std::size_t i = 0; i < count; ++i)
        quoted.Append(bytes[i], "\\x%02lX");
    return quoted.Finished();
}

std::string QuotedWide(const wchar_t* text, std::size_t length)
{
    Quotation quoted;
    for (std::size_t i = 0; i < length; ++i)
        quoted.Append(static_cast<unsigned long>(text[i]), "\\u%04lX");
    return quoted.Finished();
}

std::string BssidListText(const DOT11_BSSID_LIST* list)
{
    if (list == nullptr)
        return kNull;
    std::string text;
    for (ULONG i = 0; i < list->uNumOfEntries; ++i)
    {
        const auto* const address = reinterpret_cast<const std::uint8_t*>(list->BSSIDs) + 6 * i;
        text += text.empty() ? "" : " ";
        text += forms::AddressText(std::span<const std::uint8_t, 6>(address, 6));
    }
    return "[" + text + "]";
}

using operations::RecordType;

struct RecordName
{
    static constexpr const char* Of(RecordType<BOOL>) { return "BOOL"; }
    static constexpr const char* Of(RecordType<operations::Long>) { return "LONG"; }
    static constexpr const char* Of(RecordType<ULONG>) { return "ULONG"; }
    static constexpr const char* Of(RecordType<ULONGLONG>) { return "ULONGLONG"; }
    static constexpr const char* Of(RecordType<DOT11_BSS_TYPE>) { return "DOT11_BSS_TYPE"; }
    static constexpr const char* Of(RecordType<WLAN_RADIO_STATE>) { return "WLAN_RADIO_STATE"; }
    static constexpr const char* Of(RecordType<WLAN_PHY_RADIO_STATE>) { return "WLAN_PHY_RADIO_STATE"; }
    static constexpr const char* Of(RecordType<WLAN_INTERFACE_STATE>) { return "WLAN_INTERFACE_STATE"; }
    static constexpr const char* Of(RecordType<WLAN_CONNECTION_ATTRIBUTES>) { return "WLAN_CONNECTION_ATTRIBUTES"; }
    static constexpr const char* Of(RecordType<WLAN_STATISTICS>) { return "WLAN_STATISTICS"; }
    static constexpr const char* Of(RecordType<WLAN_POWER_SETTING>) { return "WLAN_POWER_SETTING"; }
    static constexpr const char* Of(RecordType<SYSTEM_POWER_CAPABILITIES>) { return "SYSTEM_POWER_CAPABILITIES"; }
    static constexpr const char* Of(RecordType<SYSTEM_POWER_POLICY>) { return "SYSTEM_POWER_POLICY"; }
};

std::string SizeText(DWORD size, std::size_t recordSize, const char* recordName)
{
    return size == recordSize ? "sizeof(" + std::string(recordName) + ")" : NumberText(static_cast<long long>(size));
}

/// The size of a record of known type, if that is what it is.
template <typename Record>
std::string SizeText(DWORD size, RecordType<Record> record)
{
    if constexpr (std::is_void_v<Record>)
        return NumberText(static_cast<long long>(size));
    else
        return SizeText(size, sizeof(Record), RecordName::Of(record));
}

std::string SettingText(const WLAN_PHY_RADIO_STATE& phy)
{
    // Only the adapter sets the hardware state; a program that switches a radio leaves it unset.
    return Formatted("{phyIndex=%u, software=%u}", static_cast<unsigned>(phy.dwPhyIndex),
                     static_cast<unsigned>(phy.dot11SoftwareRadioState));
}

std::string SettingText(DOT11_BSS_TYPE type)
{
    return NameText(operations::NameOf(type), type);
}

template <std::integral Integer>
std::string SettingText(Integer number)
{
    return NumberText(static_cast<long long>(number));
}

} // namespace

std::string NumberText(long long value)
{
    return std::to_string(value);
}

std::string NameText(std::string_view name, long long value)
{
    return name.empty() ? NumberText(value) : std::string(name);
}

std::string PointerText(const void* value)
{
    return value == nullptr ? kNull : "non-null";
}

std::string HandleText(HandleNumbers& numbers, HandleFamily family, const void* value)
{
    if (value == nullptr)
        return kNull;
    // Process handles of this value mean the calling process.
    if (family == HandleFamily::object && value == INVALID_HANDLE_VALUE)
        return "current";
    return NumberText(numbers.NumberOf(family, value));
}

std::string GuidText(const GUID* value)
{
    return value != nullptr ? forms::GuidText(*value) : kNull;
}

std::string SsidText(const DOT11_SSID* ssid)
{
    if (ssid == nullptr)
        return kNull;
    const std::size_t length = ssid->uSSIDLength;
    const std::size_t shown = length <= sizeof ssid->ucSSID ? length : sizeof ssid->ucSSID;
    return QuotedBytes(ssid->ucSSID, shown) + "/" + std::to_string(length);
}

std::string QuotedText(const char* text, int length)
{
    if (text == nullptr)
        return kNull;
    const std::size_t count = length < 0 ? std::strlen(text) : static_cast<std::size_t>(length);
    return QuotedBytes(reinterpret_cast<const unsigned char*>(text), count);
}

std::string QuotedText(const wchar_t* text, int length)
{
    if (text == nullptr)
        return kNull;
    return QuotedWide(text, length < 0 ? std::wcslen(text) : static_cast<std::size_t>(length));
}

std::string RecordText(const WLAN_CONNECTION_PARAMETERS& parameters)
{
    using operations::NameOf;
    return "{mode=" + NameText(NameOf(parameters.wlanConnectionMode), parameters.wlanConnectionMode) +
           ", profile=" + QuotedText(parameters.strProfile) + ", ssid=" + SsidText(parameters.pDot11Ssid) +
           ", bssids=" + BssidListText(parameters.pDesiredBssidList) +
           ", bssType=" + NameText(NameOf(parameters.dot11BssType), parameters.dot11BssType) +
           ", flags=" + NumberText(static_cast<long long>(parameters.dwFlags)) + "}";
}

std::string RecordText(const STARTUPINFOA& startup)
{
    return "{size=" + SizeText(startup.cb, sizeof startup, "STARTUPINFOA") +
           ", flags=" + NumberText(static_cast<long long>(startup.dwFlags)) +
           ", showWindow=" + NumberText(startup.wShowWindow) + "}";
}

std::string RecordText(const TOKEN_PRIVILEGES& privileges)
{
    return Formatted("{count=%u, attributes=%u}", static_cast<unsigned>(privileges.PrivilegeCount),
                     static_cast<unsigned>(privileges.PrivilegeCount > 0 ? privileges.Privileges[0].Attributes : 0));
}

std::string RecordText(const FILETIME& time)
{
    const auto high = static_cast<std::uint64_t>(time.dwHighDateTime);
    return std::to_string((high << 32) | static_cast<std::uint32_t>(time.dwLowDateTime));
}

template <typename Opcode>
std::string AnswerSizeText(Opcode opcode, DWORD size)
{
    std::string text;
    operations::VisitAnswer(opcode, [&](auto record) { text = SizeText(size, record); });
    return text;
}

template std::string AnswerSizeText(WLAN_INTF_OPCODE opcode, DWORD size);
template std::string AnswerSizeText(WLAN_AUTOCONF_OPCODE opcode, DWORD size);
template std::string AnswerSizeText(POWER_INFORMATION_LEVEL level, DWORD size);

std::string SettingSizeText(WLAN_INTF_OPCODE opcode, DWORD size)
{
    std::string text;
    operations::VisitSetting(opcode, [&](auto record) { text = SizeText(size, record); });
    return text;
}

std::string SettingText(WLAN_INTF_OPCODE opcode, DWORD size, const void* value)
{
    std::string text = PointerText(value);
    operations::VisitSetting(opcode,
                             [&]<typename Record>(RecordType<Record>)
                             {
                                 if constexpr (!std::is_void_v<Record>)
                                     if (value != nullptr && size >= sizeof(Record))
                                         text = SettingText(*static_cast<const Record*>(value));
                             });
    return text;
}

std::string OptionSizeText(DWORD size)
{
    return SizeText(size, sizeof(DWORD), "DWORD");
}

} // namespace calvix::wrappers
