#include "simulation/scenario_forms.h"

#include "forms/address_text.h"
#include "forms/guid_text.h"
#include "forms/hex_text.h"
#include "forms/utf8.h"

#include <algorithm>
#include <utility>

namespace calvix::simulation
{

namespace
{

/// Texts are valid UTF-8, so that every byte but the continuation bytes begins a character.
std::size_t CharactersOf(const std::string& text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

const char kOtherForm[] = "not in the form required";

} // namespace

void Flag::Read(const Value& value, bool& flag) const
{
    if (!value.Json().is_boolean())
        value.RefuseType();
    flag = value.Json().get<bool>();
}

void Whole::Check(const Value& value) const
{
    if (!value.Json().is_number_integer())
        value.RefuseType();
    const bool isUnsigned = value.Json().is_number_unsigned();
    const std::uint64_t number = value.Json().get<std::uint64_t>();
    if (isUnsigned ? std::cmp_less(number, least) : value.Json().get<std::int64_t>() < least)
        value.Refuse("less than " + std::to_string(least));
    if (isUnsigned && number > most)
        value.Refuse("greater than " + std::to_string(most));
}

Json Whole::Schema() const
{
    return {{"type", "integer"}, {"minimum", least}, {"maximum", most}};
}

void Text::Read(const Value& value, std::string& text) const
{
    const std::size_t length = CharactersOf(value.Text());
    if (length < least)
        value.Refuse("shorter than " + std::to_string(least) + " characters");
    if (length > most)
        value.Refuse("longer than " + std::to_string(most) + " characters");
    text = value.Text();
}

Json Text::Schema() const
{
    Json schema = {{"type", "string"}};
    if (least != 0)
        schema["minLength"] = least;
    if (most != Text{}.most)
        schema["maxLength"] = most;
    return schema;
}

void Guid::Read(const Value& value, std::string& guid) const
{
    if (!forms::GuidFromText(value.Text()))
        value.Refuse(kOtherForm);
    guid = value.Text();
}

Json Guid::Schema() const
{
    return {{"type", "string"}, {"pattern", "^\\{[0-9a-fA-F]{8}(-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}\\}$"}};
}

void Address::Read(const Value& value, MacAddress& address) const
{
    const std::optional<MacAddress> read = forms::AddressFromText(value.Text());
    if (!read)
        value.Refuse(kOtherForm);
    address = *read;
}

Json Address::Schema() const
{
    return {{"type", "string"}, {"pattern", "^[0-9a-fA-F]{2}(:[0-9a-fA-F]{2}){5}$"}};
}

void Hex::Read(const Value& value, Bytes& bytes) const
{
    const std::optional<Bytes> read = forms::BytesFromHex(value.Text());
    if (!read)
        value.Refuse("not pairs of hexadecimal digits");
    if (read->size() > most)
        value.Refuse("more than " + std::to_string(most) + " bytes");
    bytes = *read;
}

Json Hex::Schema() const
{
    return {{"type", "string"}, {"maxLength", most * 2}, {"pattern", "^([0-9a-fA-F]{2})*$"}};
}

void SsidText::Read(const Value& value, Bytes& ssid) const
{
    const std::string& text = value.Text();
    if (text.size() > kLongest)
        value.Refuse("an SSID has at most 32 bytes, and this text has " + std::to_string(text.size()) + " in UTF-8");
    ssid.assign(text.begin(), text.end());
}

Json SsidText::Write(const Bytes& bytes) const
{
    const std::string text(bytes.begin(), bytes.end());
    return forms::IsUtf8(text) ? Json(text) : Discarded();
}

void SchemeName::Read(const Value& value, Bytes& name) const
{
    std::string text;
    kText.Read(value, text);
    name = FriendlyName(text);
}

Json SchemeName::Write(const Bytes& name) const
{
    const std::optional<std::string> text = TextOfFriendlyName(name);
    return text ? Json(*text) : Discarded();
}

void NameOrNumber::Read(const Value& value, std::uint32_t& number) const
{
    if (value.Json().is_string())
        names.Read(value, number);
    else
        Whole{}.Read(value, number);
}

Json NameOrNumber::Write(std::uint32_t number) const
{
    const Json name = names.Write(number);
    return name.is_discarded() ? Json(number) : name;
}

void CheckSize(const Value& value, std::size_t least, std::size_t most)
{
    if (!value.Json().is_array())
        value.RefuseType();
    if (value.Json().size() < least)
        value.Refuse("fewer elements than " + std::to_string(least));
    if (value.Json().size() > most)
        value.Refuse("more elements than " + std::to_string(most));
}

} // namespace calvix::simulation
