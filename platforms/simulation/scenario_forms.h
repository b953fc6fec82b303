#pragma once

#include "forms/address_text.h"
#include "forms/hex_text.h"
#include "simulation/scenario_fields.h"
#include "simulation/scenario_names.h"

#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace calvix::simulation
{

/// The forms that a field of a scenario file can have. Each reads its value or refuses it, writes it, and says in the
/// schema what it takes. A form that cannot write a value writes a discarded one, and the field is left out.

inline Json Discarded()
{
    return Json(nlohmann::detail::value_t::discarded);
}

struct Flag
{
    void Read(const Value& value, bool& flag) const;
    Json Write(bool flag) const { return flag; }
    Json Schema() const { return {{"type", "boolean"}}; }
};

struct Whole
{
    std::int64_t least = 0;
    std::uint64_t most = std::numeric_limits<std::uint32_t>::max();

    void Check(const Value& value) const;
    template <typename Number>
    void Read(const Value& value, Number& number) const
    {
        Check(value);
        number = value.Json().get<Number>();
    }
    template <typename Number>
    Json Write(Number number) const
    {
        return number;
    }
    Json Schema() const;
};

/// Any number of 64 bits.
inline constexpr Whole kCount{0, std::numeric_limits<std::uint64_t>::max()};

/// A text of so many characters.
struct Text
{
    std::size_t most = std::numeric_limits<std::size_t>::max();
    std::size_t least = 0;

    void Read(const Value& value, std::string& text) const;
    Json Write(const std::string& text) const { return text; }
    Json Schema() const;
};

struct Guid
{
    void Read(const Value& value, std::string& guid) const;
    Json Write(const std::string& guid) const { return guid; }
    Json Schema() const;
};

struct Address
{
    void Read(const Value& value, MacAddress& address) const;
    Json Write(const MacAddress& address) const { return forms::AddressText(address, forms::Letters::lower); }
    Json Schema() const;
};

/// At most so many bytes as pairs of hexadecimal digits.
struct Hex
{
    std::size_t most;

    void Read(const Value& value, Bytes& bytes) const;
    Json Write(const Bytes& bytes) const { return forms::HexText(bytes, forms::Letters::lower); }
    Json Schema() const;
};

/// The bytes of a network's name, if they are text.
struct SsidText
{
    void Read(const Value& value, Bytes& ssid) const;
    Json Write(const Bytes& ssid) const;
    Json Schema() const { return {{"type", "string"}, {"maxLength", kLongest}}; }

    static constexpr std::size_t kLongest = 32;
};

/// The bytes of a power scheme's name, if they are what the platform's own schemes have.
struct SchemeName
{
    void Read(const Value& value, Bytes& name) const;
    Json Write(const Bytes& name) const;
    Json Schema() const { return kText.Schema(); }

    static constexpr Text kText{1024};
};

/// Bytes in hexadecimal, which are written where the other form cannot write them.
template <typename Other>
struct HexUnless : Hex
{
    Json Write(const Bytes& bytes) const
    {
        return Other{}.Write(bytes).is_discarded() ? Hex::Write(bytes) : Discarded();
    }
};

/// A value that has a name.
template <typename Number>
struct OneOf
{
    std::span<const Named<Number>> names;

    void Read(const Value& value, Number& number) const
    {
        for (const Named<Number>& known : names)
            if (value.Json() == known.name)
                return void(number = known.value);
        value.Refuse("not one of the values allowed");
    }
    Json Write(Number number) const
    {
        for (const Named<Number>& known : names)
            if (known.value == number)
                return known.name;
        return Discarded();
    }
    Json Schema() const
    {
        Json schema;
        for (const Named<Number>& known : names)
            schema["enum"].push_back(known.name);
        return schema;
    }
};

/// The same, or the number itself where it has none.
struct NameOrNumber
{
    OneOf<std::uint32_t> names;

    void Read(const Value& value, std::uint32_t& number) const;
    Json Write(std::uint32_t number) const;
    Json Schema() const { return {{"anyOf", {names.Schema(), Whole{}.Schema()}}}; }
};

/// One of these values.
template <typename Member>
struct Among
{
    std::vector<Member> values;

    void Read(const Value& value, Member& member) const
    {
        for (const Member& known : values)
            if (value.Json() == known)
                return void(member = known);
        value.Refuse("not one of the values allowed");
    }
    Json Write(const Member& member) const { return member; }
    Json Schema() const { return {{"enum", values}}; }
};

/// null for none.
template <typename Form>
struct OrNull
{
    Form form;

    template <typename Member>
    void Read(const Value& value, std::optional<Member>& member) const
    {
        member.reset();
        if (!value.Json().is_null())
            form.Read(value, member.emplace());
    }
    template <typename Member>
    Json Write(const std::optional<Member>& member) const
    {
        return member ? form.Write(*member) : Json(nullptr);
    }
    Json Schema() const { return {{"anyOf", {{{"type", "null"}}, form.Schema()}}}; }
};

template <typename Form>
OrNull(Form) -> OrNull<Form>;

/// A record, by the description of its fields (scenario_records.cpp).
template <typename Record>
struct Nested
{
    void Read(const Value& value, Record& record) const { ReadRecord(value, Describing(record)); }
    Json Write(Record record) const
    {
        Record usual;
        return WriteRecord(Describing(record), Describing(usual));
    }
    Json Schema() const
    {
        Record usual;
        return RecordSchema(Describing(usual));
    }
};

/// Refuses what is not an array of so many elements.
void CheckSize(const Value& value, std::size_t least, std::size_t most);

/// So many records. If their field `key` is named, no two have the same in it, as `identity` spells it.
template <typename Record>
struct ListOf
{
    std::size_t most;
    std::size_t least = 0;
    const char* key = nullptr;
    std::string (*identity)(const Record& record) = nullptr;

    void Read(const Value& value, std::vector<Record>& records) const
    {
        CheckSize(value, least, most);
        records.clear();
        for (std::size_t index = 0; index < value.Json().size(); ++index)
            Nested<Record>{}.Read(value.Element(index), records.emplace_back());
        std::map<std::string, std::size_t> first;
        for (std::size_t index = 0; identity != nullptr && index < records.size(); ++index)
        {
            const auto [earlier, isNew] = first.emplace(identity(records[index]), index);
            if (!isNew)
                value.Element(index).Member(key).Refuse("the same as that of element " +
                                                        std::to_string(earlier->second));
        }
    }
    Json Write(const std::vector<Record>& records) const
    {
        Json array = Json::array();
        for (const Record& record : records)
            array.push_back(Nested<Record>{}.Write(record));
        return array;
    }
    Json Schema() const
    {
        Json schema = {{"type", "array"}, {"maxItems", most}, {"items", Nested<Record>{}.Schema()}};
        if (least != 0)
            schema["minItems"] = least;
        return schema;
    }
};

} // namespace calvix::simulation
