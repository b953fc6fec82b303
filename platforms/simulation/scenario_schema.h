#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace calvix::simulation
{

/// Throws ScenarioError if the document is not what the schema asks for; `source` is what the message calls it.
void ValidateScenario(const nlohmann::json& document, const std::string& source);

} // namespace calvix::simulation
