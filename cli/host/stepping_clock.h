#pragma once

#include "platform/clock.h"

#include <functional>
#include <utility>

namespace calvix::host
{

/// A clock that waits in small steps, the library's own waits included, so that something can be shown meanwhile and
/// Ctrl-C is noticed. What is left of a wait after Ctrl-C is left out.
class SteppingClock final
{
public:
    explicit SteppingClock(platform::Clock& inner) : m_inner(inner) {}

    /// Called after each step, with its milliseconds.
    void AfterEachStep(std::function<void(unsigned)> action) { m_afterStep = std::move(action); }

    void Sleep(DWORD milliseconds);

private:
    platform::Clock& m_inner;
    std::function<void(unsigned)> m_afterStep;
};

} // namespace calvix::host
