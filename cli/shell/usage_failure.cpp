#include "shell/usage_failure.h"

#include "shell/nearest_word.h"
#include "shell/word_reader.h"

namespace calvix::host
{

namespace
{

Failure UnknownCommand(const CommandSet& program, const WordReader& reader)
{
    const std::string family = reader.family() != nullptr ? reader.family()->text : "";
    const std::string& word = reader.unknownCommand();
    std::vector<std::string> names;
    for (const Word& known : program.CommandWords(family))
        names.push_back(known.text);
    const std::string help = "calvix " + family + (family.empty() ? "" : " ") + "--help";
    return BadInput((family.empty() ? "there is no command \"" : family + " has no command \"") + word + "\"",
                    DidYouMean(word, names) + "list the commands: " + help);
}

Failure UnknownOption(const WordReader& reader)
{
    std::vector<std::string> names{"--help"};
    for (const Argument* option : reader.Options())
        names.push_back(option->longName());
    const std::string command = reader.command() != nullptr ? reader.command()->path : "calvix";
    const std::string help = reader.command() != nullptr ? "calvix " + command : command;
    return BadInput(command + " has no option " + reader.unknownOption(),
                    DidYouMean(reader.unknownOption(), names) + "list its options: " + help + " --help");
}

Failure NoCommand(const WordReader& reader)
{
    if (reader.family() == nullptr)
        return BadInput("no command was given", "list the commands: calvix --help");
    const std::string& family = reader.family()->text;
    return BadInput(family + " needs one of its commands", "list them: calvix " + family + " --help");
}

} // namespace

bool NamesUnknownCommand(const CommandSet& program, const std::vector<std::string>& arguments)
{
    return !WordReader(program, arguments).unknownCommand().empty();
}

Failure
UsageFailure(const CommandSet& program, const std::vector<std::string>& arguments, const std::string& parserWords)
{
    const WordReader reader(program, arguments);
    if (!reader.unknownCommand().empty())
        return UnknownCommand(program, reader);
    if (!reader.unknownOption().empty())
        return UnknownOption(reader);
    if (reader.command() == nullptr)
        return NoCommand(reader);
    const std::string& path = reader.command()->path;
    return BadInput(path + ": " + parserWords, "list its arguments: calvix " + path + " --help");
}

} // namespace calvix::host
