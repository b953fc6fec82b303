#pragma once

#include "support/test_scenarios.h"

#include <string>

namespace calvix::test
{

/// A call for adapter A in the call log.
inline std::string CallForA(const std::string& operation, const std::string& arguments)
{
    return operation + "(client=1, interface=" + kAdapterAText + ", " + arguments + ")";
}

inline std::string QueryLine(const std::string& opcode, const std::string& record)
{
    return CallForA("WlanQueryInterface", "opcode=" + opcode + ", reserved=null, dataSize=sizeof(" + record +
                                              "), data=non-null, valueType=null");
}

inline std::string ConnectionQuery()
{
    return QueryLine("current_connection", "WLAN_CONNECTION_ATTRIBUTES");
}

inline std::string ConnectLine(const std::string& profile,
                               const std::string& bssids = "null",
                               const std::string& bssType = "infrastructure")
{
    return CallForA("WlanConnect", "parameters={mode=profile, profile=\"" + profile + "\", ssid=null, bssids=" +
                                       bssids + ", bssType=" + bssType + ", flags=0}, reserved=null");
}

inline std::string BssLine(const std::string& ssid, const std::string& bssType, const std::string& secured)
{
    return CallForA("WlanGetNetworkBssList", "ssid=" + ssid + ", bssType=" + bssType + ", securityEnabled=" + secured +
                                                 ", reserved=null, list=non-null");
}

/// The access points of a network; an infrastructure network is secured here, an independent one is open.
inline std::string NetworkBssLine(const std::string& ssid, const std::string& bssType = "infrastructure")
{
    return BssLine('"' + ssid + "\"/" + std::to_string(ssid.size()), bssType,
                   bssType == "infrastructure" ? "true" : "false");
}

/// Those of every network.
inline std::string EveryBssLine()
{
    return BssLine("null", "any", "false");
}

inline std::string NetworksLine()
{
    return CallForA("WlanGetAvailableNetworkList", "flags=0, reserved=null, list=non-null");
}

inline std::string InterfacesLine()
{
    return "WlanEnumInterfaces(client=1, reserved=null, list=non-null)";
}

/// The list of the adapter's profiles.
inline std::string ProfilesLine()
{
    return CallForA("WlanGetProfileList", "reserved=null, list=non-null");
}

/// Reads a profile with its key in plain text.
inline std::string ReadProfileLine(const std::string& name)
{
    return CallForA("WlanGetProfile",
                    "name=\"" + name + "\", reserved=null, xml=non-null, flags=4, grantedAccess=131073");
}

/// The conversion of a profile's name.
inline std::string NameLine(const std::string& name)
{
    return "MultiByteToWideChar(codePage=0, flags=9, source=\"" + name +
           "\", sourceLength=-1, destination=non-null, destinationLength=256)";
}

inline constexpr const char* kRelease = "WlanFreeMemory(memory=non-null)";

} // namespace calvix::test
