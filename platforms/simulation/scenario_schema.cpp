#include "simulation/scenario_schema.h"

#include "simulation/embedded_texts.h"
#include "simulation/scenario.h"

#include <nlohmann/json.hpp>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

#include <optional>
#include <string_view>

namespace calvix::simulation
{

namespace
{

using nlohmann::json;
using Problem = valijson::ValidationResults::Error;

const json& SchemaDocument()
{
    static const json document = json::parse(kScenarioSchemaText);
    return document;
}

const valijson::Schema& CompiledSchema()
{
    struct Compiled
    {
        Compiled()
        {
            const valijson::adapters::NlohmannJsonAdapter adapter(SchemaDocument());
            valijson::SchemaParser(valijson::SchemaParser::kDraft7).populateSchema(adapter, schema);
        }
        valijson::Schema schema;
    };
    static const Compiled compiled;
    return compiled.schema;
}

/// The validator reports a problem at its place and then once more at each place around it; the innermost report is the
/// one that helps.
std::optional<Problem> InnermostProblem(valijson::ValidationResults& results)
{
    std::optional<Problem> innermost;
    Problem problem;
    while (results.popError(problem))
        if (!innermost || problem.context.size() > innermost->context.size())
            innermost = problem;
    return innermost;
}

/// The validator's steps are "<root>", "[accessPoints]", "[3]".
std::string Pointer(const Problem& problem)
{
    std::string pointer;
    for (std::size_t step = 1; step < problem.context.size(); ++step)
        pointer += "/" + problem.context[step].substr(1, problem.context[step].size() - 2);
    return pointer.empty() ? "/" : pointer;
}

const json* FollowReference(const json* schema)
{
    if (schema == nullptr || !schema->contains("$ref"))
        return schema;
    return &SchemaDocument().at(json::json_pointer(schema->at("$ref").get<std::string>().substr(1)));
}

/// What the schema says belongs at the place of the problem, empty where it does not say.
std::string Expected(const Problem& problem)
{
    const json* schema = &SchemaDocument();
    for (std::size_t step = 1; step < problem.context.size() && schema != nullptr; ++step)
    {
        const std::string name = problem.context[step].substr(1, problem.context[step].size() - 2);
        const json* next = nullptr;
        if (schema->contains("items"))
            next = &schema->at("items");
        else if (schema->contains("properties") && schema->at("properties").contains(name))
            next = &schema->at("properties").at(name);
        schema = FollowReference(next);
    }
    return schema == nullptr ? "" : schema->value("description", "");
}

bool StartsWith(const std::string& text, std::string_view beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

std::string Quoted(const std::string& text)
{
    const std::size_t begin = text.find('\'', text.rfind(": '") == std::string::npos ? 0 : text.rfind(": '"));
    return text.substr(begin, text.rfind('\'') - begin + 1);
}

/// The validator's words, in ours where they would puzzle somebody who wrote a scenario.
std::string InOurWords(const std::string& description)
{
    if (StartsWith(description, "Object contains a property"))
        return "unknown field " + Quoted(description);
    if (StartsWith(description, "Missing required property"))
        return "missing field " + Quoted(description);
    if (StartsWith(description, "Missing dependency"))
        return "missing field " + Quoted(description);
    if (StartsWith(description, "Target should not validate") ||
        StartsWith(description, "Failed to validate against exactly") ||
        StartsWith(description, "Object should have no more than"))
        return "fields that exclude each other";
    if (StartsWith(description, "Failed to match against any enum"))
        return "not one of the values allowed";
    if (StartsWith(description, "Failed to match regex"))
        return "not in the form required";
    if (StartsWith(description, "Value type not permitted"))
        return "not of the type required";
    return description.substr(0, description.find_last_not_of('.') + 1);
}

} // namespace

const char* ScenarioSchema()
{
    return kScenarioSchemaText;
}

void ValidateScenario(const json& document, const std::string& source)
{
    valijson::ValidationResults results;
    valijson::Validator validator(valijson::Validator::kStrongTypes);
    if (validator.validate(CompiledSchema(), valijson::adapters::NlohmannJsonAdapter(document), &results))
        return;
    const std::optional<Problem> problem = InnermostProblem(results);
    if (!problem)
        throw ScenarioError(source + ": /: not a scenario");
    const std::string expected = Expected(*problem);
    throw ScenarioError(source + ": " + Pointer(*problem) + ": " + InOurWords(problem->description) +
                        (expected.empty() ? "" : ". Expected: " + expected));
}

} // namespace calvix::simulation
