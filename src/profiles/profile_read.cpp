#include "profiles/profile_read.h"

#include "core/service_steps.h"

namespace calvix
{

ErrorNumber ReadProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, ProfileText& xml, Trace& trace)
{
    DWORD flags = WLAN_PROFILE_GET_PLAINTEXT_KEY;
    DWORD access = WLAN_READ_ACCESS;
    const DWORD asked =
        platform::wlan().WlanGetProfile(client, interfaceGuid, name, nullptr, xml.Receive(), &flags, &access);
    const DWORD error = ErrorOf(asked, xml.get());
    trace.Failed(error, "WlanGetProfile failed with error: %u");
    return static_cast<ErrorNumber>(error);
}

} // namespace calvix
