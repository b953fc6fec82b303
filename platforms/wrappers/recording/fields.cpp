#include "wrappers/recording/fields.h"

#include "forms/address_text.h"
#include "forms/guid_text.h"
#include "forms/utf8.h"
#include "wrappers/recording/anonymiser.h"
#include "wrappers/recording/key_mask.h"
#include "wrappers/recording/recorded_text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace calvix::recording
{

using nlohmann::ordered_json;
using wrappers::HandleFamily;

namespace
{

/// Without a key in any case: a text that contains a key may come back incomplete.
ordered_json WithoutKeys(KeyMask& keys, std::wstring_view text)
{
    const std::string utf8 = forms::Utf8FromWide(text);
    std::string masked = keys.InText(utf8);
    return masked != utf8 ? ordered_json(std::move(masked)) : RecordedWide(text);
}

std::string SsidBytes(const DOT11_SSID& ssid)
{
    const std::size_t length = (std::min)(static_cast<std::size_t>(ssid.uSSIDLength), sizeof ssid.ucSSID);
    return {reinterpret_cast<const char*>(ssid.ucSSID), length};
}

} // namespace

void Fields::PutNull(const char* name)
{
    m_object[name] = nullptr;
}

template <typename Widest>
void Fields::Put(const char* name, Widest value)
{
    m_object[name] = value;
}

template void Fields::Put(const char* name, unsigned long long value);
template void Fields::Put(const char* name, long long value);

bool Fields::Has(const char* name) const
{
    return m_object.is_object() && m_object.contains(name);
}

ordered_json& Fields::At(const char* name)
{
    if (!isReading())
        return m_object[name];
    if (!Has(name))
        throw Damage(name, "is missing");
    return m_object[name];
}

bool Fields::IsNull(const char* name, const void* pointer)
{
    if (isReading())
        return At(name).is_null();
    if (pointer == nullptr)
        PutNull(name);
    return pointer == nullptr;
}

template <typename Widest>
Widest Fields::Get(const char* name, Widest lowest, Widest highest)
{
    const ordered_json& value = At(name);
    const bool isNumber = std::is_signed_v<Widest> ? value.is_number_integer() : value.is_number_unsigned();
    if (!isNumber || value.get<Widest>() < lowest || value.get<Widest>() > highest)
        throw Damage(name, "is not a number that fits");
    return value.get<Widest>();
}

template unsigned long long Fields::Get(const char* name, unsigned long long lowest, unsigned long long highest);
template long long Fields::Get(const char* name, long long lowest, long long highest);

template <typename Character>
void Fields::GivenText(const char* name, const Character* text, int length)
{
    if (text == nullptr)
        return PutNull(name);
    using String = std::basic_string<Character>;
    String copy = length < 0 ? String(text) : String(text, static_cast<std::size_t>(length));
    Text(name, copy);
}

template void Fields::GivenText(const char* name, const char* text, int length);
template void Fields::GivenText(const char* name, const wchar_t* text, int length);

void Fields::GivenName(const char* name, const wchar_t* profile)
{
    if (profile == nullptr)
        return PutNull(name);
    m_object[name] = RecordedWide(profile);
    if (m_surroundings.names != nullptr)
        m_surroundings.names->LearnNetwork(forms::Utf8FromWide(profile));
}

void Fields::GivenGuid(const char* name, const GUID* guid)
{
    if (guid == nullptr)
        return PutNull(name);
    GUID copy = *guid;
    Guid(name, copy);
}

void Fields::GivenAdapter(const GUID* guid)
{
    if (guid == nullptr)
        return PutNull("interface");
    GUID copy = *guid;
    AdapterGuid("interface", copy);
}

void Fields::GivenBytes(const char* name, const void* bytes, std::size_t size)
{
    if (bytes == nullptr)
        return PutNull(name);
    std::string copy(static_cast<const char*>(bytes), size);
    Bytes(name, copy);
}

void Fields::GivenHandle(const char* name, HandleFamily family, const void* handle)
{
    Given(name, holdings().NumberOf(family, handle));
}

void Fields::Text(const char* name, std::string& bytes)
{
    if (isReading())
        bytes = BytesFrom(At(name), name);
    else
        m_object[name] = RecordedBytes(m_surroundings.keys->InText(bytes));
}

void Fields::Text(const char* name, std::wstring& text)
{
    if (isReading())
        text = WideFrom(At(name), name);
    else
        m_object[name] = WithoutKeys(*m_surroundings.keys, text);
}

void Fields::Bytes(const char* name, std::string& bytes)
{
    if (isReading())
        bytes = BytesFrom(At(name), name);
    else
        m_object[name] = {{"bytes", forms::HexText(m_surroundings.keys->InBytes(bytes))}};
}

void Fields::Into(const char* name, void* buffer, std::size_t size)
{
    std::string bytes;
    if (!isReading() && buffer != nullptr)
        bytes.assign(static_cast<const char*>(buffer), size);
    Bytes(name, bytes);
    if (isReading() && buffer != nullptr)
        bytes.copy(static_cast<char*>(buffer), size);
}

void Fields::TerminatedInto(const char* name, wchar_t* buffer, std::size_t capacity)
{
    std::wstring text;
    if (!isReading())
        text.assign(buffer, static_cast<std::size_t>(std::find(buffer, buffer + capacity, L'\0') - buffer));
    Text(name, text);
    if (isReading() && capacity > 0)
        buffer[text.copy(buffer, capacity - 1)] = L'\0';
}

void Fields::Elements(const char* name, std::string& elements)
{
    std::string told = m_surroundings.names != nullptr ? ElementsWithoutNames(elements) : elements;
    Bytes(name, told);
    if (isReading())
        elements = told;
}

void Fields::Array(const char* name, wchar_t* text, std::size_t size, Meaning meaning)
{
    if (isReading())
    {
        const std::wstring read = WideFrom(At(name), name);
        if (read.size() > size)
            throw Damage(name, "is too long");
        std::copy(read.begin(), read.end(), text);
        return;
    }
    const std::wstring_view told(text, static_cast<std::size_t>(std::find(text, text + size, L'\0') - text));
    m_object[name] = RecordedWide(told);
    if (m_surroundings.names == nullptr)
        return;
    if (meaning == Meaning::name)
        m_surroundings.names->LearnNetwork(forms::Utf8FromWide(told));
    else
        m_surroundings.names->LearnAdapter(forms::Utf8FromWide(told));
}

/// A length that no SSID can have is written beside the bytes.
void Fields::Ssid(const char* name, DOT11_SSID& ssid)
{
    if (!isReading())
    {
        const std::string bytes = SsidBytes(ssid);
        m_object[name] = RecordedBytes(bytes);
        if (ssid.uSSIDLength > sizeof ssid.ucSSID)
            Number("statedSsidLength", ssid.uSSIDLength);
        if (m_surroundings.names != nullptr)
            m_surroundings.names->LearnNetwork(bytes);
        return;
    }
    const std::string bytes = BytesFrom(At(name), name);
    if (bytes.size() > sizeof ssid.ucSSID)
        throw Damage(name, "is too long");
    std::copy(bytes.begin(), bytes.end(), ssid.ucSSID);
    ssid.uSSIDLength = static_cast<ULONG>(bytes.size());
    if (Has("statedSsidLength"))
        Number("statedSsidLength", ssid.uSSIDLength);
}

void Fields::Address(const char* name, UCHAR* address)
{
    if (isReading())
    {
        const auto read = forms::AddressFromText(BytesFrom(At(name), name));
        if (!read)
            throw Damage(name, "is not an address");
        std::copy(read->begin(), read->end(), address);
        return;
    }
    std::array<std::uint8_t, 6> bytes{};
    std::copy_n(address, bytes.size(), bytes.begin());
    m_object[name] = forms::AddressText(bytes);
    if (m_surroundings.names != nullptr)
        m_surroundings.names->LearnAddress(bytes);
}

void Fields::Guid(const char* name, GUID& guid)
{
    if (!isReading())
    {
        m_object[name] = forms::GuidText(guid);
        return;
    }
    const std::optional<GUID> read = forms::GuidFromText(BytesFrom(At(name), name));
    if (!read)
        throw Damage(name, "is not a GUID");
    guid = *read;
}

void Fields::AdapterGuid(const char* name, GUID& guid)
{
    Guid(name, guid);
    if (m_surroundings.names != nullptr)
        m_surroundings.names->LearnGuid(forms::GuidText(guid));
}

Fields Fields::Object(const char* name)
{
    ordered_json& object = At(name);
    if (!isReading())
        object = ordered_json::object();
    else if (!object.is_object())
        throw Damage(name, "is not an object");
    return {object, m_direction, m_surroundings};
}

std::size_t Fields::Count(const char* name, std::size_t count)
{
    ordered_json& array = At(name);
    if (!isReading())
        array = ordered_json::array();
    else if (!array.is_array())
        throw Damage(name, "is not a list");
    return isReading() ? array.size() : count;
}

Fields Fields::Element(const char* name, std::size_t index)
{
    ordered_json& array = At(name);
    if (!isReading())
        array.push_back(ordered_json::object());
    else if (!array[index].is_object())
        throw Damage(name, "has an element that is not an object");
    return {isReading() ? array[index] : array.back(), m_direction, m_surroundings};
}

} // namespace calvix::recording
