#pragma once

#include <functional>
#include <string>
#include <vector>

namespace calvix::host
{

class Host;
struct CommonOptions;

/// What the value of an argument is, for help and for completion.
enum class ValueKind
{
    nothing, ///< a flag has none
    text,
    number,
    choice, ///< one of a few words
    file,
    folder,
    scenario, ///< a scenario file
    adapter,
    profile, ///< the name of a stored one
    method,  ///< of the library
    command  ///< of this program, in one word or two
};

/// The arguments of one command, declared next to it and bound to its variables. A name that begins with "--" (a short
/// form may stand before it: "-o,--output") is an option, any other is a positional argument in the order of
/// declaration, required unless it is written in brackets: "[CODE]". What is not given keeps its variable's value. The
/// variables must live until the command has run, so commands hold them through a std::shared_ptr.
class Arguments
{
public:
    virtual ~Arguments() = default;

    virtual Arguments& Flag(const char* name, bool& value, const char* help) = 0;
    virtual Arguments& Text(const char* name, std::string& value, const char* help) = 0;
    /// May be given several times.
    virtual Arguments& Texts(const char* name, std::vector<std::string>& values, const char* help) = 0;
    virtual Arguments& Number(const char* name, unsigned& value, const char* help) = 0;
    virtual Arguments&
    OneOf(const char* name, std::string& value, const std::vector<std::string>& choices, const char* help) = 0;
    /// What the argument declared last takes, where it is a text of a kind.
    virtual Arguments& Takes(ValueKind kind) = 0;
    /// The option declared last must be given.
    virtual Arguments& Required() = 0;
    /// Lines that stand below the arguments in the command's help.
    virtual Arguments& Examples(const char* text) = 0;
    /// The command is for programs: no list of commands shows it.
    virtual Arguments& Hidden() = 0;
};

/// What a command does. Success is to return; whatever else ends it throws a Failure (failure.h).
using RunCommand = std::function<void(Host&)>;

/// The commands of the program. Each family has a function that adds its own:
///
///     void AddScanCommands(CommandSet& commands)
///     {
///         const auto options = std::make_shared<ScanOptions>();
///         commands.Add("scan", "Ask for a scan and wait until it is done",
///                      [options](Host& host) { Scan(host, *options); })
///             .Number("--timeout", options->seconds, "Seconds to wait");
///     }
class CommandSet
{
public:
    virtual ~CommandSet() = default;

    /// A family of commands, before the first of them.
    virtual void AddFamily(const char* name, const char* summary) = 0;
    /// `path` is one word, or two for a command of a family ("profiles list").
    virtual Arguments& Add(const char* path, const char* summary, RunCommand run) = 0;
};

/// Adds all commands of a program.
using AddCommands = void (*)(CommandSet& commands);

/// The options that every command has.
void DeclareCommonOptions(Arguments& arguments, CommonOptions& options);

} // namespace calvix::host
