#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace calvix::simulation
{

/// The text of a schema, in which a field takes one line.
inline std::string SchemaText(const nlohmann::ordered_json& value, const std::string& indent = "")
{
    std::string line = value.dump();
    if (!value.is_structured() || line.find('{', 1) == std::string::npos)
        return line;
    std::string text;
    for (const auto& [name, part] : value.items())
        text += (text.empty() ? "\n  " : ",\n  ") + indent + (value.is_object() ? "\"" + name + "\": " : "") +
                SchemaText(part, indent + "  ");
    text += "\n" + indent;
    return value.is_object() ? "{" + text + "}" : "[" + text + "]";
}

} // namespace calvix::simulation
