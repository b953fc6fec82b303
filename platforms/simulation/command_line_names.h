#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calvix::simulation
{

/// The program names that a command line may begin with, in the order in which the platform tries them: what stands in
/// quotation marks, or else everything up to each space and finally the whole.
std::vector<std::string> CommandNames(std::string_view commandLine);

/// The files that a name may mean, in the order of the search: a name with a folder is that file; another is looked
/// for in `programFolder` (with its backslash) and in the system's folders. Where there is no extension, ".exe" follows.
std::vector<std::string> FilesOfCommand(const std::string& name, const std::string& programFolder);

} // namespace calvix::simulation
