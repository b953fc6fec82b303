#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// Begins an advice: "did you mean scan? If not, ", the one of `known` that is nearest to `word`; empty when none is near.
std::string DidYouMean(std::string_view word, const std::vector<std::string>& known);

} // namespace calvix::host
