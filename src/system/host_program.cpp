#include <calvix/wireless_manage.h>

#include "platform/platform.h"

#include <cstring>

char* CWirelessManage::GetAppPath()
{
    m_szAppPath[0] = '\0';
    calvix::platform::processes().GetModuleFileNameA(nullptr, m_szAppPath, sizeof(m_szAppPath));
    // Old systems do not terminate a path that they cut.
    m_szAppPath[sizeof(m_szAppPath) - 1] = '\0';
    char* const lastBackslash = std::strrchr(m_szAppPath, '\\');
    *(lastBackslash != nullptr ? lastBackslash + 1 : m_szAppPath) = '\0';
    return m_szAppPath;
}
