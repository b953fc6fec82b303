#pragma once

#include "simulation/scenario_value.h"

#include <functional>

namespace calvix::simulation
{

enum class Presence
{
    required, ///< must be there
    shown,    ///< may be left out, but is always written
    optional  ///< may be left out, and is where it has its default
};

/// A member of a record in the form that it has in a scenario file (scenario_forms.h).
class Field
{
public:
    virtual ~Field() = default;
    virtual void Read(const Value& value) const = 0;
    virtual Json Write() const = 0;
    virtual Json Schema() const = 0;
};

template <typename Member, typename Form>
class FieldOf final : public Field
{
public:
    FieldOf(Member& member, const Form& form) : m_member(member), m_form(form) {}

    void Read(const Value& value) const override { m_form.Read(value, m_member); }
    Json Write() const override { return m_form.Write(m_member); }
    Json Schema() const override { return m_form.Schema(); }

private:
    Member& m_member;
    const Form& m_form;
};

/// What goes through the rows of scenario_records.cpp: the reader, the writer, the maker of the schema.
class Fields
{
public:
    virtual ~Fields() = default;

    template <typename Member, typename Form>
    void Required(const char* name, Member& member, const Form& form, const char* description = "")
    {
        Row(Presence::required, name, FieldOf(member, form), description);
    }
    template <typename Member, typename Form>
    void Shown(const char* name, Member& member, const Form& form, const char* description = "")
    {
        Row(Presence::shown, name, FieldOf(member, form), description);
    }
    template <typename Member, typename Form>
    void Optional(const char* name, Member& member, const Form& form, const char* description = "")
    {
        Row(Presence::optional, name, FieldOf(member, form), description);
    }

    virtual void Record(const char* /*description*/) {}

    // Which fields exclude or require each other.
    virtual void ExactlyOne(const char* /*one*/, const char* /*other*/) {}
    virtual void NotBoth(const char* /*one*/, const char* /*other*/) {}
    virtual void Together(const char* /*one*/, const char* /*other*/) {}
    virtual void Alone(const char* /*name*/) {}

    virtual void AfterReading(const std::function<void(const Value&)>& /*check*/) {}

private:
    virtual void Row(Presence presence, const char* name, const Field& field, const char* description) = 0;
};

/// Sends the fields of one record through the rows.
using Description = std::function<void(Fields&)>;

template <typename Record>
Description Describing(Record& record)
{
    return [&record](Fields& fields) { Describe(fields, record); };
}

void ReadRecord(const Value& value, const Description& record);
/// `usual` has what optional fields are left out with.
Json WriteRecord(const Description& record, const Description& usual);
Json RecordSchema(const Description& record);

/// The fields of a scenario file.
void Describe(Fields& fields, Scenario& scenario);

} // namespace calvix::simulation
