#include "shell/completion.h"

#include "explain/result_codes.h"
#include "output/text_forms.h"
#include "shell/completion_scripts.h"
#include "shell/word_reader.h"

namespace calvix::host
{

namespace
{

/// What is possible at the cursor.
struct Completion
{
    std::vector<Word> words;
    const char* files = "none"; ///< that are possible, too, and that the shell lists: any, scenarios, folders
};

std::vector<Word> MethodWords()
{
    std::vector<Word> words;
    for (const MethodResults& results : AllMethodResults())
        words.push_back({results.method, ""});
    return words;
}

std::vector<Word> Choices(const Argument& argument)
{
    std::vector<Word> words;
    for (const std::string& choice : argument.choices)
        words.push_back({choice, ""});
    return words;
}

/// Finds what is possible at one place.
class Place
{
public:
    Place(const CommandSet& program, const WordReader& reader, const LiveNames& liveNames)
        : m_program(program), m_reader(reader), m_liveNames(liveNames)
    {
    }

    Completion Values(const Argument& argument) const
    {
        switch (argument.takes)
        {
        case ValueKind::choice:
            return {Choices(argument)};
        case ValueKind::file:
            return {{}, "any"};
        case ValueKind::scenario:
            return {{}, "scenarios"};
        case ValueKind::folder:
            return {{}, "folders"};
        case ValueKind::adapter:
        case ValueKind::profile:
            return {m_liveNames(argument.takes, m_reader.ValueOf("--scenario"), m_reader.ValueOf("--interface"))};
        case ValueKind::method:
            return {MethodWords()};
        case ValueKind::command:
            return {m_program.CommandWords(m_reader.positionals().empty() ? "" : m_reader.positionals().front())};
        case ValueKind::nothing:
        case ValueKind::text:
        case ValueKind::number:
            break;
        }
        return {};
    }

    Completion Options() const
    {
        Completion completion;
        for (const Argument* option : m_reader.Options())
            if (option->isRepeated() || !m_reader.isGiven(*option))
                completion.words.push_back({option->longName(), option->help});
        completion.words.push_back({"--help", "Show the arguments"});
        if (m_reader.command() == nullptr && m_reader.family() == nullptr)
            completion.words.push_back({"--version", "Show the version"});
        return completion;
    }

    Completion CommandsOrPositional() const
    {
        if (m_reader.command() == nullptr)
            return {m_program.CommandWords(m_reader.family() != nullptr ? m_reader.family()->text : "")};
        const Argument* const next = m_reader.NextPositional();
        if (next != nullptr)
            return Values(*next);
        return m_reader.afterDashes() ? Completion{} : Options();
    }

    /// "--color=a"
    Completion ValuesBehindSign(const std::string& current) const
    {
        const std::string name = SplitAtSign(current).first;
        const Argument* const option = m_reader.FindOption(name);
        if (option == nullptr)
            return {};
        Completion completion = Values(*option);
        for (Word& word : completion.words)
            word.text = name + "=" + word.text;
        return completion;
    }

    Completion At(const std::string& current) const
    {
        if (m_reader.pending() != nullptr)
            return Values(*m_reader.pending());
        if (m_reader.afterDashes() || !current.starts_with("-"))
            return CommandsOrPositional();
        return current.find('=') != std::string::npos ? ValuesBehindSign(current) : Options();
    }

private:
    const CommandSet& m_program;
    const WordReader& m_reader;
    const LiveNames& m_liveNames;
};

} // namespace

std::string Complete(const CommandSet& program,
                     const std::vector<std::string>& before,
                     const std::string& current,
                     const LiveNames& liveNames)
{
    const WordReader reader(program, before);
    const Completion completion = Place(program, reader, liveNames).At(current);
    std::string text = std::string(completion.files) + "\n";
    for (const Word& word : completion.words)
        // A name may hold what ends the line or turns it round, and an escape in its place would be another name.
        if (word.text.starts_with(current) && IsVisible(word.text))
            text += word.text + (word.meaning.empty() ? "" : "\t" + VisibleText(word.meaning)) + "\n";
    return text;
}

const char* CompletionScript(const std::string& shell)
{
    if (shell == "bash")
        return kBashCompletion;
    if (shell == "zsh")
        return kZshCompletion;
    if (shell == "fish")
        return kFishCompletion;
    return shell == "powershell" ? kPowerShellCompletion : nullptr;
}

} // namespace calvix::host
