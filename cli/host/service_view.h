#pragma once

#include "core/memory.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace calvix::host
{

/// An access point, and the information elements of its beacons.
struct HeardAccessPoint
{
    WLAN_BSS_ENTRY entry{};
    std::vector<std::uint8_t> elements;
};

/// The WLAN service as this program looks at it, through a client handle of its own: the lists for the library's
/// counts and matches. A refused operation is a Failure in words; a missing connection is not one.
class ServiceView
{
public:
    ServiceView();
    ~ServiceView();
    ServiceView(const ServiceView&) = delete;
    ServiceView& operator=(const ServiceView&) = delete;

    std::vector<WLAN_PROFILE_INFO> Profiles(const GUID* adapter);
    /// One entry per visible network and matching profile, as the library's methods see them.
    std::vector<WLAN_AVAILABLE_NETWORK> Networks(const GUID* adapter);
    std::vector<HeardAccessPoint> AccessPoints(const GUID* adapter);
    /// The entries of one network, left in the service's own record.
    void AccessPointsOf(const GUID* adapter, const WLAN_AVAILABLE_NETWORK& network, BssList& list);
    /// None while there is no connection.
    std::optional<WLAN_CONNECTION_ATTRIBUTES> Connection(const GUID* adapter);

    /// A switch of the adapter; none if the service does not report it.
    std::optional<bool> IsEnabled(const GUID* adapter, WLAN_INTF_OPCODE opcode);
    /// The switches of each PHY; none if the service does not report them.
    std::vector<WLAN_PHY_RADIO_STATE> Radios(const GUID* adapter);
    /// A profile's document, its key protected.
    std::wstring ProfileDocument(const GUID* adapter, const wchar_t* name);

private:
    HANDLE m_client = nullptr;
};

} // namespace calvix::host
