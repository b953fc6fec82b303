#pragma once

#include "core/memory.h"
#include "core/trace.h"
#include "platform/records/error_numbers.h"

#include <cstddef>

namespace calvix
{

/// The version of the WLAN API that handles are opened for.
inline constexpr DWORD kClientVersion = 2;

/// Steps that most methods share. Each traces its own failure through the method's trace and returns the platform's
/// error number, 0 for success, unless said otherwise.

/// The error of an operation. A success without a result, or with a record shorter than needed, is a failure.
inline DWORD ErrorOf(DWORD error, const void* handedOut, std::size_t size = 0, std::size_t needed = 0)
{
    if (error != 0)
        return error;
    if (handedOut == nullptr)
        return ERROR_INVALID_DATA;
    return size < needed ? ERROR_BAD_LENGTH : 0;
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

inline constexpr const char* kNoInterface = "No valid WLAN adapter";

/// A method's codes for the ways in which it can be left without an interface.
struct InterfaceListCodes
{
    int notOpened;
    int enumerationFailed;
    int none;
    const char* noneText = kNoInterface;
};

/// Opens the client handle when needed and lists the interfaces; `list` holds at least one when this returns 0,
/// otherwise it returns the method's code. A null `noneText` keeps the empty list out of the trace.
int ListInterfaces(HANDLE& client, InterfaceList& list, Trace& trace, const InterfaceListCodes& codes);

/// The same for a method that only asks whether there is an interface. Every failure reads as no.
bool HasInterface(HANDLE& client, InterfaceList& list, Trace& trace);

/// The first interface, for a method that passes the platform's error numbers on: 0 with `first`, -1 when the client
/// handle cannot be opened, or the enumeration's error number. Deliberate: no interface reads as success; `first` stays
/// null then.
int FindFirstInterface(HANDLE& client, InterfaceList& list, const GUID*& first, Trace& trace);

/// Queries an interface for a record, of which the method reads `needed` bytes; `size` receives the bytes that the
/// service returned.
template <typename Record>
ErrorNumber QueryInterface(HANDLE client,
                           const GUID* interfaceGuid,
                           WLAN_INTF_OPCODE opcode,
                           WlanMemory<Record>& record,
                           std::size_t needed,
                           DWORD& size,
                           Trace& trace)
{
    size = sizeof(Record);
    PVOID data = nullptr;
    DWORD error = platform::wlan().WlanQueryInterface(client, interfaceGuid, opcode, nullptr, &size, &data, nullptr);
    record.Take(data);
    error = ErrorOf(error, data, size, needed);
    trace.Failed(error, "WlanQueryInterface failed with error: %u");
    return static_cast<ErrorNumber>(error);
}

/// How far methods read into the record of a connection. Who only hands it on reads nothing: copied is what came.
inline constexpr std::size_t kNothing = 0;
inline constexpr std::size_t kUpToProfileName = offsetof(WLAN_CONNECTION_ATTRIBUTES, wlanAssociationAttributes);
inline constexpr std::size_t kUpToAssociation = offsetof(WLAN_CONNECTION_ATTRIBUTES, wlanSecurityAttributes);
inline constexpr std::size_t kUpToSecurityFlag = kUpToAssociation + sizeof(BOOL);

/// Attributes of the current connection; fails when there is none.
inline ErrorNumber QueryCurrentConnection(HANDLE client,
                                          const GUID* interfaceGuid,
                                          ConnectionAttributes& attributes,
                                          std::size_t needed,
                                          DWORD& size,
                                          Trace& trace)
{
    return QueryInterface(client, interfaceGuid, wlan_intf_opcode_current_connection, attributes, needed, size, trace);
}

inline ErrorNumber QueryCurrentConnection(
    HANDLE client, const GUID* interfaceGuid, ConnectionAttributes& attributes, std::size_t needed, Trace& trace)
{
    DWORD size = 0;
    return QueryCurrentConnection(client, interfaceGuid, attributes, needed, size, trace);
}

/// BSS entries of a network, or of every one for a null SSID.
ErrorNumber ListBss(HANDLE client,
                    const GUID* interfaceGuid,
                    const DOT11_SSID* ssid,
                    DOT11_BSS_TYPE bssType,
                    BOOL securityEnabled,
                    BssList& list,
                    Trace& trace);

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

/// Reads a stored profile's XML, with its key in plain text where the caller may see it.
ErrorNumber ReadProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, ProfileText& xml, Trace& trace);

/// Moves a stored profile to another place of the preference order; the first is 0.
ErrorNumber MoveProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD place, Trace& trace);

} // namespace calvix
