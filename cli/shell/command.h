#pragma once

#include "host/common_options.h"
#include "output/json_record.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace calvix::host
{

class Host;

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

/// The variable that an argument is read into; several texts: it may be given several times.
using ArgumentValue = std::variant<bool*, std::string*, std::vector<std::string>*, unsigned*>;

/// One argument of a command, and the variable that it is read into.
struct Argument
{
    std::vector<std::string> names; ///< "--output" and "-o"; of a positional argument its one name
    std::string help;
    ValueKind takes = ValueKind::text;
    ArgumentValue value;
    std::vector<std::string> choices;
    bool required = false;

    bool isOption() const { return names.front().front() == '-'; }
    bool isNamed(std::string_view name) const;
    /// May be given several times.
    bool isRepeated() const { return std::holds_alternative<std::vector<std::string>*>(value); }
    /// "--output"
    const std::string& longName() const { return names.front(); }
    /// The placeholder of a value: "FILE", "N", "auto|always|never". Empty for a flag.
    std::string ValueText() const;
};

/// What a command does. It returns after success and throws a Failure (failure.h) otherwise.
using RunCommand = std::function<void(Host&)>;

/// A command with its arguments, declared next to what it does and bound to its variables. A name that begins with "--"
/// (a short form may come first: "-o,--output") is an option, any other is a positional argument in the order of
/// declaration, required unless it is written in brackets: "[CODE]". What is not given keeps its variable's value. The
/// variables must live until the command has run, so commands hold them through a std::shared_ptr.
struct Command
{
    std::string path; ///< "profiles list"
    std::string summary;
    RunCommand run;
    std::string examples;
    std::string definition;                         ///< of what it prints with --json; empty: text only
    std::vector<JsonRecord> (*records)() = nullptr; ///< it
    bool hidden = false;
    bool anonymises = false; ///< its own file, as --record does its
    std::vector<Argument> arguments;

    Command& Declare(const char* name, ArgumentValue value, const char* help);
    Command& Flag(const char* name, bool& value, const char* help) { return Declare(name, &value, help); }
    Command& Text(const char* name, std::string& value, const char* help) { return Declare(name, &value, help); }
    Command& Texts(const char* name, std::vector<std::string>& values, const char* help)
    {
        return Declare(name, &values, help);
    }
    Command& Number(const char* name, unsigned& value, const char* help) { return Declare(name, &value, help); }
    Command& OneOf(const char* name, std::string& value, std::vector<std::string> choices, const char* help);
    /// What the argument declared last takes, where it is a text of a kind.
    Command& Takes(ValueKind kind);
    /// The option declared last must be given.
    Command& Required();
    /// Lines below the arguments in the command's help.
    Command& Examples(const char* text);
    /// With --json it prints one of these records, which the schema has under the name of a definition. Commands that
    /// print the same name the same definition, and one of them has the records.
    Command& Prints(const char* definition, std::vector<JsonRecord> (*records)() = nullptr);
    /// It takes --anonymise for the file that it writes.
    Command& Anonymises();
    /// The command is for programs: no list of commands shows it.
    Command& Hidden();

    /// "profiles", empty for a command of no family.
    std::string family() const;
    /// "list"
    std::string lastWord() const;
};

/// A word of a command line, and what it means.
struct Word
{
    std::string text;
    std::string meaning; ///< may be empty
};

/// The commands of a program: its parser, manual page, completion and hints at what was meant are made from them. Each
/// family has a function that adds its own:
///
///     void AddScanCommands(CommandSet& commands)
///     {
///         const auto options = std::make_shared<ScanOptions>();
///         commands.Add("scan", "Scan, and wait until the scan is done", options, Scan)
///             .Number("--timeout", options->seconds, "Seconds to wait");
///     }
struct CommandSet
{
    /// With the options that every command has.
    CommandSet();

    /// A family of commands, before the first of them.
    void AddFamily(const char* name, const char* summary);
    /// `path` is one word, or two for a command of a family ("profiles list"). Its arguments follow at once.
    Command& Add(const char* path, const char* summary, RunCommand run);
    /// The same for a command whose arguments are read into `values`.
    template <typename Options>
    Command& Add(const char* path,
                 const char* summary,
                 const std::shared_ptr<Options>& values,
                 void (*run)(Host&, const Options&))
    {
        return Add(path, summary, [values, run](Host& host) { run(host, *values); });
    }

    const Word* FindFamily(std::string_view name) const;
    const Command* FindCommand(std::string_view path) const;
    /// The commands of a family that lists show; without a family those of none, and the families.
    std::vector<Word> CommandWords(const std::string& family) const;

    std::vector<Word> families;
    std::vector<Command> commands;
    std::vector<Argument> options; ///< of every command
    std::shared_ptr<CommonOptions> optionValues = std::make_shared<CommonOptions>();
};

} // namespace calvix::host
