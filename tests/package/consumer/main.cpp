#include <calvix/explain.h>
#include <calvix/wireless_manage.h>
#include <calvix/wlan_functions.h>

#include <cstdio>

// The WLAN API, which the installed tree brings along where there is no Windows.
bool HasService()
{
    DWORD version = 0;
    HANDLE client = nullptr;
    return WlanOpenHandle(2, nullptr, &version, &client) == ERROR_SUCCESS &&
           WlanCloseHandle(client, nullptr) == ERROR_SUCCESS;
}

int main()
{
    CWirelessManage* const manager = CWirelessManage::Get();
    std::vector<WLAN_INTERFACE_INFO> adapters;
    const long code = manager->GetWlanInterface(&adapters);
    if (code != 0 || !HasService())
    {
        std::printf("%s\n", calvix::Explain("GetWlanInterface", code).meaning.c_str());
        return 1;
    }
    char description[1024];
    manager->UnicodeToAnsi(adapters.front().strInterfaceDescription, description);
    std::printf("%d adapter%s, the first: %s\n", static_cast<int>(adapters.size()), adapters.size() == 1 ? "" : "s",
                description);
    CWirelessManage::Delete();
    return 0;
}
