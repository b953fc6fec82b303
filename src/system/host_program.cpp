#include <calvix/wireless_manage.h>

#include "core/bounded_copy.h"
#include "platform/platform.h"

#include <cstring>

char* CWirelessManage::GetAppPath()
{
    char path[512] = {};
    calvix::platform::processes().GetModuleFileNameA(nullptr, path, sizeof(path));
    // Old systems do not terminate a path that they cut.
    path[sizeof(path) - 1] = '\0';
    char* const lastBackslash = std::strrchr(path, '\\');
    *(lastBackslash != nullptr ? lastBackslash + 1 : path) = '\0';
    calvix::CopyTruncating(m_szAppPath, sizeof(m_szAppPath), path);
    return m_szAppPath;
}
