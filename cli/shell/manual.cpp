#include "shell/manual.h"

#include "shell/program_texts.h"

#include <sstream>

namespace calvix::host
{

namespace
{

/// Text for roff: no letter is taken for a request, hyphens stay hyphens that can be copied.
std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char c : text)
        if (c == '\\')
            escaped += "\\e";
        else if (c == '-')
            escaped += "\\-";
        else if (c == '"')
            escaped += "\\(dq";
        else
            escaped += c;
    return !escaped.empty() && (escaped[0] == '.' || escaped[0] == '\'') ? "\\&" + escaped : escaped;
}

std::string WithFullStop(const std::string& text)
{
    return text + (text.ends_with('.') ? "" : ".");
}

std::string Bold(const std::string& text)
{
    return "\\fB" + Escaped(text) + "\\fR";
}

/// "\fB\-\-timeout\fR \fIN\fR"
std::string Spelled(const Argument& argument)
{
    if (!argument.isOption())
        return "\\fI" + Escaped(argument.names.front()) + "\\fR";
    std::string text;
    for (const std::string& name : argument.names)
        text += (text.empty() ? "" : ", ") + Bold(name);
    const std::string value = argument.ValueText();
    return value.empty() ? text : text + " \\fI" + Escaped(value) + "\\fR";
}

std::string InSynopsis(const Argument& argument)
{
    const std::string name = "\\fI" + Escaped(argument.names.front()) + "\\fR";
    const std::string text = argument.isOption() ? Spelled(argument) : name;
    return (argument.required ? text : "[" + text + "]") + (argument.isRepeated() ? "..." : "");
}

void WriteArgument(std::ostream& out, const Argument& argument)
{
    out << ".TP\n" << Spelled(argument) << '\n' << Escaped(WithFullStop(argument.help));
    if (!argument.isOption() && !argument.choices.empty())
        out << " One of " << Escaped(argument.ValueText()) << '.';
    if (unsigned* const* const number = std::get_if<unsigned*>(&argument.value))
        out << " Default: " << **number << '.';
    out << '\n';
}

/// Lines as they are: those that are indented are commands, the others speak of them.
void WriteExamples(std::ostream& out, const std::string& examples)
{
    std::istringstream lines(examples);
    for (std::string line; std::getline(lines, line);)
    {
        if (line.empty())
            continue;
        if (line.starts_with("  "))
            out << ".RS\n.nf\n" << Escaped(line.substr(2)) << "\n.fi\n.RE\n";
        else
            out << ".PP\n" << Escaped(line) << '\n';
    }
}

void WriteCommand(std::ostream& out, const Command& command)
{
    out << ".SS " << Escaped(command.path) << "\n" << Bold("calvix " + command.path);
    for (const Argument& argument : command.arguments)
        out << ' ' << InSynopsis(argument);
    out << "\n.PP\n" << Escaped(WithFullStop(command.summary)) << '\n';
    for (const Argument& argument : command.arguments)
        WriteArgument(out, argument);
    WriteExamples(out, command.examples);
}

void WriteEnd(std::ostream& out)
{
    out << ".SH EXIT STATUS\n";
    for (const ExitCodeText& text : kExitCodes)
        out << ".TP\n"
            << Bold(std::to_string(static_cast<int>(text.code))) << '\n'
            << Escaped(WithFullStop(text.meaning)) << '\n';
    out << ".SH ENVIRONMENT\n";
    for (const EnvironmentText& text : kEnvironment)
        out << ".TP\n" << Bold(text.variable) << '\n' << Escaped(WithFullStop(text.meaning)) << '\n';
    out << ".SH EXAMPLES\n";
    WriteExamples(out, kProgramExamples);
}

} // namespace

std::string ManualPage(const CommandSet& program)
{
    std::ostringstream out;
    out << ".TH CALVIX 1 \"\" \"calvix " << kVersionNumber << "\" \"User Commands\"\n"
        << ".SH NAME\ncalvix \\- " << Escaped(kProgramSummary) << '\n'
        << ".SH SYNOPSIS\n\\fBcalvix\\fR \\fICOMMAND\\fR [\\fIARGUMENT\\fR]... [\\fIOPTION\\fR]...\n"
        << ".SH DESCRIPTION\n"
        << Escaped(kProgramDescription) << '\n'
        << ".SH OPTIONS OF EVERY COMMAND\n";
    for (const Argument& option : program.options)
        WriteArgument(out, option);
    out << ".TP\n\\fB\\-\\-help\\fR\nShow the arguments of the command.\n.SH COMMANDS\n";
    for (const Command& command : program.commands)
        if (!command.hidden)
            WriteCommand(out, command);
    WriteEnd(out);
    return out.str();
}

} // namespace calvix::host
