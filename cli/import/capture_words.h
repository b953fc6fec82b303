#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace calvix::host
{

/// What the words among a capture's values mean. Only those are here that neither their place nor their shape tells: the
/// names of ciphers, radio types and the like are the same in every language of the system.
enum class WordKind
{
    networkType,    ///< "infrastructure" or "independent"
    authentication, ///< "open", "shared", "OWE", or what follows "WPA2-": "personal" or "enterprise"
    encryption,     ///< "none"
    connectionMode, ///< "auto" or "manual"
    radioSwitch     ///< "on" or "off"
};

/// Words that the user explains: as the capture has them, and what they mean.
using ExplainedWords = std::vector<std::pair<std::string, std::string>>;

/// The words of a capture's language.
struct Vocabulary
{
    /// Whether the capture's labels are those of another language than English. Whatever an English capture says is known,
    /// so that an unknown word there is damage.
    bool foreign = false;
    ExplainedWords explained;
};

/// The meaning of a word, without regard to case, blanks around hyphens and the kind of hyphen.
std::optional<std::string_view> MeaningOf(WordKind kind, std::string_view word);

/// What the user says that a word means.
std::optional<std::string> Explained(const Vocabulary& vocabulary, std::string_view word);

/// The switch that the last word of a text sets, "on" or "off".
std::optional<std::string_view> SwitchOf(std::string_view text);

} // namespace calvix::host
