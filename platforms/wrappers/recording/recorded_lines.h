#pragma once

#include "wrappers/recording/replay.h"

#include <nlohmann/json.hpp>

#include <vector>

namespace calvix::recording
{

/// A line of a recording, and its place.
struct RecordedLine
{
    std::size_t number = 0;
    nlohmann::ordered_json content;

    bool Has(const char* key) const { return content.contains(key); }
};

/// A recording as it was read: the lines that a replay goes by, in order.
struct RecordedLines
{
    Header header;
    std::vector<RecordedLine> lines;
    bool complete = false;    ///< the last line is there
    std::size_t lastLine = 0; ///< its number, or that of the last one that is there
};

/// Throws RecordingError for what is no recording, of a newer version, or damaged. That it breaks off after a whole line
/// is no error: what is there can be replayed.
RecordedLines ReadRecording(std::istream& recording, const std::string& name);

} // namespace calvix::recording
