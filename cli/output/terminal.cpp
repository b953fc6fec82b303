#include "output/terminal.h"

#include <cstdlib>

namespace calvix::host
{

namespace
{

std::string VariableOrNothing(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace

TerminalTraits DetectTerminal()
{
    ConsoleFindings findings = PrepareConsole();
    findings.noColor = VariableOrNothing("NO_COLOR");
    findings.term = VariableOrNothing("TERM");
    return TraitsOf(findings);
}

TerminalTraits TraitsOf(const ConsoleFindings& findings)
{
    // A dumb terminal takes text from top to bottom, as a file does.
    const bool dumb = findings.term == "dumb";
    const bool colors = !dumb && findings.sequences && findings.noColor.empty();
    TerminalTraits traits;
    traits.isTerminal = findings.outIsTerminal && !dumb;
    traits.color = findings.outIsTerminal && colors;
    traits.errorColor = findings.errorIsTerminal && colors;
    return traits;
}

TerminalTraits InColor(TerminalTraits terminal, const std::string& when)
{
    if (when != "auto")
        terminal.color = terminal.errorColor = when == "always";
    return terminal;
}

} // namespace calvix::host
