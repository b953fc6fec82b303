#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace calvix::test
{

/// Where `value` is not what `schema` describes, "/adapters/0: required", or an empty text where it is. References are
/// looked up in `root`. Knows the keywords that the schemas in docs/ use, and throws std::logic_error at any other.
std::string SchemaProblem(const nlohmann::json& root,
                          const nlohmann::json& schema,
                          const nlohmann::json& value,
                          const std::string& place = "");

} // namespace calvix::test
