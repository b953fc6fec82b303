#pragma once

#include "output/terminal.h"

#include <istream>
#include <ostream>

namespace calvix::host
{

/// Where answers to questions come from, where results go and in which form, and where everything else goes.
class Output
{
public:
    Output(bool json, std::istream& in, std::ostream& out, std::ostream& err, TerminalTraits terminal)
        : m_json(json), m_in(in), m_out(out), m_err(err), m_terminal(terminal)
    {
    }

    bool json() const { return m_json; }
    std::istream& in() { return m_in; }
    std::ostream& out() { return m_out; }
    std::ostream& err() { return m_err; }
    const TerminalTraits& terminal() const { return m_terminal; }

private:
    bool m_json;
    std::istream& m_in;
    std::ostream& m_out;
    std::ostream& m_err;
    TerminalTraits m_terminal;
};

} // namespace calvix::host
