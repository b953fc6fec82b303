#include "windows/last_error.h"

namespace calvix::windows
{

DWORD LastError::GetLastError()
{
    return ::GetLastError();
}

} // namespace calvix::windows
