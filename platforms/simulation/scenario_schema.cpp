#include "simulation/scenario_fields.h"
#include "simulation/schema_text.h"

namespace calvix::simulation
{

namespace
{

/// The defaults that the schema can express; the others are in the description.
bool IsWord(const Json& value)
{
    return value.is_boolean() || value.is_number() || (value.is_string() && value != "");
}

/// Puts the fields of a record into a JSON Schema.
class SchemaMaker final : public Fields
{
public:
    Json schema;

    void Record(const char* description) override
    {
        schema = {{"description", description},
                  {"type", "object"},
                  {"additionalProperties", false},
                  {"properties", Json::object()}};
    }

    void ExactlyOne(const char* one, const char* other) override
    {
        schema["oneOf"] = {{{"required", {one}}}, {{"required", {other}}}};
    }

    void NotBoth(const char* one, const char* other) override { schema["not"] = {{"required", {one, other}}}; }

    void Together(const char* one, const char* other) override
    {
        schema["dependencies"] = {{one, {other}}, {other, {one}}};
    }

    void Alone(const char* name) override { schema["dependencies"] = {{name, {{"maxProperties", 1}}}}; }

private:
    void Row(Presence presence, const char* name, const Field& field, const char* description) override
    {
        Json& property = schema["properties"][name];
        if (*description != '\0')
            property["description"] = description;
        property.update(field.Schema());
        if (presence == Presence::required)
            schema["required"].push_back(name);
        else if (const Json value = field.Write(); IsWord(value))
            property["default"] = value;
    }
};

} // namespace

Json RecordSchema(const Description& record)
{
    SchemaMaker maker;
    record(maker);
    return maker.schema;
}

std::string ScenarioSchema()
{
    Scenario usual;
    Json schema = {{"$schema", "http://json-schema.org/draft-07/schema#"}, {"title", "Calvix scenario"}};
    schema.update(RecordSchema(Describing(usual)));
    return SchemaText(schema) + "\n";
}

} // namespace calvix::simulation
