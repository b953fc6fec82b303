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
class SchemaMaker : public FieldRows<SchemaMaker>
{
public:
    Json schema;

    void Record(const char* description)
    {
        schema = {{"description", description},
                  {"type", "object"},
                  {"additionalProperties", false},
                  {"properties", Json::object()}};
    }

    template <typename Member, typename Form>
    void Row(Presence presence, const char* name, const Member& usual, const Form& form, const char* description)
    {
        Json& property = schema["properties"][name];
        if (*description != '\0')
            property["description"] = description;
        property.update(form.Schema());
        if (presence == Presence::required)
            schema["required"].push_back(name);
        else if (const Json value = form.Write(usual); IsWord(value))
            property["default"] = value;
    }

    void ExactlyOne(const char* one, const char* other)
    {
        schema["oneOf"] = {{{"required", {one}}}, {{"required", {other}}}};
    }

    void NotBoth(const char* one, const char* other) { schema["not"] = {{"required", {one, other}}}; }

    void Together(const char* one, const char* other) { schema["dependencies"] = {{one, {other}}, {other, {one}}}; }

    void Alone(const char* name) { schema["dependencies"] = {{name, {{"maxProperties", 1}}}}; }
};

} // namespace

template <typename Record>
Json RecordSchema()
{
    SchemaMaker maker;
    Record usual;
    Describe(maker, usual);
    return maker.schema;
}

std::string ScenarioSchema()
{
    Json schema = {{"$schema", "http://json-schema.org/draft-07/schema#"}, {"title", "Calvix scenario"}};
    schema.update(RecordSchema<Scenario>());
    return SchemaText(schema) + "\n";
}

} // namespace calvix::simulation
