#include "host/interrupt.h"

#include <atomic>
#include <csignal>
#include <utility>

namespace calvix::host
{

namespace
{

// The handler runs on a thread of its own on Windows.
std::atomic<bool> g_interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free);

std::function<void()> g_whenSeen;

extern "C" void NoteInterrupt(int signal)
{
    g_interrupted = true;
    std::signal(signal, SIG_DFL);
}

} // namespace

InterruptWatch::InterruptWatch()
{
    g_interrupted = false;
    m_before = std::signal(SIGINT, NoteInterrupt);
}

InterruptWatch::~InterruptWatch()
{
    if (m_before != SIG_ERR)
        std::signal(SIGINT, m_before);
}

bool Interrupted()
{
    if (!g_interrupted)
        return false;
    if (const auto whenSeen = std::exchange(g_whenSeen, nullptr))
        whenSeen();
    return true;
}

void RaiseInterrupt()
{
    g_interrupted = true;
}

void WhenInterruptIsSeen(std::function<void()> action)
{
    g_whenSeen = std::move(action);
}

} // namespace calvix::host
