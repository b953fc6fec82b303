#include "wrappers/recording/recorded_lines.h"

#include "wrappers/recording/lines.h"

#include <string_view>

namespace calvix::recording
{

namespace
{

using nlohmann::ordered_json;

/// Reads a recording line by line and knows where it is.
class LineReader
{
public:
    LineReader(std::istream& stream, const std::string& name) : m_stream(stream), m_name(name) {}

    std::size_t number() const { return m_number; }

    [[noreturn]] void Fail(const std::string& what) const
    {
        throw RecordingError(m_name + ":" + std::to_string(m_number) + ": " + what);
    }

    /// The next line; false at the end.
    bool Next(ordered_json& line)
    {
        std::string text;
        if (!std::getline(m_stream, text))
            return false;
        ++m_number;
        const bool whole = !m_stream.eof();
        line = ordered_json::parse(text, nullptr, false);
        if (!line.is_object())
            Fail(!whole          ? "the recording ends in the middle of this line"
                 : m_number == 1 ? "this is not a recording: its first line is not a header"
                                 : "this line is damaged: it is not a JSON object");
        return true;
    }

private:
    std::istream& m_stream;
    const std::string& m_name;
    std::size_t m_number = 0;
};

bool IsFlag(const ordered_json& line, const char* name)
{
    return line.contains(name) && line[name].is_boolean();
}

Header ReadHeader(LineReader& reader, const ordered_json& line)
{
    if (!line.contains(key::header))
        reader.Fail("this is not a recording: its first line is not a header");
    const ordered_json& version = line[key::header];
    if (!version.is_number_unsigned() || version == 0)
        reader.Fail("the header is damaged: its version is not a number");
    if (version > kRecordingVersion)
        reader.Fail("the recording has version " + version.dump() + "; this program reads recordings up to version " +
                    std::to_string(kRecordingVersion));
    if (!IsFlag(line, key::simulated) || !IsFlag(line, key::anonymised))
        reader.Fail("the header is damaged: it does not describe the session");
    return {line[key::simulated].get<bool>(), line[key::anonymised].get<bool>()};
}

/// Whether a line has the form of one of its kinds.
bool IsWellFormed(const ordered_json& line)
{
    const auto is = [&line](const char* name, bool (ordered_json::*kind)() const noexcept)
    { return line.contains(name) && (line[name].*kind)(); };
    if (line.contains(key::call))
        return is(key::call, &ordered_json::is_string) && is(key::arguments, &ordered_json::is_object) &&
               is(key::results, &ordered_json::is_object);
    if (line.contains(key::notification))
        return is(key::notification, &ordered_json::is_object);
    return is(key::mark, &ordered_json::is_string);
}

bool IsRemark(const ordered_json& line)
{
    return line.value(key::call, "") == std::string_view("OutputDebugStringA");
}

void ReadEnd(LineReader& reader, const ordered_json& line, RecordedLines& result)
{
    if (line[key::end] != reader.number() - 1)
        reader.Fail("the recording is damaged: " + line[key::end].dump() + " lines were written before this one");
    result.complete = true;
    ordered_json more;
    if (reader.Next(more))
        reader.Fail("the recording is damaged: this line follows its last one");
}

} // namespace

RecordedLines ReadRecording(std::istream& recording, const std::string& name)
{
    LineReader reader(recording, name);
    RecordedLines result;
    ordered_json line;
    if (!reader.Next(line))
        throw RecordingError(name + ":1: this is not a recording: the file is empty");
    result.header = ReadHeader(reader, line);
    result.lastLine = reader.number();
    while (!result.complete && reader.Next(line))
    {
        result.lastLine = reader.number();
        if (line.contains(key::end))
            ReadEnd(reader, line, result);
        else if (!IsWellFormed(line))
            reader.Fail("this line is damaged: it is not a call, a notification or a mark");
        else if (!IsRemark(line))
            result.lines.push_back({reader.number(), std::move(line)});
    }
    return result;
}

} // namespace calvix::recording
