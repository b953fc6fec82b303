#include "simulation/scenario_fields.h"

#include <vector>

namespace calvix::simulation
{

namespace
{

/// Writes the fields of a record. What is optional is kept apart until it is known whether it has its default.
class Writer final : public Fields
{
public:
    explicit Writer(const Description& described) { described(*this); }

    Json record = Json::object();
    std::vector<const char*> optional;

private:
    void Row(Presence presence, const char* name, const Field& field, const char*) override
    {
        Json value = field.Write();
        if (!value.is_discarded())
            record[name] = std::move(value);
        if (presence == Presence::optional)
            optional.push_back(name);
    }
};

} // namespace

Json WriteRecord(const Description& record, const Description& usual)
{
    Writer written(record);
    const Json defaults = Writer(usual).record;
    for (const char* name : written.optional)
        if (written.record.contains(name) && defaults.contains(name) && written.record[name] == defaults[name])
            written.record.erase(name);
    return written.record;
}

std::string WriteScenario(const Scenario& scenario)
{
    Scenario copy = scenario;
    Scenario usual;
    return WriteRecord(Describing(copy), Describing(usual)).dump(2) + "\n";
}

} // namespace calvix::simulation
