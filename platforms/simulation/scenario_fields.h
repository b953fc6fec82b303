#pragma once

#include "simulation/scenario_records.h"

namespace calvix::simulation
{

/// What goes through the rows of scenario_records.h: the reader, the writer, the maker of the schema. Each has a Row for
/// the fields, and whichever of the others it needs.
enum class Presence
{
    required, ///< must be there
    shown,    ///< may be left out, but is always written
    optional  ///< may be left out, and is where it has its default
};

template <typename Visitor>
class FieldRows
{
public:
    template <typename Member, typename Form>
    void Required(const char* name, Member& member, const Form& form, const char* description = "")
    {
        Self().Row(Presence::required, name, member, form, description);
    }
    template <typename Member, typename Form>
    void Shown(const char* name, Member& member, const Form& form, const char* description = "")
    {
        Self().Row(Presence::shown, name, member, form, description);
    }
    template <typename Member, typename Form>
    void Optional(const char* name, Member& member, const Form& form, const char* description = "")
    {
        Self().Row(Presence::optional, name, member, form, description);
    }

    void Record(const char* /*description*/) {}

    // Which fields exclude or require each other.
    void ExactlyOne(const char* /*one*/, const char* /*other*/) {}
    void NotBoth(const char* /*one*/, const char* /*other*/) {}
    void Together(const char* /*one*/, const char* /*other*/) {}
    void Alone(const char* /*name*/) {}

    template <typename Check>
    void AfterReading(const Check& /*check*/)
    {
    }

private:
    Visitor& Self() { return static_cast<Visitor&>(*this); }
};

} // namespace calvix::simulation
