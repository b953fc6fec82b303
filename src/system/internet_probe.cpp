#include <calvix/wireless_manage.h>

#include "platform/platform.h"

using calvix::platform::internet;

namespace
{

/// A host name that is reserved for examples and answers everywhere. Nothing is fetched from it.
constexpr const char* kProbeAddress = "https://www.example.com/";

} // namespace

long CWirelessManage::OpenUrl()
{
    // Without a session handle the option is the whole process's.
    DWORD connectTimeout = 3000;
    internet().InternetSetOptionA(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, &connectTimeout, sizeof(connectTimeout));
    return internet().InternetCheckConnectionA(kProbeAddress, FLAG_ICC_FORCE_CONNECTION, 0) ? 0 : -1;
}
