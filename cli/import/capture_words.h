#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace calvix::host
{

/// capture_words.txt, which the build compiles in: what the words of each language mean.
extern const char* const kCaptureWords;

/// Words that the user explains: as the capture has them, and what they mean.
using ExplainedWords = std::vector<std::pair<std::string, std::string>>;

/// What the words among a capture's values mean. Only those are known here that neither their place nor their shape identifies:
/// the names of ciphers, radio types and the like are the same in every language of the system. The meanings are
/// infrastructure, independent (network types); open, shared, OWE, and for what follows "WPA2-" personal, enterprise
/// (authentications); none (a cipher); auto, manual (who asked for a connection); on, off (radio switches).
struct Vocabulary
{
    /// Whether the capture's labels are those of another language than English. Every word of an English capture is known,
    /// so that an unknown word there is damage.
    bool foreign = false;
    ExplainedWords explained;

    /// What the user says that a word means; empty: nothing.
    std::string Explained(std::string_view word) const;

    /// What the user says that a word means; else the one of these meanings that it has, without regard to case, blanks
    /// around hyphens and the kind of hyphen. Empty if unknown.
    std::string MeaningOf(std::string_view word, std::initializer_list<std::string_view> meanings) const;
};

/// The switch that the last word of a text sets, "on" or "off"; empty where it is neither.
std::string_view SwitchOf(std::string_view text);

} // namespace calvix::host
