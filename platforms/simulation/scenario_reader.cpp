#include "simulation/embedded_texts.h"
#include "simulation/scenario_fields.h"

#include <algorithm>
#include <fstream>

namespace calvix::simulation
{

namespace
{

/// Reads the fields of a record. A field that is wrong in itself is refused before what is wrong with the whole.
class Reader final : public Fields
{
public:
    explicit Reader(const Value& place) : m_place(place) {}

    void Record(const char* description) override
    {
        m_place = m_place.Expecting(description);
        if (!m_place.Json().is_object())
            m_place.RefuseType();
    }

    void ExactlyOne(const char* one, const char* other) override
    {
        RequireIf(!m_place.Has(other), one);
        NotBoth(one, other);
    }

    void NotBoth(const char* one, const char* other) override
    {
        m_excludes = m_excludes || (m_place.Has(one) && m_place.Has(other));
    }

    void Together(const char* one, const char* other) override
    {
        RequireIf(m_place.Has(one), other);
        RequireIf(m_place.Has(other), one);
    }

    void Alone(const char* name) override
    {
        m_excludes = m_excludes || (m_place.Has(name) && m_place.Json().size() > 1);
    }

    void AfterReading(const std::function<void(const Value&)>& check) override
    {
        RefuseWhole();
        check(m_place.Expecting(""));
    }

    void RefuseWhole() const
    {
        for (const auto& [name, value] : m_place.Json().items())
            if (std::find(m_known.begin(), m_known.end(), name) == m_known.end())
                m_place.Refuse("unknown field '" + name + "'");
        if (m_missing != nullptr)
            m_place.Refuse(std::string("missing field '") + m_missing + "'");
        if (m_excludes)
            m_place.Refuse("fields that exclude each other");
    }

private:
    void Row(Presence presence, const char* name, const Field& field, const char* description) override
    {
        m_known.push_back(name);
        RequireIf(presence == Presence::required, name);
        if (m_place.Has(name))
            field.Read(m_place.Member(name, description));
    }

    void RequireIf(bool isNeeded, const char* name)
    {
        if (isNeeded && !m_place.Has(name) && m_missing == nullptr)
            m_missing = name;
    }

    Value m_place;
    std::vector<std::string> m_known;
    const char* m_missing = nullptr;
    bool m_excludes = false;
};

/// "[json.exception.parse_error.101] parse error at line 3, column 5: ..." from "line" on; what tells of no line, such as
/// a number too large to be one, without its label.
std::string SyntaxProblem(const Json::exception& error)
{
    const std::string text = error.what();
    const std::size_t line = text.find("line ");
    return text.substr(line != std::string::npos ? line : text.find("] ") + 2);
}

} // namespace

void ReadRecord(const Value& value, const Description& record)
{
    Reader reader(value);
    record(reader);
    reader.RefuseWhole();
}

Scenario ParseScenario(const std::string& text, const std::string& source)
{
    Json document;
    try
    {
        document = Json::parse(text);
    }
    catch (const Json::exception& error)
    {
        throw ScenarioError(source + ": " + SyntaxProblem(error));
    }
    Scenario scenario;
    ReadRecord(Value(document, source), Describing(scenario));
    return scenario;
}

Scenario LoadScenario(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string text;
    char part[4096];
    while (file.read(part, sizeof(part)), file.gcount() > 0)
        text.append(part, static_cast<std::size_t>(file.gcount()));
    // A folder opens and fails only when it is read.
    if (!file.is_open() || file.bad())
        throw ScenarioError(path + ": cannot be read");
    return ParseScenario(text, path);
}

Scenario BuiltInScenario()
{
    return ParseScenario(kBuiltInScenarioText, "the built-in scenario");
}

} // namespace calvix::simulation
