#include "transcript.h"

#include <algorithm>
#include <sstream>
#include <string_view>

namespace calvix::test
{

namespace
{

constexpr std::string_view kOn = "<!-- on ";
constexpr std::string_view kEcho = "$ echo ";

/// A change is "WHAT = VALUE" or "WHAT fails with VALUE".
TranscriptChange ChangeOf(const std::string& text)
{
    const std::string sign = text.starts_with('/') ? " = " : " fails with ";
    const std::size_t at = text.find(sign);
    return {text.substr(0, at), text.substr(at + sign.size())};
}

/// "<!-- on SCENARIO -->" or "<!-- on SCENARIO: CHANGE; CHANGE -->"
TranscriptComputer ComputerOf(const std::string& comment, std::size_t line)
{
    const std::string text = comment.substr(kOn.size(), comment.rfind(" -->") - kOn.size());
    const std::size_t colon = text.find(": ");
    TranscriptComputer computer{line + 1, text.substr(0, colon), {}};
    std::istringstream changes(colon != std::string::npos ? text.substr(colon + 1) : "");
    for (std::string change; std::getline(changes >> std::ws, change, ';');)
        computer.changes.push_back(ChangeOf(change));
    return computer;
}

/// Goes through the lines once.
class TranscriptReader
{
public:
    TranscriptReader(Transcript& transcript, bool isPage) : m_transcript(transcript), m_inPage(isPage) {}

    void Read()
    {
        bool inSession = !m_inPage;
        for (std::size_t i = 0; i < m_transcript.lines.size(); ++i)
        {
            const std::string& line = m_transcript.lines[i];
            if (m_inPage && line.starts_with("```"))
            {
                if (inSession)
                    EndSession();
                inSession = !inSession;
                m_first = m_transcript.commands.size();
            }
            else if (line.starts_with(kOn))
                m_computer = ComputerOf(line, i);
            else if (inSession && !line.starts_with("<!-- "))
                TakeLine(i);
        }
    }

private:
    void TakeLine(std::size_t i)
    {
        const std::string& line = m_transcript.lines[i];
        if (line.starts_with("$ "))
        {
            TranscriptCommand command;
            command.computer = m_computer;
            command.line = line.substr(2);
            if (const std::size_t pipe = line.find(" | "); line.starts_with(kEcho) && pipe != std::string::npos)
            {
                command.answer = line.substr(kEcho.size(), pipe - kEcho.size()) + "\n";
                command.line = line.substr(pipe + 3);
            }
            command.firstLine = i + 1;
            m_transcript.commands.push_back(command);
        }
        else if (m_transcript.commands.size() > m_first)
            TakePrinted(i);
    }

    /// Empty lines at the end part the commands.
    void TakePrinted(std::size_t i)
    {
        const std::string& line = m_transcript.lines[i];
        m_isExcerpt = m_isExcerpt || line == "...";
        if (line.empty())
            return;
        TranscriptCommand& command = m_transcript.commands.back();
        for (std::size_t next = command.firstLine + command.lineCount; next <= i; ++next)
            command.printed += m_transcript.lines[next] + "\n";
        command.lineCount = i - command.firstLine + 1;
    }

    void EndSession()
    {
        auto& commands = m_transcript.commands;
        if (m_isExcerpt)
            commands.resize(m_first);
        m_isExcerpt = false;
        m_computer = {};
    }

    Transcript& m_transcript;
    bool m_inPage;
    bool m_isExcerpt = false;
    std::size_t m_first = 0;
    TranscriptComputer m_computer;
};

} // namespace

std::vector<std::string> ShellWords(const std::string& line)
{
    std::vector<std::string> words;
    for (std::size_t begin = line.find_first_not_of(' '); begin < line.size();
         begin = line.find_first_not_of(' ', begin))
    {
        const bool quoted = line[begin] == '"' || line[begin] == '\'';
        const std::size_t first = begin + (quoted ? 1 : 0);
        const std::size_t end = (std::min)(line.find(quoted ? line[begin] : ' ', first), line.size());
        words.push_back(line.substr(first, end - first));
        begin = end + (quoted ? 1 : 0);
    }
    return words;
}

Transcript ReadTranscript(const std::string& text, bool isPage)
{
    Transcript transcript;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        transcript.lines.push_back(line);
    TranscriptReader(transcript, isPage).Read();
    return transcript;
}

std::string WithPrinted(const Transcript& transcript, const std::vector<std::string>& printed)
{
    std::string text;
    std::size_t line = 0;
    const auto copyUpTo = [&](std::size_t end)
    {
        for (; line < end; ++line)
            text += transcript.lines[line] + "\n";
    };
    for (std::size_t i = 0; i < transcript.commands.size(); ++i)
    {
        copyUpTo(transcript.commands[i].firstLine);
        text += printed[i];
        line += transcript.commands[i].lineCount;
    }
    copyUpTo(transcript.lines.size());
    return text;
}

} // namespace calvix::test
