#include "simulation/command_line_names.h"

namespace calvix::simulation
{

std::vector<std::string> CommandNames(std::string_view commandLine)
{
    const std::size_t first = commandLine.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    commandLine.remove_prefix(first);
    if (commandLine.front() == '"')
    {
        commandLine.remove_prefix(1);
        return {std::string(commandLine.substr(0, commandLine.find('"')))};
    }
    std::vector<std::string> names;
    for (std::size_t end = commandLine.find_first_of(" \t"); end != std::string_view::npos;
         end = commandLine.find_first_of(" \t", end + 1))
        names.emplace_back(commandLine.substr(0, end));
    names.emplace_back(commandLine);
    return names;
}

std::vector<std::string> FilesOfCommand(const std::string& name, const std::string& programFolder)
{
    const std::size_t separator = name.find_last_of("\\/:");
    const bool hasFolder = separator != std::string::npos;
    const bool hasExtension = name.find('.', hasFolder ? separator + 1 : 0) != std::string::npos;
    const std::string file = hasExtension ? name : name + ".exe";
    if (hasFolder)
        return {name, file};
    return {programFolder + file, "C:\\Windows\\System32\\" + file, "C:\\Windows\\" + file};
}

} // namespace calvix::simulation
