#include "shell/word_reader.h"

#include <algorithm>
#include <cctype>

namespace calvix::host
{

namespace
{

/// "-5" is a result code and "-" is standard output.
bool LooksLikeOption(const std::string& word)
{
    return word.size() > 1 && word[0] == '-' && std::isdigit(static_cast<unsigned char>(word[1])) == 0;
}

bool IsHelp(const std::string& word)
{
    return word == "--help" || word == "-h" || word == "--version";
}

} // namespace

std::pair<std::string, std::string> SplitAtSign(const std::string& word)
{
    const std::size_t sign = word.find('=');
    if (sign == std::string::npos)
        return {word, ""};
    return {word.substr(0, sign), word.substr(sign + 1)};
}

WordReader::WordReader(const CommandSet& program, const std::vector<std::string>& words) : m_program(program)
{
    for (const std::string& word : words)
        Take(word);
}

void WordReader::Take(const std::string& word)
{
    if (m_pending != nullptr)
    {
        m_given[m_pending->longName()] = word;
        m_pending = nullptr;
    }
    else if (!m_afterDashes && word == "--")
        m_afterDashes = true;
    else if (!m_afterDashes && LooksLikeOption(word))
        TakeOption(word);
    else if (m_command != nullptr)
        m_positionals.push_back(word);
    else
        TakeCommandWord(word);
}

void WordReader::TakeOption(const std::string& word)
{
    const bool isShort = word[1] != '-';
    const std::string name = isShort ? word.substr(0, 2) : SplitAtSign(word).first;
    const Argument* const option = FindOption(name);
    if (option == nullptr)
    {
        if (!IsHelp(word) && m_unknownOption.empty())
            m_unknownOption = name;
        return;
    }
    m_given[option->longName()] = isShort ? word.substr(2) : SplitAtSign(word).second;
    if (option->takes != ValueKind::nothing && word == name)
        m_pending = option;
}

void WordReader::TakeCommandWord(const std::string& word)
{
    // After an unknown word, no other word has a meaning.
    if (!m_unknownCommand.empty())
        return;
    m_command = m_program.FindCommand(m_family != nullptr ? m_family->text + " " + word : word);
    if (m_command != nullptr)
        return;
    const Word* const family = m_family == nullptr ? m_program.FindFamily(word) : nullptr;
    if (family != nullptr)
        m_family = family;
    else
        m_unknownCommand = word;
}

const Argument* WordReader::NextPositional() const
{
    if (m_command == nullptr)
        return nullptr;
    std::size_t left = m_positionals.size();
    for (const Argument& argument : m_command->arguments)
    {
        if (argument.isOption())
            continue;
        if (argument.isRepeated() || left == 0)
            return &argument;
        --left;
    }
    return nullptr;
}

std::vector<const Argument*> WordReader::Options() const
{
    std::vector<const Argument*> options;
    if (m_command != nullptr)
    {
        for (const Argument& argument : m_command->arguments)
            if (argument.isOption())
                options.push_back(&argument);
    }
    for (const Argument& option : m_program.options)
        options.push_back(&option);
    return options;
}

const Argument* WordReader::FindOption(std::string_view name) const
{
    const auto options = Options();
    const auto found =
        std::find_if(options.begin(), options.end(), [name](const Argument* option) { return option->isNamed(name); });
    return found != options.end() ? *found : nullptr;
}

std::string WordReader::ValueOf(const std::string& option) const
{
    const auto found = m_given.find(option);
    return found != m_given.end() ? found->second : "";
}

} // namespace calvix::host
