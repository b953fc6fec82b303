#include "watched_platform.h"

namespace calvix::host
{

void ShownDebuggerOutput::OutputDebugStringA(const char* text)
{
    m_inner.OutputDebugStringA(text);
    if (m_captured != nullptr)
    {
        *m_captured += text;
        return;
    }
    if (m_shown == nullptr)
        return;
    for (const char* c = text; *c != '\0'; ++c)
    {
        if (m_atLineStart)
            *m_shown << "trace: ";
        *m_shown << *c;
        m_atLineStart = *c == '\n';
    }
}

} // namespace calvix::host
