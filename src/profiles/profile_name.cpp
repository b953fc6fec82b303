#include "profiles/profile_name.h"

namespace calvix
{

ErrorNumber WidenProfileName(const char* name, wchar_t (&wide)[kProfileNameCapacity], Trace& trace)
{
    constexpr DWORD flags = MB_PRECOMPOSED | MB_ERR_INVALID_CHARS;
    wide[0] = L'\0';
    if (platform::text().MultiByteToWideChar(CP_ACP, flags, name, -1, wide, kProfileNameCapacity) != 0)
        return 0;
    const DWORD error = platform::errors().GetLastError();
    trace.Failed(error, "Profile Name error: %u");
    return static_cast<ErrorNumber>(error);
}

} // namespace calvix
