#include <calvix/wireless_manage.h>

#include "platform/platform.h"

int CWirelessManage::ForceComputerSleep()
{
    return calvix::platform::power().SetSuspendState(FALSE, TRUE, FALSE);
}
