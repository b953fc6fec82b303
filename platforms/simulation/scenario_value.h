#pragma once

#include "simulation/scenario.h"

#include <nlohmann/json.hpp>

#include <string>
#include <utility>

namespace calvix::simulation
{

/// Keeps the members in the order in which they are put in, so that a text reads as the gallery's files do.
using Json = nlohmann::ordered_json;

/// A value of a scenario file that knows its place and what belongs there, so that a refusal names both.
class Value
{
public:
    Value(const simulation::Json& json, const std::string& source, std::string pointer = "", const char* expected = "")
        : m_json(&json), m_source(&source), m_pointer(std::move(pointer)), m_expected(expected)
    {
    }

    const simulation::Json& Json() const { return *m_json; }
    bool Has(const char* name) const { return m_json->contains(name); }

    /// The member of this name, which is there, and what a refusal says belongs there.
    Value Member(const char* name, const char* expected = "") const
    {
        return {m_json->at(name), *m_source, m_pointer + "/" + name, expected};
    }

    Value Element(std::size_t index, const char* expected = "") const
    {
        return {m_json->at(index), *m_source, m_pointer + "/" + std::to_string(index), expected};
    }

    /// The same value, where something else is said to belong.
    Value Expecting(const char* expected) const { return {*m_json, *m_source, m_pointer, expected}; }

    const std::string& Text() const
    {
        if (!m_json->is_string())
            RefuseType();
        return m_json->get_ref<const std::string&>();
    }

    [[noreturn]] void Refuse(const std::string& problem) const
    {
        throw ScenarioError(*m_source + ": " + (m_pointer.empty() ? "/" : m_pointer) + ": " + problem +
                            (*m_expected == '\0' ? "" : std::string(". Expected: ") + m_expected));
    }

    [[noreturn]] void RefuseType() const { Refuse("not of the type required"); }

private:
    const simulation::Json* m_json;
    const std::string* m_source;
    std::string m_pointer;
    const char* m_expected;
};

} // namespace calvix::simulation
