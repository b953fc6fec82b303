#include "support/json_schema.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>

namespace calvix::test
{

namespace
{

using nlohmann::json;

struct Check
{
    const json& root;
    const json& schema;
    const json& value;

    bool Fits(const json& other) const { return SchemaProblem(root, other, value).empty(); }
    std::ptrdiff_t CountFitting(const json& schemas) const
    {
        return std::count_if(schemas.begin(), schemas.end(), [this](const json& each) { return Fits(each); });
    }
};

bool HasType(const json& value, const json& type)
{
    if (type.is_array())
        return std::any_of(type.begin(), type.end(), [&](const json& each) { return HasType(value, each); });
    return type == value.type_name() || (type == "integer" && value.is_number_integer());
}

/// In characters, which begin with any byte but a continuation byte.
std::size_t LengthOf(const std::string& text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

bool HasAll(const json& object, const json& names)
{
    return std::all_of(names.begin(), names.end(),
                       [&](const json& name) { return object.contains(name.get<std::string>()); });
}

/// Members that `properties` does not list are forbidden, or described by a schema.
bool AllowsOthers(const Check& check, const json& argument)
{
    for (const auto& [name, member] : check.value.items())
    {
        const bool isListed = check.schema.value("properties", json::object()).contains(name);
        if (!isListed && (argument == false || !SchemaProblem(check.root, argument, member).empty()))
            return false;
    }
    return true;
}

bool HasWhatOthersNeed(const Check& check, const json& argument)
{
    for (const auto& [name, needed] : argument.items())
        if (check.value.contains(name) && !(needed.is_array() ? HasAll(check.value, needed) : check.Fits(needed)))
            return false;
    return true;
}

struct Keyword
{
    json::value_t type; ///< what it applies to; discarded: anything
    bool (*holds)(const Check& check, const json& argument);
};

bool AppliesTo(const Keyword& keyword, const json& value)
{
    const bool isNumber = keyword.type == json::value_t::number_float && value.is_number();
    return keyword.type == json::value_t::discarded || keyword.type == value.type() || isNumber;
}

const std::map<std::string, Keyword>& Keywords()
{
    using type = json::value_t;
    static const std::map<std::string, Keyword> keywords{
        {"type", {type::discarded, [](const Check& it, const json& types) { return HasType(it.value, types); }}},
        {"enum",
         {type::discarded, [](const Check& it, const json& known)
          { return std::find(known.begin(), known.end(), it.value) != known.end(); }}},
        {"anyOf", {type::discarded, [](const Check& it, const json& any) { return it.CountFitting(any) > 0; }}},
        {"oneOf", {type::discarded, [](const Check& it, const json& any) { return it.CountFitting(any) == 1; }}},
        {"not", {type::discarded, [](const Check& it, const json& other) { return !it.Fits(other); }}},
        {"minimum", {type::number_float, [](const Check& it, const json& least) { return it.value >= least; }}},
        {"maximum", {type::number_float, [](const Check& it, const json& most) { return it.value <= most; }}},
        {"pattern",
         {type::string, [](const Check& it, const json& pattern)
          { return std::regex_search(it.value.get<std::string>(), std::regex(pattern.get<std::string>())); }}},
        {"minLength", {type::string, [](const Check& it, const json& least) { return LengthOf(it.value) >= least; }}},
        {"maxLength", {type::string, [](const Check& it, const json& most) { return LengthOf(it.value) <= most; }}},
        {"minItems", {type::array, [](const Check& it, const json& least) { return it.value.size() >= least; }}},
        {"maxItems", {type::array, [](const Check& it, const json& most) { return it.value.size() <= most; }}},
        {"maxProperties", {type::object, [](const Check& it, const json& most) { return it.value.size() <= most; }}},
        {"required", {type::object, [](const Check& it, const json& names) { return HasAll(it.value, names); }}},
        {"additionalProperties", {type::object, AllowsOthers}},
        {"dependencies", {type::object, HasWhatOthersNeed}},
    };
    return keywords;
}

/// The first problem of the parts of an object or an array.
std::string PartsProblem(const Check& check, const std::string& place)
{
    std::string problem;
    if (check.value.is_object() && check.schema.contains("properties"))
        for (const auto& [name, part] : check.schema.at("properties").items())
            if (problem.empty() && check.value.contains(name))
                problem = SchemaProblem(check.root, part, check.value.at(name), place + "/" + name);
    if (check.value.is_array() && check.schema.contains("items"))
        for (std::size_t index = 0; problem.empty() && index < check.value.size(); ++index)
            problem = SchemaProblem(check.root, check.schema.at("items"), check.value.at(index),
                                    place + "/" + std::to_string(index));
    return problem;
}

} // namespace

std::string SchemaProblem(const json& root, const json& schema, const json& value, const std::string& place)
{
    static const std::set<std::string> passedOver{"$schema",     "title",      "description", "default",
                                                  "definitions", "properties", "items"};
    if (schema.contains("$ref"))
    {
        const std::string pointer = schema.at("$ref").get<std::string>().substr(1);
        return SchemaProblem(root, root.at(json::json_pointer(pointer)), value, place);
    }
    const Check check{root, schema, value};
    for (const auto& [name, argument] : schema.items())
    {
        if (passedOver.count(name) == 1)
            continue;
        const auto keyword = Keywords().find(name);
        if (keyword == Keywords().end())
            throw std::logic_error("unknown keyword in the schema: " + name);
        if (AppliesTo(keyword->second, value) && !keyword->second.holds(check, argument))
            return (place.empty() ? "/" : place) + ": " + name;
    }
    return PartsProblem(check, place);
}

} // namespace calvix::test
