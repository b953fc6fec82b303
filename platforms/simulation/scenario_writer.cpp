#include "simulation/scenario_fields.h"

namespace calvix::simulation
{

namespace
{

/// Writes the fields of a record. What is optional is kept apart until it is known whether it has its default.
class Writer : public FieldRows<Writer>
{
public:
    Json record = Json::object();
    std::vector<const char*> optional;

    template <typename Member, typename Form>
    void Row(Presence presence, const char* name, const Member& member, const Form& form, const char*)
    {
        Json value = form.Write(member);
        if (!value.is_discarded())
            record[name] = std::move(value);
        if (presence == Presence::optional)
            optional.push_back(name);
    }
};

template <typename Record>
Writer WriteAll(Record record)
{
    Writer writer;
    Describe(writer, record);
    return writer;
}

} // namespace

template <typename Record>
Json WriteRecord(const Record& record)
{
    static const Json usual = WriteAll(Record{}).record;
    Writer writer = WriteAll(record);
    for (const char* name : writer.optional)
        if (writer.record.contains(name) && usual.contains(name) && writer.record[name] == usual[name])
            writer.record.erase(name);
    return writer.record;
}

std::string WriteScenario(const Scenario& scenario)
{
    return WriteRecord(scenario).dump(2) + "\n";
}

} // namespace calvix::simulation
