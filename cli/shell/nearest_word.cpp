#include "shell/nearest_word.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// How many letters to add, to drop, to change or to swap with their neighbour until one word is the other.
std::size_t TypingErrors(std::string_view left, std::string_view right)
{
    std::vector<std::vector<std::size_t>> errors(left.size() + 1, std::vector<std::size_t>(right.size() + 1));
    for (std::size_t i = 0; i <= left.size(); ++i)
    {
        for (std::size_t j = 0; j <= right.size(); ++j)
        {
            if (i == 0 || j == 0)
            {
                errors[i][j] = i + j;
                continue;
            }
            const std::size_t change = left[i - 1] == right[j - 1] ? 0 : 1;
            errors[i][j] = (std::min)({errors[i - 1][j] + 1, errors[i][j - 1] + 1, errors[i - 1][j - 1] + change});
            if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1])
                errors[i][j] = (std::min)(errors[i][j], errors[i - 2][j - 2] + 1);
        }
    }
    return errors[left.size()][right.size()];
}

std::string NearestWord(std::string_view word, const std::vector<std::string>& known)
{
    std::string nearest;
    std::size_t fewest = word.size() / 3 + 2;
    for (const std::string& candidate : known)
    {
        // The beginning of a word identifies it.
        const bool begun = word.size() > 2 && std::string_view(candidate).starts_with(word);
        const std::size_t errors = begun ? 1 : TypingErrors(word, candidate);
        // As many errors as letters make any word any other.
        if (errors >= fewest || errors >= candidate.size() || errors >= word.size())
            continue;
        fewest = errors;
        nearest = candidate;
    }
    return nearest;
}

} // namespace

std::string DidYouMean(std::string_view word, const std::vector<std::string>& known)
{
    const std::string nearest = NearestWord(word, known);
    return nearest.empty() ? "" : "did you mean " + nearest + "? If not, ";
}

} // namespace calvix::host
