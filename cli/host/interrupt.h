#pragma once

#include <functional>

namespace calvix::host
{

/// From here to its end, the first Ctrl-C is only noted, so that a command can leave cleanly; the second one ends the
/// program at once. One at a time.
class InterruptWatch
{
public:
    InterruptWatch();
    ~InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;

private:
    void (*m_before)(int);
};

/// Whether Ctrl-C was pressed during the present watch, or the last one.
bool Interrupted();

/// What Ctrl-C does, without it.
void RaiseInterrupt();

/// Calls `action` once, when Interrupted() first returns true. An empty one ends that.
void WhenInterruptIsSeen(std::function<void()> action);

} // namespace calvix::host
