#pragma once

#include "model/journal.h"

#include <calvix/wireless_manage.h>

namespace calvix::test
{

/// What the library does, asked as the world's caller asks.
class Library
{
public:
    Library(const World& world, Journal& journal) : m_world(world), m_journal(journal) {}

    Outcome GetMatchAPList();
    Outcome GetConnectableAPList();
    Outcome GetConnectableAPListOfFirst();
    Outcome GetMatchAPCount();
    Outcome GetMatchAPCountWithName();

    Outcome ConnectBestAP(bool byList, bool byName);
    Outcome AutoConnectEx() { return Ended(Manager().AutoConnectEx(Guid())); }

    Outcome AutoConnect() { return Ended(Manager().AutoConnect(Guid())); }
    Outcome AutoSwitch() { return Ended(Manager().AutoSwitch(Guid())); }
    Outcome SmartSwitch() { return Ended(Manager().SmartSwitch(Guid())); }
    Outcome SmartConnecting();
    Outcome ConnectAutoMode() { return Ended(Manager().ConnectAutoMode(Guid())); }

    Outcome PreRoaming() { return Ended(Manager().PreRoaming(Guid())); }
    Outcome Roaming() { return Ended(Manager().Roaming(Guid())); }
    Outcome ReconnectByAttributes();
    Outcome ReconnectByNotification();

private:
    static CWirelessManage& Manager();
    const GUID* Guid() const { return &AdapterGuid(m_world.asked); }

    Outcome Ended(long long code) { return {.code = code, .events = m_journal.Events()}; }
    Outcome EndedWith(long long code, const std::vector<WLAN_BSS_ENTRY>& entries);
    Outcome EndedWith(long long code, const std::vector<std::wstring>& names);

    const World& m_world;
    Journal& m_journal;
};

} // namespace calvix::test
