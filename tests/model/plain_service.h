#pragma once

#include "model/outcome.h"
#include "model/world.h"
#include "platform/wlan_service.h"

namespace calvix::test
{

/// An entry of the available-network list.
struct Network
{
    std::wstring profile;
    std::string ssid;
    unsigned bssType = 0;
    bool secured = false;
    unsigned long quality = 0;
};

/// The current connection.
struct Link
{
    std::wstring profile;
    std::string ssid;
    unsigned bssType = 0;
    std::string bssid;
    unsigned long quality = 0;
    bool secured = false;
};

/// The service as the model sees it: plain data in place of lists and records, errors returned as they are, and every
/// question written down as the library has to ask it.
class PlainService
{
public:
    PlainService(const World& world, platform::WlanService& service, HANDLE client)
        : m_world(world), m_service(service), m_client(client)
    {
    }

    /// Opens the client handle where it is not open.
    DWORD Open();
    DWORD Adapters(std::vector<int>& adapters);
    DWORD Profiles(int adapter, std::vector<std::wstring>& names);
    DWORD Networks(int adapter, std::vector<Network>& networks);
    DWORD Entries(int adapter, const std::string& ssid, unsigned bssType, bool secured, std::vector<Heard>& entries);
    DWORD Connection(int adapter, Link& link);
    DWORD ProfileText(int adapter, const std::wstring& name, std::wstring& xml);
    DWORD Move(int adapter, const std::wstring& name, std::size_t position);
    DWORD Connect(int adapter, const std::wstring& profile, unsigned bssType, const std::string& bssid = "");

    const std::vector<Event>& Events() const { return m_events; }

private:
    const World& m_world;
    platform::WlanService& m_service;
    HANDLE m_client; ///< the model's own
    std::vector<Event> m_events;
    unsigned m_requests = 0;
};

} // namespace calvix::test
