#pragma once

#include "core/service_steps.h"

#include <cstdint>
#include <span>

namespace calvix
{

/// How a listing begins and shows the state of an interface.
struct InterfaceListing
{
    const char* indent;     ///< before the number of interfaces
    bool stateOnItsOwnLine; ///< instead of after its label
};

/// Lists what one interface sees. Returns whether the service answered.
using ListSeen = bool (*)(HANDLE client, const GUID* interfaceGuid, Trace& trace);

/// Traces every interface, each followed by what it sees. Returns 0; 1 if the service refused a list for some
/// interface; the platform's error number if the client handle cannot be opened.
int ListEveryInterface(HANDLE& client, const InterfaceListing& listing, ListSeen listSeen);

/// A platform number in the 32 bits that it has there.
template <typename Number>
constexpr unsigned In32Bits(Number number)
{
    return static_cast<std::uint32_t>(number);
}

/// Traces a label followed by an SSID's bytes; writes nothing for an empty SSID.
void ListSsid(Trace& trace, const char* label, const DOT11_SSID& ssid);

/// What a listing calls one value of an enumeration.
struct ValueText
{
    std::uint32_t value;
    const char* text;
};

/// The text of a value, or `otherwise` for one that the table does not know.
inline const char* TextOf(std::span<const ValueText> table, std::uint32_t value, const char* otherwise)
{
    for (const ValueText& row : table)
        if (row.value == value)
            return row.text;
    return otherwise;
}

/// Sets the entries of a listing apart.
void ListEnd(Trace& trace);

} // namespace calvix
