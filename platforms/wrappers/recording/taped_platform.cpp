#include "wrappers/recording/taped_platform.h"

namespace calvix::recording
{

TapedPlatform::TapedPlatform(Tape& tape, platform::Platform* inner)
    : m_wlan(tape, inner ? &inner->wlan() : nullptr), m_services(tape, inner ? &inner->services() : nullptr),
      m_power(tape, inner ? &inner->power() : nullptr), m_security(tape, inner ? &inner->security() : nullptr),
      m_processes(tape, inner ? &inner->processes() : nullptr), m_internet(tape, inner ? &inner->internet() : nullptr),
      m_text(tape, inner ? &inner->text() : nullptr), m_clock(tape, inner ? &inner->clock() : nullptr),
      m_debugger(tape, inner ? &inner->debugger() : nullptr), m_errors(tape, inner ? &inner->errors() : nullptr)
{
}

} // namespace calvix::recording
