#pragma once

#include "files/text_encoding.h"
#include "simulation/ascii_case.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// What is worth a warning: the line, and what was found there and done with it.
struct CaptureWarnings
{
    std::string source; ///< what messages call the text
    std::vector<std::string> warnings;

    void Warn(std::size_t line, const std::string& what)
    {
        warnings.push_back(source + ":" + std::to_string(line) + ": " + what);
    }

    /// Throws CaptureError, with the first warning if there is any, unless something could be used.
    void RefuseUnless(bool isUseful) const
    {
        if (!isUseful && !warnings.empty())
            throw CaptureError(warnings.front());
    }

    /// Runs `read`. What it complains of costs no more than the `loss`, which the warning names.
    template <typename Read>
    void OrWarn(const std::string& loss, Read read)
    {
        try
        {
            read();
        }
        catch (const LineError& error)
        {
            Warn(error.line(), std::string(error.what()) + "; " + loss);
        }
    }
};

/// `text` without the blanks around it, those of other scripts and those that do not break a line included.
std::string_view Trim(std::string_view text);

/// The lines of a text, without their ends.
std::vector<std::string_view> LinesOf(std::string_view text);

using simulation::SameButForCase;

/// Whether the words of a text, set apart by blanks, include this one.
bool HasWord(std::string_view text, std::string_view word);

/// The first decimal number in a text, -1 where there is none.
int FirstNumber(std::string_view text);

/// -1 unless the whole text is a decimal number.
int WholeNumber(std::string_view text);

/// For "1 2 5.5 11": true.
bool IsNumberList(std::string_view text);

/// The small letter of a capital of the Latin, Greek or Cyrillic script; any other character as it is.
char32_t SmallLetter(char32_t letter);

/// UTF-8 as code points; what is not UTF-8 becomes U+FFFD.
std::u32string CodePoints(std::string_view utf8);

} // namespace calvix::host
