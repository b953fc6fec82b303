#pragma once

#include "support/test_worlds.h"

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

} // namespace calvix::test
