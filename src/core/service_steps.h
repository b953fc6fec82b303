#pragma once

#include "core/trace.h"
#include "core/wlan_memory.h"
#include "platform/records/error_numbers.h"

namespace calvix
{

/// The version of the WLAN API that handles are opened for.
inline constexpr DWORD kClientVersion = 2;

/// Steps that most methods share. Each traces its own failure through the method's trace and returns the platform's
/// error number, 0 for success, unless said otherwise.

/// What an operation has to be taken for: one that succeeded and handed out nothing has failed.
inline DWORD ErrorOf(DWORD error, const void* handedOut)
{
    return error == 0 && handedOut == nullptr ? ERROR_INVALID_DATA : error;
}

/// Opens a client handle.
ErrorNumber OpenNewClient(HANDLE& client, Trace& trace, const char* failureText);

/// The same when it is not open yet.
inline ErrorNumber
OpenClient(HANDLE& client, Trace& trace, const char* failureText = "WlanOpenHandle failed with error: %u")
{
    return client != nullptr ? 0 : OpenNewClient(client, trace, failureText);
}

/// All interfaces, none included.
ErrorNumber EnumerateInterfaces(HANDLE client, InterfaceList& list, Trace& trace);

/// A method's codes for the ways in which it can be left without an interface.
struct InterfaceListCodes
{
    int notOpened;
    int enumerationFailed;
    int none;
    const char* noneText = "No valid WLAN adapter";
};

/// Opens the client handle when needed and lists the interfaces; `list` holds at least one when this returns 0,
/// otherwise it returns the method's code. A null `noneText` keeps the empty list out of the trace.
int ListInterfaces(HANDLE& client, InterfaceList& list, Trace& trace, const InterfaceListCodes& codes);

/// Queries an interface for a record; `size` receives the bytes that the service returned. An answer of fewer than
/// `needed` bytes is a failed query.
template <typename Record>
ErrorNumber QueryInterface(HANDLE client,
                           const GUID* interfaceGuid,
                           WLAN_INTF_OPCODE opcode,
                           WlanMemory<Record>& record,
                           DWORD& size,
                           Trace& trace,
                           std::size_t needed = 0)
{
    size = sizeof(Record);
    PVOID data = nullptr;
    DWORD error = platform::wlan().WlanQueryInterface(client, interfaceGuid, opcode, nullptr, &size, &data, nullptr);
    record.Take(data);
    error = ErrorOf(error, data);
    if (error == 0 && size < needed)
        error = ERROR_BAD_LENGTH;
    trace.Failed(error, "WlanQueryInterface failed with error: %u");
    return static_cast<ErrorNumber>(error);
}

/// Attributes of the current connection; fails when there is none. The returned size is not judged: the methods that
/// hand the record on copy so many bytes, whatever that leaves out.
inline ErrorNumber QueryCurrentConnection(
    HANDLE client, const GUID* interfaceGuid, ConnectionAttributes& attributes, DWORD& size, Trace& trace)
{
    return QueryInterface(client, interfaceGuid, wlan_intf_opcode_current_connection, attributes, size, trace);
}

inline ErrorNumber
QueryCurrentConnection(HANDLE client, const GUID* interfaceGuid, ConnectionAttributes& attributes, Trace& trace)
{
    DWORD size = 0;
    return QueryCurrentConnection(client, interfaceGuid, attributes, size, trace);
}

/// BSS entries of the network that `connection` belongs to.
ErrorNumber ListConnectionBss(HANDLE client,
                              const GUID* interfaceGuid,
                              const WLAN_CONNECTION_ATTRIBUTES& connection,
                              BssList& list,
                              Trace& trace);

/// BSS entries of an available network.
ErrorNumber ListNetworkBss(
    HANDLE client, const GUID* interfaceGuid, const WLAN_AVAILABLE_NETWORK& network, BssList& list, Trace& trace);

/// BSS entries of every network.
ErrorNumber ListAllBss(HANDLE client, const GUID* interfaceGuid, BssList& list, Trace& trace);

/// Available networks, one entry per visible network and matching profile; without ad hoc and hidden profiles.
ErrorNumber ListAvailableNetworks(HANDLE client, const GUID* interfaceGuid, NetworkList& list, Trace& trace);

/// Stored profiles in preference order.
ErrorNumber ListProfiles(HANDLE client, const GUID* interfaceGuid, ProfileList& list, Trace& trace);

/// A method's codes for the ways in which it can be left without profiles to match with networks.
struct ProfileAndNetworkCodes
{
    int notOpened;
    int profilesFailed;
    int noProfile;
    int networksFailed;
    int noNetwork;
    const char* noProfileText = "No network profile: %u";
    const char* noNetworkText = "No available network: %u";
};

/// Opens the client handle when needed and lists the stored profiles, then the available networks; both hold at least
/// one when this returns 0, otherwise it returns the method's code. An empty list is traced with that code as its
/// number.
int ListProfilesAndNetworks(HANDLE& client,
                            const GUID* interfaceGuid,
                            ProfileList& profiles,
                            NetworkList& networks,
                            Trace& trace,
                            const ProfileAndNetworkCodes& codes);

} // namespace calvix
