#include "simulation/internet.h"

#include "platform/records/error_numbers.h"

namespace calvix::simulation
{

BOOL SimulatedInternet::Refuse()
{
    m_lastError = ERROR_CALL_NOT_IMPLEMENTED;
    return FALSE;
}

BOOL SimulatedInternet::InternetSetOptionA(HINTERNET, DWORD, PVOID, DWORD)
{
    return Refuse();
}

BOOL SimulatedInternet::InternetCheckConnectionA(const char*, DWORD, DWORD)
{
    return Refuse();
}

} // namespace calvix::simulation
