#pragma once

#include "operations/description.h"
#include "operations/records.h"
#include "wrappers/handle_numbers.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace calvix::wrappers
{

// How arguments appear in a call log. What an operation only writes to is shown by its presence; what it reads,
// by its content.

std::string NumberText(long long value);
/// The name, or the number where there is none.
std::string NameText(std::string_view name, long long value);
std::string PointerText(const void* value);
std::string HandleText(HandleNumbers& numbers, HandleFamily family, const void* value);
std::string GuidText(const GUID* value);
std::string SsidText(const DOT11_SSID* value);
/// Text; a negative length means that it is terminated.
std::string QuotedText(const char* text, int length = -1);
std::string QuotedText(const wchar_t* text, int length = -1);

std::string RecordText(const WLAN_CONNECTION_PARAMETERS& parameters);
std::string RecordText(const STARTUPINFOA& startup);
std::string RecordText(const TOKEN_PRIVILEGES& privileges);
std::string RecordText(const FILETIME& time);

/// Sizes of records are shown as such: they differ between Windows and other systems.
template <typename Opcode>
std::string AnswerSizeText(Opcode opcode, DWORD size);
std::string SettingSizeText(WLAN_INTF_OPCODE opcode, DWORD size);
/// What WlanSetInterface is given.
std::string SettingText(WLAN_INTF_OPCODE opcode, DWORD size, const void* value);
std::string OptionSizeText(DWORD size);

// One overload for each role, or for what it derives from.

std::string ArgumentText(const operations::Pointer&, auto pointer, const operations::AnyPlace&, HandleNumbers&)
{
    if constexpr (std::is_function_v<std::remove_pointer_t<decltype(pointer)>>)
        return PointerText(reinterpret_cast<const void*>(pointer));
    else
        return PointerText(pointer);
}

inline std::string
ArgumentText(const operations::HandedOut&, const void* target, const operations::AnyPlace&, HandleNumbers&)
{
    return PointerText(target);
}

template <typename Value>
std::string ArgumentText(const operations::Number&, const Value& value, const operations::AnyPlace&, HandleNumbers&)
{
    if constexpr (operations::ListedNumber<Value>)
        return NameText(operations::NameOf(value), static_cast<long long>(value));
    else
        return NumberText(static_cast<long long>(value));
}

std::string ArgumentText(const operations::Flag&, auto flag, const operations::AnyPlace&, HandleNumbers&)
{
    return flag != 0 ? "true" : "false";
}

template <HandleFamily family>
std::string
ArgumentText(const operations::Handle<family>&, const void* handle, const operations::AnyPlace&, HandleNumbers& numbers)
{
    return HandleText(numbers, family, handle);
}

inline std::string ArgumentText(const operations::Guid&, const GUID* guid, const operations::AnyPlace&, HandleNumbers&)
{
    return GuidText(guid);
}

inline std::string ArgumentText(const operations::Guid&, const GUID& guid, const operations::AnyPlace&, HandleNumbers&)
{
    return GuidText(&guid);
}

std::string ArgumentText(const operations::Text&, const auto* text, const operations::AnyPlace&, HandleNumbers&)
{
    return QuotedText(text);
}

std::string ArgumentText(const operations::Source&, const auto* text, const auto& place, HandleNumbers&)
{
    return QuotedText(text, place.template Neighbour<operations::after>());
}

std::string ArgumentText(const operations::FriendlyName&, const UCHAR* bytes, const auto& place, HandleNumbers&)
{
    const int length = static_cast<int>(place.template Neighbour<operations::after>() / sizeof(wchar_t));
    return QuotedText(reinterpret_cast<const wchar_t*>(bytes), length > 0 ? length - 1 : 0);
}

inline std::string
ArgumentText(const operations::Ssid&, const DOT11_SSID* ssid, const operations::AnyPlace&, HandleNumbers&)
{
    return SsidText(ssid);
}

std::string ArgumentText(const operations::Record&, const auto* record, const operations::AnyPlace&, HandleNumbers&)
{
    return record != nullptr ? RecordText(*record) : PointerText(nullptr);
}

std::string ArgumentText(const operations::OptionValue&, const void* value, const auto& place, HandleNumbers&)
{
    const bool isNumber = value != nullptr && place.template Neighbour<operations::after>() == sizeof(DWORD);
    return isNumber ? NumberText(static_cast<long long>(*static_cast<const DWORD*>(value))) : PointerText(nullptr);
}

inline std::string ArgumentText(const operations::OptionSize&, DWORD size, const operations::AnyPlace&, HandleNumbers&)
{
    return OptionSizeText(size);
}

std::string ArgumentText(const operations::SettingSize&, DWORD size, const auto& place, HandleNumbers&)
{
    return SettingSizeText(place.template Of<operations::Opcode>(), size);
}

std::string ArgumentText(const operations::Setting&, const void* value, const auto& place, HandleNumbers&)
{
    return SettingText(place.template Of<operations::Opcode>(), place.template Neighbour<operations::before>(), value);
}

std::string ArgumentText(const operations::AnswerSize&, const DWORD* size, const auto& place, HandleNumbers&)
{
    return size != nullptr ? AnswerSizeText(place.template Of<operations::Opcode>(), *size) : PointerText(nullptr);
}

std::string ArgumentText(const operations::InformationRoom&, ULONG size, const auto& place, HandleNumbers&)
{
    return AnswerSizeText(place.template Of<operations::Opcode>(), size);
}

inline std::string
ArgumentText(const operations::NumberExchanged&, const DWORD* number, const operations::AnyPlace&, HandleNumbers&)
{
    return number != nullptr ? NumberText(static_cast<long long>(*number)) : PointerText(nullptr);
}

inline std::string
ArgumentText(const operations::SchemeExchanged&, const UINT* scheme, const operations::AnyPlace&, HandleNumbers&)
{
    return scheme != nullptr ? NumberText(static_cast<std::int32_t>(*scheme)) : PointerText(nullptr);
}

} // namespace calvix::wrappers
