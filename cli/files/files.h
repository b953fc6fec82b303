#pragma once

#include <string>

namespace calvix::host
{

/// Files by their UTF-8 path; what cannot be read or written is a Failure.

/// What a command takes as the name of standard output.
constexpr const char* kStandardOutput = "-";

/// A whole text file as UTF-8: byte order marks are taken off, UTF-16 is converted.
std::string ReadTextFile(const std::string& path);
void WriteWholeFile(const std::string& path, const std::string& content);

} // namespace calvix::host
