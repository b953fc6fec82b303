#include "shell/output_schema.h"

#include "output/json_output.h"
#include "simulation/schema_text.h"

namespace calvix::host
{

namespace
{

/// Texts and numbers that many records have.
Json CommonDefinitions()
{
    return {{"ssid",
             {{"description", "As people read it: what is not UTF-8, and control characters, as \\xE9"},
              {"type", "string"}}},
            {"ssidHex",
             {{"description", "The SSID's bytes in hexadecimal"}, {"type", "string"}, {"pattern", "^([0-9A-F]{2})*$"}}},
            {"bssid", {{"type", "string"}, {"pattern", "^([0-9A-F]{2}:){5}[0-9A-F]{2}$"}}},
            {"quality", {{"description", "0 to 100"}, {"type", "integer"}, {"minimum", 0}, {"maximum", 100}}}};
}

/// "calvix status, connect, disconnect"
std::string PrintedBy(const CommandSet& commands, const std::string& definition)
{
    std::string text;
    for (const Command& command : commands.commands)
        if (command.definition == definition)
            text += (text.empty() ? "calvix " : ", ") + command.path;
    return text;
}

class Definitions
{
public:
    void Add(const std::string& name, const std::string& meaning, const std::vector<JsonRecord>& records)
    {
        Json definition = {{"description", meaning}};
        for (const JsonRecord& record : records)
        {
            m_all.update(record.definitions());
            if (records.size() == 1)
                definition.update(record.schema());
            else
                definition["oneOf"].push_back(record.schema());
        }
        definition["description"] = meaning;
        m_all[name] = definition;
        m_outputs.push_back({{"$ref", "#/definitions/" + name}});
    }

    Json all() const { return m_all; }
    Json outputs() const { return m_outputs; }

private:
    Json m_all = CommonDefinitions();
    Json m_outputs = Json::array();
};

} // namespace

std::string OutputSchema(const CommandSet& commands)
{
    Definitions definitions;
    for (const Command& command : commands.commands)
        if (command.records != nullptr)
            definitions.Add(command.definition, PrintedBy(commands, command.definition), command.records());
    definitions.Add("failure", "Any command that fails", {Describe(FailureReport{})});
    const Json schema = {{"$schema", "http://json-schema.org/draft-07/schema#"},
                         {"title", "Calvix output"},
                         {"description",
                          "What the commands print with --json, one definition a command. Members may be "
                          "added; none is renamed. What is unknown is null."},
                         {"anyOf", definitions.outputs()},
                         {"definitions", definitions.all()}};
    return simulation::SchemaText(schema) + "\n";
}

} // namespace calvix::host
