#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace calvix::host
{

/// How --interface names an adapter, besides by its description.

/// Whether both texts are the same GUID, with braces or without, in letters of any case.
bool SameGuidText(std::string_view left, std::string_view right);
/// The place, from 0, of a number from 1 to `count`; none for any other text.
std::optional<std::size_t> PlaceOf(const std::string& text, std::size_t count);

} // namespace calvix::host
