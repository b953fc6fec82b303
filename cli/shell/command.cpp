#include "shell/command.h"

#include <algorithm>
#include <iterator>

namespace calvix::host
{

namespace
{

/// "-o,--output" in its parts, the long one first.
std::vector<std::string> DeclaredNames(const std::string& declared)
{
    std::vector<std::string> names;
    for (std::size_t begin = 0; begin <= declared.size();)
    {
        const std::size_t end = (std::min)(declared.find(',', begin), declared.size());
        names.push_back(declared.substr(begin, end - begin));
        begin = end + 1;
    }
    std::stable_partition(names.begin(), names.end(), [](const std::string& name) { return name.starts_with("--"); });
    return names;
}

/// By ValueKind.
constexpr const char* kPlaceholders[] = {"",     "TEXT",    "N",       "",     "FILE", "FOLDER",
                                         "FILE", "ADAPTER", "PROFILE", "TEXT", "TEXT"};
static_assert(std::size(kPlaceholders) == static_cast<std::size_t>(ValueKind::command) + 1);

} // namespace

bool Argument::isNamed(std::string_view name) const
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::string Argument::ValueText() const
{
    std::string text;
    for (const std::string& choice : choices)
        text += (text.empty() ? "" : "|") + choice;
    return takes == ValueKind::choice ? text : kPlaceholders[static_cast<std::size_t>(takes)];
}

Command& Command::Declare(const char* name, ArgumentValue value, const char* help)
{
    constexpr ValueKind kinds[] = {ValueKind::nothing, ValueKind::text, ValueKind::text, ValueKind::number};
    std::string declared = name;
    const bool optional = declared.front() == '[' || declared.front() == '-';
    if (declared.front() == '[')
        declared = declared.substr(1, declared.size() - 2);
    Argument& argument = arguments.emplace_back();
    argument.names = DeclaredNames(declared);
    argument.help = help;
    argument.takes = kinds[value.index()];
    argument.value = value;
    argument.required = !optional;
    return *this;
}

Command& Command::OneOf(const char* name, std::string& text, std::vector<std::string> choices, const char* help)
{
    Declare(name, &text, help).Takes(ValueKind::choice);
    arguments.back().choices = std::move(choices);
    return *this;
}

Command& Command::Takes(ValueKind kind)
{
    arguments.back().takes = kind;
    return *this;
}

Command& Command::Required()
{
    arguments.back().required = true;
    return *this;
}

Command& Command::Examples(const char* text)
{
    examples = text;
    return *this;
}

Command& Command::Prints(const char* name, std::vector<JsonRecord> (*those)())
{
    definition = name;
    records = those;
    return *this;
}

Command& Command::Anonymises()
{
    anonymises = true;
    return *this;
}

Command& Command::Hidden()
{
    hidden = true;
    return *this;
}

std::string Command::family() const
{
    const std::size_t blank = path.find(' ');
    return blank == std::string::npos ? "" : path.substr(0, blank);
}

std::string Command::lastWord() const
{
    return path.substr(path.find(' ') + 1);
}

CommandSet::CommandSet()
{
    CommonOptions& values = *optionValues;
    Command all;
    all.Flag("--json", values.json, "Print one JSON object instead of text")
        .Text("--interface", values.adapter,
              "The adapter: its GUID, its number or its description (default: the first)")
        .Takes(ValueKind::adapter)
        .Text("--scenario", values.scenario, "Run on the simulated computer that this file describes")
        .Takes(ValueKind::scenario)
        .Text("--save", values.save, "Write the simulated computer to this scenario file afterwards")
        .Takes(ValueKind::scenario)
        .Text("--record", values.record, "Write every call of the platform with its results to this file")
        .Takes(ValueKind::file)
        .Flag("--anonymise", values.anonymise,
              "Replace names and addresses in the file of --record or capture with invented ones")
        .Text("--replay", values.replay, "Answer from this recording, in place of a computer")
        .Takes(ValueKind::file)
        .Flag("--trace", values.trace, "Show the library's trace lines on standard error")
        .OneOf("--color", values.color, {"auto", "always", "never"},
               "Colours: on terminals unless NO_COLOR is set (auto, default), always or never")
        .Flag("--no-color", values.noColor, "The same as --color never");
    options = std::move(all.arguments);
}

void CommandSet::AddFamily(const char* name, const char* summary)
{
    families.push_back({name, summary});
}

Command& CommandSet::Add(const char* path, const char* summary, RunCommand run)
{
    Command& command = commands.emplace_back();
    command.path = path;
    command.summary = summary;
    command.run = std::move(run);
    return command;
}

const Word* CommandSet::FindFamily(std::string_view name) const
{
    const auto found =
        std::find_if(families.begin(), families.end(), [name](const Word& family) { return family.text == name; });
    return found != families.end() ? &*found : nullptr;
}

const Command* CommandSet::FindCommand(std::string_view path) const
{
    const auto found =
        std::find_if(commands.begin(), commands.end(), [path](const Command& command) { return command.path == path; });
    return found != commands.end() ? &*found : nullptr;
}

std::vector<Word> CommandSet::CommandWords(const std::string& family) const
{
    std::vector<Word> words;
    for (const Command& command : commands)
        if (!command.hidden && command.family() == family)
            words.push_back({command.lastWord(), command.summary});
    if (family.empty())
        words.insert(words.end(), families.begin(), families.end());
    return words;
}

} // namespace calvix::host
