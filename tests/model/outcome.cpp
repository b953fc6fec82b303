#include "model/outcome.h"

#include "model/situation.h"

#include <sstream>

namespace calvix::test
{

std::string BytesOf(const DOT11_SSID& ssid)
{
    return {reinterpret_cast<const char*>(ssid.ucSSID), ssid.uSSIDLength};
}

std::string BytesOf(const DOT11_MAC_ADDRESS& address)
{
    return {reinterpret_cast<const char*>(&address[0]), sizeof address};
}

Heard HeardIn(const WLAN_BSS_ENTRY& entry)
{
    return {BytesOf(entry.dot11Ssid), BytesOf(entry.dot11Bssid), entry.ulChCenterFrequency, entry.uLinkQuality};
}

std::string Describe(const Outcome& outcome)
{
    std::ostringstream text;
    text << "  result " << outcome.code << '\n';
    for (const Event& event : outcome.events)
        text << "  " << event.operation << " adapter=" << event.adapter << " profile=\"" << Readable(event.profile)
             << "\" ssid=\"" << Readable(event.ssid) << "\" number=" << event.number << " secured=" << event.secured
             << " bssid=" << Readable(event.bssid) << (event.oddity.empty() ? "" : " ODD: ") << event.oddity << '\n';
    for (const Heard& entry : outcome.entries)
        text << "  entry ssid=\"" << Readable(entry.ssid) << "\" bssid=" << Readable(entry.bssid) << '\n';
    for (const std::wstring& name : outcome.names)
        text << "  name \"" << Readable(name) << "\"\n";
    text << "  text \"" << outcome.text << "\"\n";
    return text.str();
}

} // namespace calvix::test
