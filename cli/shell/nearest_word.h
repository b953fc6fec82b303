#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// The one of `known` that was probably meant by `word`; empty when none is near.
std::string NearestWord(std::string_view word, const std::vector<std::string>& known);

} // namespace calvix::host
