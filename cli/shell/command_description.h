#pragma once

#include "shell/command.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// The program's commands as data, taken down from the same declarations that its parser is made from: for the manual
/// page, completion, and hints at what was meant.

struct ArgumentDescription
{
    std::vector<std::string> names; ///< "--output" and "-o"; of a positional argument its one name
    std::string help;
    ValueKind takes = ValueKind::text;
    std::vector<std::string> choices;
    bool required = false;
    bool repeated = false;
    std::optional<unsigned> byDefault; ///< of numbers

    bool isOption() const { return names.front().front() == '-'; }
    bool isNamed(std::string_view name) const;
    /// "--output"
    const std::string& longName() const;
};

struct CommandDescription
{
    std::string path; ///< "profiles list"
    std::string summary;
    std::string examples;
    bool hidden = false;
    std::vector<ArgumentDescription> arguments;

    /// "profiles", empty for a command of no family.
    std::string family() const;
    /// "list"
    std::string lastWord() const;
};

struct FamilyDescription
{
    std::string name;
    std::string summary;
};

struct ProgramDescription
{
    std::vector<FamilyDescription> families;
    std::vector<CommandDescription> commands;
    std::vector<ArgumentDescription> options; ///< of every command

    const FamilyDescription* FindFamily(std::string_view name) const;
    const CommandDescription* FindCommand(std::string_view path) const;
};

ProgramDescription DescribeProgram(AddCommands add);

/// What stands for a value: "FILE", "N", "auto|always|never". Empty for a flag.
std::string ValueText(ValueKind takes, const std::vector<std::string>& choices);

} // namespace calvix::host
