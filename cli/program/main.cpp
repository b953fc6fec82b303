#include "program/program.h"

#include <iostream>

int main(int argc, char** argv)
{
    const calvix::host::TerminalTraits terminal = calvix::host::DetectTerminal();
    return calvix::host::Run(calvix::host::ProgramArguments(argc, argv), std::cin, std::cout, std::cerr, terminal);
}
