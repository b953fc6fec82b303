#pragma once

#include "model/outcome.h"
#include "model/situation.h"
#include "platform/wlan_service.h"

#include <map>
#include <optional>
#include <tuple>

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

template <typename Data>
struct Answer
{
    DWORD error = 0;
    Data data{};
};

/// The service as the model sees it: plain data in place of lists and records, and every question written down as the
/// library has to ask it. The computer stays the same, so what it answers once it answers always.
class PlainService
{
public:
    PlainService(const Situation& situation, platform::WlanService& service);

    /// Opens the client handle where it is not open.
    DWORD Open();
    /// The numbers of the adapters.
    Answer<std::vector<int>> Adapters();
    const Answer<std::vector<std::wstring>>& Profiles(int adapter);
    const Answer<std::vector<Network>>& Networks(int adapter);
    const Answer<std::vector<Heard>>& Entries(int adapter, const std::string& ssid, unsigned bssType, bool secured);
    const Answer<Link>& Connection(int adapter);
    const Answer<std::wstring>& ProfileText(int adapter, const std::wstring& name);
    DWORD Move(int adapter, const std::wstring& name, std::size_t position);
    DWORD Connect(int adapter, const std::wstring& profile, unsigned bssType, const std::string& bssid = "");

    /// The questions since the last call.
    std::vector<Event> TakeEvents();

private:
    Answer<std::vector<std::wstring>> AskProfiles(const GUID& adapter);
    Answer<std::vector<Network>> AskNetworks(const GUID& adapter);
    Answer<std::vector<Heard>> AskEntries(const GUID& adapter, const Event& question);
    Answer<Link> AskConnection(const GUID& adapter);
    Answer<std::wstring> AskProfileText(const GUID& adapter, const std::wstring& name);

    const Situation& m_situation;
    platform::WlanService& m_service;
    HANDLE m_client = nullptr; ///< the model's own
    std::vector<Event> m_events;
    unsigned m_requests = 0;

    // By adapter and what else is asked for; nothing until it is asked for.
    std::map<int, std::optional<Answer<std::vector<std::wstring>>>> m_profiles;
    std::map<int, std::optional<Answer<std::vector<Network>>>> m_networks;
    std::map<std::tuple<int, std::string, unsigned, bool>, std::optional<Answer<std::vector<Heard>>>> m_entries;
    std::map<int, std::optional<Answer<Link>>> m_connections;
    std::map<std::pair<int, std::wstring>, std::optional<Answer<std::wstring>>> m_texts;
};

} // namespace calvix::test
