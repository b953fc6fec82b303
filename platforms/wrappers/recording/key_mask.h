#pragma once

#include <set>
#include <string>
#include <string_view>

namespace calvix::recording
{

/// What replaces a key.
inline constexpr std::string_view kMaskedKey = "********";

/// Takes keys out of texts: the content of every keyMaterial element of a profile, whole or in pieces, and the same keys
/// wherever they come up again. It needs no lock of its own where its owner has one.
class KeyMask
{
public:
    std::string InText(std::string text);
    /// The same for bytes that are no text: their number stays, as sizes may depend on it.
    std::string InBytes(std::string bytes) const;

private:
    void Remember(const std::string& key);

    std::set<std::string> m_keys;
};

} // namespace calvix::recording
