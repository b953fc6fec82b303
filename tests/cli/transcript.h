#pragma once

#include <string>
#include <vector>

namespace calvix::test
{

/// Files that read like a shell session, and pages with such sessions in them:
///
///     $ calvix adapters --scenario scenarios/no-adapter.json
///     calvix: the computer has no wireless adapter.
///     [exit code 3]
///
/// Standard output and standard error are in the order of writing; success has no line of its own. In a text
/// file everything is part of the session, but for comments, and empty lines before a command. In a page sessions are
/// between lines with ```, and one with a line "..." is an excerpt and left alone. In both, a comment before a command
/// puts one computer under all commands that follow, up to the next comment (in a page: up to the end of the session):
/// a scenario file or a scenario of test_scenarios.h, with changes of the scenario and operations that fail:
///
///     <!-- on RichScenario: /adapters/0/connection = null; WlanGetProfile fails with 5 -->
///
/// A question is answered as a shell does it:
///
///     $ echo yes | calvix power restore

/// A command line as a shell splits it; of quotation marks only those around whole words are understood.
std::vector<std::string> ShellWords(const std::string& line);

/// What differs from the scenario of a computer.
struct TranscriptChange
{
    std::string what;  ///< "/adapters/0/connection" of the scenario, or "WlanGetProfile", which fails
    std::string value; ///< its JSON, or the error number
};

/// The computer that commands without --scenario run on; empty: as the program chooses.
struct TranscriptComputer
{
    std::size_t line = 0; ///< of its comment: each comment is another computer
    std::string scenario;
    std::vector<TranscriptChange> changes;
};

struct TranscriptCommand
{
    TranscriptComputer computer;
    std::string answer;        ///< to its question
    std::string line;          ///< "calvix adapters"
    std::size_t firstLine = 0; ///< of what it printed: place in the file's lines, and how many
    std::size_t lineCount = 0;
    std::string printed;
};

struct Transcript
{
    std::vector<std::string> lines;
    std::vector<TranscriptCommand> commands;
};

Transcript ReadTranscript(const std::string& text, bool isPage);

/// The file's text with what the commands really printed.
std::string WithPrinted(const Transcript& transcript, const std::vector<std::string>& printed);

} // namespace calvix::test
