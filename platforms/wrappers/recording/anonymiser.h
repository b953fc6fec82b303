#pragma once

#include <nlohmann/json_fwd.hpp>

#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace calvix::recording
{

/// Replaces the names that reveal where a recording was made by invented ones: SSIDs, profile names, addresses of
/// access points, GUIDs and descriptions of adapters. The same name always becomes the same one, of the same length
/// where that can be, so that tables keep their columns. Names are learned first and replaced when all are known, because
/// a text may mention a name before the service does.
class Anonymiser
{
public:
    void LearnNetwork(std::string_view bytes) { LearnName(bytes, "network"); }
    void LearnAdapter(std::string_view description) { LearnName(description, "adapter"); }
    void LearnAddress(const std::array<std::uint8_t, 6>& address);
    /// "{...}"
    void LearnGuid(std::string_view text);

    /// Replaces what was learned in all lines, which are in the order of the recording.
    void Apply(std::vector<nlohmann::ordered_json>& lines);
    /// The same in a text: in a name or a profile's document at any time, in a sentence after that.
    std::string InText(const std::string& text) const;

private:
    void LearnName(std::string_view bytes, std::string_view word);
    std::string PseudonymOf(std::string_view bytes, std::string_view word);
    void Replace(std::string_view original, std::string_view pseudonym);
    void LearnAlias(nlohmann::ordered_json& line);

    std::string InProfile(const std::string& xml) const;
    std::string InSentence(const std::string& text) const;
    void InValue(nlohmann::ordered_json& value) const;

    std::map<std::string, std::string, std::less<>> m_pseudonyms; ///< of whole texts, in every form
    std::set<std::string> m_given;
    std::map<std::string, int, std::less<>> m_counts;
    std::vector<std::pair<std::string, std::string>> m_longestFirst;
};

/// The information elements that contain no names: rates, channel, country, security and what the radio can do, and nothing
/// of a vendor's.
std::string ElementsWithoutNames(const std::string& elements);

} // namespace calvix::recording
