#pragma once

#include <map>
#include <string>

namespace calvix::test
{

/// How a program ended, and what it wrote.
struct ProgramEnd
{
    unsigned long exitCode = 0;
    std::string output; ///< standard output
    std::string errors; ///< standard error
};

/// Variables of the environment; an empty value takes the variable away.
using Environment = std::map<std::wstring, std::wstring>;

/// Runs a program and waits for its end, at most two minutes; one that takes longer is ended with exit code 0xdead. Its
/// environment is this process's with `changes`; `arguments` follow its path on the command line.
ProgramEnd RunProgram(const std::wstring& path, const Environment& changes = {}, const std::wstring& arguments = L"");

} // namespace calvix::test
