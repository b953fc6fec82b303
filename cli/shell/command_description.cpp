#include "shell/command_description.h"

#include "host/common_options.h"

#include <algorithm>

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

class TakenDownArguments final : public Arguments
{
public:
    explicit TakenDownArguments(ProgramDescription& program) : m_arguments(&program.options) {}

    void Begin(CommandDescription& command)
    {
        m_command = &command;
        m_arguments = &command.arguments;
    }

    Arguments& Flag(const char* name, bool&, const char* help) override { return Add(name, ValueKind::nothing, help); }
    Arguments& Text(const char* name, std::string&, const char* help) override
    {
        return Add(name, ValueKind::text, help);
    }
    Arguments& Texts(const char* name, std::vector<std::string>&, const char* help) override
    {
        Add(name, ValueKind::text, help);
        m_arguments->back().repeated = true;
        return *this;
    }
    Arguments& Number(const char* name, unsigned& value, const char* help) override
    {
        Add(name, ValueKind::number, help);
        m_arguments->back().byDefault = value;
        return *this;
    }
    Arguments& OneOf(const char* name, std::string&, const std::vector<std::string>& choices, const char* help) override
    {
        Add(name, ValueKind::choice, help);
        m_arguments->back().choices = choices;
        return *this;
    }
    Arguments& Takes(ValueKind kind) override
    {
        m_arguments->back().takes = kind;
        return *this;
    }
    Arguments& Required() override
    {
        m_arguments->back().required = true;
        return *this;
    }
    Arguments& Examples(const char* text) override
    {
        m_command->examples = text;
        return *this;
    }
    Arguments& Hidden() override
    {
        m_command->hidden = true;
        return *this;
    }

private:
    Arguments& Add(std::string name, ValueKind takes, const char* help)
    {
        const bool optional = name.front() == '[' || name.front() == '-';
        if (name.front() == '[')
            name = name.substr(1, name.size() - 2);
        ArgumentDescription argument;
        argument.names = DeclaredNames(name);
        argument.help = help;
        argument.takes = takes;
        argument.required = !optional;
        m_arguments->push_back(std::move(argument));
        return *this;
    }

    CommandDescription* m_command = nullptr;
    std::vector<ArgumentDescription>* m_arguments;
};

class TakenDownCommands final : public CommandSet
{
public:
    explicit TakenDownCommands(ProgramDescription& program) : m_program(program), m_arguments(program) {}

    void AddFamily(const char* name, const char* summary) override { m_program.families.push_back({name, summary}); }
    Arguments& Add(const char* path, const char* summary, RunCommand) override
    {
        CommandDescription command;
        command.path = path;
        command.summary = summary;
        m_program.commands.push_back(std::move(command));
        m_arguments.Begin(m_program.commands.back());
        return m_arguments;
    }

private:
    ProgramDescription& m_program;
    TakenDownArguments m_arguments;
};

} // namespace

bool ArgumentDescription::isNamed(std::string_view name) const
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

const std::string& ArgumentDescription::longName() const
{
    return names.front();
}

std::string CommandDescription::family() const
{
    const std::size_t blank = path.find(' ');
    return blank == std::string::npos ? "" : path.substr(0, blank);
}

std::string CommandDescription::lastWord() const
{
    return path.substr(path.find(' ') + 1);
}

const FamilyDescription* ProgramDescription::FindFamily(std::string_view name) const
{
    const auto found = std::find_if(families.begin(), families.end(),
                                    [name](const FamilyDescription& family) { return family.name == name; });
    return found != families.end() ? &*found : nullptr;
}

const CommandDescription* ProgramDescription::FindCommand(std::string_view path) const
{
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [path](const CommandDescription& command) { return command.path == path; });
    return found != commands.end() ? &*found : nullptr;
}

ProgramDescription DescribeProgram(AddCommands add)
{
    ProgramDescription program;
    CommonOptions unused;
    TakenDownArguments options(program);
    DeclareCommonOptions(options, unused);
    TakenDownCommands commands(program);
    add(commands);
    return program;
}

std::string ValueText(ValueKind takes, const std::vector<std::string>& choices)
{
    switch (takes)
    {
    case ValueKind::nothing:
        return "";
    case ValueKind::number:
        return "N";
    case ValueKind::choice:
        break;
    case ValueKind::file:
    case ValueKind::scenario:
        return "FILE";
    case ValueKind::folder:
        return "FOLDER";
    case ValueKind::adapter:
        return "ADAPTER";
    case ValueKind::profile:
        return "PROFILE";
    case ValueKind::text:
    case ValueKind::method:
    case ValueKind::command:
        return "TEXT";
    }
    std::string text;
    for (const std::string& choice : choices)
        text += (text.empty() ? "" : "|") + choice;
    return text;
}

} // namespace calvix::host
