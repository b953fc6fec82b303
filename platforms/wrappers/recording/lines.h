#pragma once

namespace calvix::recording
{

/// What the lines of a recording consist of; docs/recordings.md describes it. A change that older programs cannot read
/// makes a new version.
inline constexpr unsigned kRecordingVersion = 1;

namespace key
{

/// The first line: the version, and facts about the session.
inline constexpr const char* header = "calvixRecording";
inline constexpr const char* simulated = "simulated";
inline constexpr const char* anonymised = "anonymised";

/// A call.
inline constexpr const char* call = "call";
inline constexpr const char* arguments = "in";
inline constexpr const char* results = "out";

/// A notification, and the call that it came in; without one it came before the next call.
inline constexpr const char* notification = "notification";
inline constexpr const char* during = "while";

/// Something from outside.
inline constexpr const char* mark = "mark";

/// The last line: how many lines there are before it.
inline constexpr const char* end = "end";

} // namespace key

} // namespace calvix::recording
