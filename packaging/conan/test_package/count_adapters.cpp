#include <calvix/wireless_manage.h>

#include <cstdio>

int main()
{
    const int adapters = CWirelessManage::Get()->GetWiFiAdapterCount();
    std::printf("%d wireless adapters\n", adapters);
    CWirelessManage::Delete();
    return 0;
}
