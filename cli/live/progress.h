#pragma once

#include "host/host.h"

#include <string>

namespace calvix::host
{

/// Says on a terminal what is being waited for, in a line that turns while time passes and is gone at the end. Nothing
/// is shown without a terminal, or with JSON.
class Progress
{
public:
    Progress(Host& host, std::string what);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

private:
    void Draw(unsigned milliseconds);

    Host& m_host;
    std::string m_what;
    unsigned m_waited = 0;
    std::size_t m_turn = 0;
    std::size_t m_width = 0;
};

} // namespace calvix::host
