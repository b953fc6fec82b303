#include "simulation/embedded_texts.h"
#include "simulation/scenario_fields.h"

#include <algorithm>
#include <fstream>

namespace calvix::simulation
{

namespace
{

using nlohmann::json;

/// Reads the fields of a record. A field that is wrong in itself is refused before what is wrong with the whole.
class Reader : public FieldRows<Reader>
{
public:
    explicit Reader(const Value& place) : m_place(place) {}

    void Record(const char* description)
    {
        m_place = m_place.Expecting(description);
        if (!m_place.Json().is_object())
            m_place.RefuseType();
    }

    template <typename Member, typename Form>
    void Row(Presence presence, const char* name, Member& member, const Form& form, const char* description)
    {
        m_known.push_back(name);
        RequireIf(presence == Presence::required, name);
        if (m_place.Has(name))
            form.Read(m_place.Member(name, description), member);
    }

    void ExactlyOne(const char* one, const char* other)
    {
        RequireIf(!m_place.Has(other), one);
        NotBoth(one, other);
    }

    void NotBoth(const char* one, const char* other)
    {
        m_excludes = m_excludes || (m_place.Has(one) && m_place.Has(other));
    }

    void Together(const char* one, const char* other)
    {
        RequireIf(m_place.Has(one), other);
        RequireIf(m_place.Has(other), one);
    }

    void Alone(const char* name) { m_excludes = m_excludes || (m_place.Has(name) && m_place.Json().size() > 1); }

    template <typename Check>
    void AfterReading(const Check& check)
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
std::string SyntaxProblem(const json::exception& error)
{
    const std::string text = error.what();
    const std::size_t line = text.find("line ");
    return text.substr(line != std::string::npos ? line : text.find("] ") + 2);
}

} // namespace

template <typename Record>
void ReadRecord(const Value& value, Record& record)
{
    Reader reader(value);
    Describe(reader, record);
    reader.RefuseWhole();
}

Scenario ParseScenario(const std::string& text, const std::string& source)
{
    json document;
    try
    {
        document = json::parse(text);
    }
    catch (const json::exception& error)
    {
        throw ScenarioError(source + ": " + SyntaxProblem(error));
    }
    Scenario scenario;
    ReadRecord(Value(document, source), scenario);
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
