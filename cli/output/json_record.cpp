#include "output/json_record.h"

namespace calvix::host
{

JsonRecord::JsonRecord(const char* meaning, const char* name)
    : m_name(name != nullptr ? name : ""), m_part{Json::object(), Json::object()}
{
    if (meaning != nullptr)
        m_part.schema["description"] = meaning;
    m_part.schema["type"] = "object";
    m_part.schema["required"] = Json::array();
    m_part.schema["properties"] = Json::object();
}

JsonRecord& JsonRecord::AddPart(const char* name, const JsonPart& part, bool present, bool required)
{
    if (present)
        m_part.value[name] = part.value;
    if (required)
        m_part.schema["required"].push_back(name);
    m_part.schema["properties"][name] = part.schema;
    return *this;
}

JsonRecord& JsonRecord::Join(const JsonRecord& other)
{
    m_part.value.update(other.m_part.value);
    for (const Json& name : other.m_part.schema["required"])
        m_part.schema["required"].push_back(name);
    m_part.schema["properties"].update(other.m_part.schema["properties"]);
    m_definitions.update(other.m_definitions);
    return *this;
}

JsonPart JsonRecord::Shaped(JsonPart part, const Shape& shape)
{
    if (shape.definition != nullptr)
        part.schema = {{"$ref", std::string("#/definitions/") + shape.definition}};
    if (!shape.among.empty())
        part.schema = {{"enum", shape.among}};
    if (shape.pattern != nullptr)
        part.schema["pattern"] = shape.pattern;
    if (shape.meaning != nullptr)
        part.schema["description"] = shape.meaning;
    return part;
}

JsonPart JsonRecord::OrNull(JsonPart part)
{
    if (part.schema.contains("type") && part.schema["type"] != "object")
        part.schema["type"] = {part.schema["type"], "null"};
    else
        part.schema = {{"anyOf", {part.schema, {{"type", "null"}}}}};
    return part;
}

JsonPart JsonRecord::Plain(JsonPart part, bool isEmpty, const Shape& shape)
{
    part = Shaped(std::move(part), shape);
    if (!shape.emptyIsNull)
        return part;
    part = OrNull(std::move(part));
    if (isEmpty)
        part.value = nullptr;
    return part;
}

JsonPart JsonRecord::Number(const Json& number, bool notNegative, const Shape& shape)
{
    JsonPart part{number, {{"type", "integer"}}};
    if (notNegative)
        part.schema["minimum"] = 0;
    return Plain(std::move(part), number == 0, shape);
}

JsonPart JsonRecord::Text(const std::string& text, const Shape& shape)
{
    return Plain({text, {{"type", "string"}}}, text.empty(), shape);
}

JsonPart JsonRecord::Nested(const JsonRecord& record)
{
    m_definitions.update(record.m_definitions);
    if (record.m_name.empty())
        return record.m_part;
    m_definitions[record.m_name] = record.m_part.schema;
    return {record.m_part.value, {{"$ref", "#/definitions/" + record.m_name}}};
}

void PrintJson(std::ostream& out, const JsonRecord& record)
{
    // Texts from the air and from documents may hold anything: what is not UTF-8 must not end the output.
    out << record.value().dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace calvix::host
