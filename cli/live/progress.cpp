#include "live/progress.h"

#include "output/text_forms.h"

#include <cstdio>
#include <iterator>

namespace calvix::host
{

Progress::Progress(Host& host, std::string what) : m_host(host), m_what(std::move(what))
{
    if (!host.terminal().isTerminal || host.json())
        return;
    Draw(0);
    host.WhileWaiting([this](unsigned milliseconds) { Draw(milliseconds); });
}

Progress::~Progress()
{
    m_host.WhileWaiting({});
    // Blanks instead of an escape sequence, which not every console knows.
    if (m_width > 0)
        m_host.err() << '\r' << std::string(m_width, ' ') << '\r' << std::flush;
}

void Progress::Draw(unsigned milliseconds)
{
    static constexpr const char* turns[] = {"|", "/", "-", "\\"};
    m_waited += milliseconds;
    char seconds[32];
    std::snprintf(seconds, sizeof(seconds), " %u.%u s ", m_waited / 1000, m_waited / 100 % 10);
    const std::string line = std::string(turns[m_turn++ % std::size(turns)]) + ' ' + m_what + seconds;
    m_width = DisplayWidth(line);
    m_host.err() << '\r' << line << std::flush;
}

} // namespace calvix::host
