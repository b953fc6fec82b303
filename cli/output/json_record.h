#pragma once

#include <nlohmann/json.hpp>

#include <concepts>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace calvix::host
{

using Json = nlohmann::ordered_json;

/// What docs/output.schema.json says of a member beyond its type.
struct Shape
{
    const char* meaning = nullptr;
    const char* definition = nullptr; ///< of the schema, which says all that there is to say
    const char* pattern = nullptr;
    std::vector<Json> among = {}; ///< the values that it can have
    bool emptyIsNull = false;     ///< an empty text is printed as null, and so is the number 0
};

/// A value as it is printed, and its part of the schema.
struct JsonPart
{
    Json value;
    Json schema;
};

/// An object as it is printed, and its part of the schema. Each member is named once, which makes both:
///
///     JsonRecord Describe(const ScanFacts& scan)
///     {
///         return JsonRecord().Add("completed", scan.completed).Add("milliseconds", scan.milliseconds, {"Waited"});
///     }
class JsonRecord
{
public:
    /// With a name it is a definition of its own in the schema, which other records refer to.
    explicit JsonRecord(const char* meaning = nullptr, const char* name = nullptr);

    /// `value` may be a truth value, a number, a text, or what has a Describe; also an optional one, or a list of them.
    template <typename Value>
    JsonRecord& Add(const char* name, const Value& value, const Shape& shape = {})
    {
        return AddPart(name, PartOf(value, shape), true, true);
    }
    /// A member that is left out at times.
    template <typename Value>
    JsonRecord& AddIf(bool present, const char* name, const Value& value, const Shape& shape = {})
    {
        return AddPart(name, PartOf(value, shape), present, false);
    }
    /// For a member that is not a plain value.
    JsonRecord& AddPart(const char* name, const JsonPart& part, bool present = true, bool required = true);
    /// All members of another record.
    JsonRecord& Join(const JsonRecord& other);

    const Json& value() const { return m_part.value; }
    const Json& schema() const { return m_part.schema; }
    /// The definitions that the schema refers to.
    const Json& definitions() const { return m_definitions; }

private:
    template <typename Value>
    JsonPart PartOf(const Value& value, const Shape& shape)
    {
        if constexpr (std::same_as<Value, bool>)
            return Shaped({value, {{"type", "boolean"}}}, shape);
        else if constexpr (std::integral<Value>)
            return Number(value, std::unsigned_integral<Value>, shape);
        else if constexpr (std::convertible_to<Value, std::string>)
            return Text(value, shape);
        else
            return Nested(Describe(value));
    }
    template <typename Value>
    JsonPart PartOf(const std::optional<Value>& value, const Shape& shape)
    {
        JsonPart part = OrNull(PartOf(value.value_or(Value{}), shape));
        if (!value)
            part.value = nullptr;
        return part;
    }
    template <typename Value>
    JsonPart PartOf(const std::vector<Value>& list, const Shape& shape)
    {
        JsonPart part = Shaped({Json::array(), {{"type", "array"}}}, shape);
        part.schema["items"] = PartOf(Value{}, {}).schema;
        for (const Value& value : list)
            part.value.push_back(PartOf(value, {}).value);
        return part;
    }
    JsonPart PartOf(const JsonRecord& record, const Shape&) { return Nested(record); }

    static JsonPart Shaped(JsonPart part, const Shape& shape);
    static JsonPart OrNull(JsonPart part);
    static JsonPart Plain(JsonPart part, bool isEmpty, const Shape& shape);
    static JsonPart Number(const Json& number, bool notNegative, const Shape& shape);
    static JsonPart Text(const std::string& text, const Shape& shape);
    JsonPart Nested(const JsonRecord& record);

    std::string m_name;
    JsonPart m_part;
    Json m_definitions = Json::object();
};

/// What a command prints: one object and a line break.
void PrintJson(std::ostream& out, const JsonRecord& record);

template <typename Facts>
void PrintJson(std::ostream& out, const Facts& facts)
{
    PrintJson(out, Describe(facts));
}

} // namespace calvix::host
