#include "host/stepping_clock.h"

#include "host/interrupt.h"

#include <algorithm>

namespace calvix::host
{

void SteppingClock::Sleep(DWORD milliseconds)
{
    constexpr DWORD longestStep = 100;
    while (milliseconds > 0 && !Interrupted())
    {
        const DWORD step = (std::min)(milliseconds, longestStep);
        m_inner.Sleep(step);
        milliseconds -= step;
        if (m_afterStep)
            m_afterStep(static_cast<unsigned>(step));
    }
}

} // namespace calvix::host
