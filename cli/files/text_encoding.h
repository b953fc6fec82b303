#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace calvix::host
{

/// A file that cannot be imported. The message reads "file:LINE: what is wrong", or "file: what" where no line applies.
class CaptureError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What is wrong with one line, by a reader that does not know what the text is called.
class LineError : public std::runtime_error
{
public:
    LineError(std::size_t line, const std::string& what) : std::runtime_error(what), m_line(line) {}
    std::size_t line() const { return m_line; }

private:
    std::size_t m_line;
};

/// Runs `read` and says of which file it complains. `source` is what messages call the text.
template <typename Read>
auto ReadingFrom(const std::string& source, Read read)
{
    try
    {
        return read();
    }
    catch (const LineError& error)
    {
        throw CaptureError(source + ":" + std::to_string(error.line()) + ": " + error.what());
    }
}

/// The same text in UTF-8 without a byte order mark: UTF-16 is recognised by its mark, anything else must be UTF-8.
/// Throws LineError for bytes that are neither.
std::string ToUtf8(std::string_view bytes);

/// Whether the text begins with the mark of UTF-8 or UTF-16.
bool HasByteOrderMark(std::string_view bytes);

/// UTF-16 without a byte order mark as UTF-8. Throws LineError for half a surrogate pair and half a character.
std::string FromUtf16(std::string_view bytes, bool bigEndian);

/// A whole file as it lies on the disk. Throws CaptureError when it cannot be read.
std::string ReadWholeFile(const std::string& path);

} // namespace calvix::host
