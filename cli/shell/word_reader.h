#pragma once

#include "shell/command.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace calvix::host
{

/// Reads the words of a command line, also of one that is not complete or not right.
class WordReader
{
public:
    WordReader(const CommandSet& program, const std::vector<std::string>& words);

    /// Null until it is known.
    const Command* command() const { return m_command; }
    /// The family whose command is not known yet; null: none.
    const Word* family() const { return m_command == nullptr ? m_family : nullptr; }
    /// The option whose value comes next; null: none.
    const Argument* pending() const { return m_pending; }
    /// Whether "--" has come, after which no word is an option.
    bool afterDashes() const { return m_afterDashes; }
    /// What stood as positional arguments.
    const std::vector<std::string>& positionals() const { return m_positionals; }
    /// The next positional argument; null: there is none.
    const Argument* NextPositional() const;
    /// The options that are valid here.
    std::vector<const Argument*> Options() const;
    const Argument* FindOption(std::string_view name) const;
    /// Whether an option was given, and its last value.
    bool isGiven(const Argument& option) const { return m_given.count(option.longName()) != 0; }
    std::string ValueOf(const std::string& option) const;

    /// The first word that stood for a command and is none, and the first option that there is not; empty: none.
    const std::string& unknownCommand() const { return m_unknownCommand; }
    const std::string& unknownOption() const { return m_unknownOption; }

private:
    void Take(const std::string& word);
    void TakeOption(const std::string& word);
    void TakeCommandWord(const std::string& word);

    const CommandSet& m_program;
    const Word* m_family = nullptr;
    const Command* m_command = nullptr;
    const Argument* m_pending = nullptr;
    bool m_afterDashes = false;
    std::vector<std::string> m_positionals;
    std::map<std::string, std::string> m_given;
    std::string m_unknownCommand;
    std::string m_unknownOption;
};

/// "--color=auto" as "--color" and "auto"; a word without a sign has no second part.
std::pair<std::string, std::string> SplitAtSign(const std::string& word);

} // namespace calvix::host
