#pragma once

#include <calvix/wireless_manage.h>

#include <new>

namespace calvix
{

/// What the manager keeps to itself, for the tests. The members come by reference.
struct ManagerInternals
{
    static HANDLE& Client() { return CWirelessManage::hClient; }
    static CWirelessManage*& Instance() { return CWirelessManage::m_pManage; }

    static WLAN_CONNECTION_ATTRIBUTES& SavedConnection(CWirelessManage& manager) { return manager.m_SavedConnAttr; }
    static WLAN_CONNECTION_NOTIFICATION_DATA& SavedNotification(CWirelessManage& manager)
    {
        return manager.m_SavedConnNotify;
    }
    static int& SavedAutoConnMode(CWirelessManage& manager) { return manager.m_nSavedAutoConnMode; }
    static char (&InterfaceState(CWirelessManage& manager))[256] { return manager.m_szInterfaceState; }
    static char (&GuidText(CWirelessManage& manager))[128] { return manager.m_szGuid; }
    static char (&InterfaceDesc(CWirelessManage& manager))[256] { return manager.m_szInterfaceDesc; }
    static char (&PowerSetting(CWirelessManage& manager))[128] { return manager.m_szPowerSetting; }
    static bool& Spare(CWirelessManage& manager) { return manager.m_bSpare; }
    static void*& SparePointer(CWirelessManage& manager) { return manager.m_pSpare; }
    static POWER_POLICY& SavedPowerPolicy(CWirelessManage& manager) { return manager.m_SavedPowerPolicy; }
    static char (&AppPath(CWirelessManage& manager))[512] { return manager.m_szAppPath; }

    /// An object in the caller's memory, whatever its bytes were. It needs no destruction.
    static CWirelessManage& MakeIn(void* room) { return *new (room) CWirelessManage(); }

    /// Back to the beginning of the process: no instance, no client handle. Calls no platform.
    static void Reset()
    {
        Client() = nullptr;
        delete Instance();
        Instance() = nullptr;
    }
};

} // namespace calvix
