#pragma once

#include <filesystem>
#include <string>

namespace calvix::host
{

/// Between a path's UTF-8 text, which is how this program keeps paths, and what the file system takes.
inline std::filesystem::path PathOf(const std::string& text)
{
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

inline std::string PathText(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

} // namespace calvix::host
