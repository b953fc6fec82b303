#include "view/describe.h"

#include "core/wlan_records.h"
#include "forms/channel.h"
#include "forms/guid_text.h"
#include "output/text_forms.h"
#include "output/words.h"
#include "text/value_text.h"
#include <calvix/platform_records.h>

#include <chrono>
#include <cstdio>
#include <limits>

namespace calvix::host
{

SsidFacts DescribeSsid(const DOT11_SSID& ssid)
{
    return {SsidText(ssid), HexText(SsidBytes(ssid))};
}

AdapterFacts DescribeAdapter(const WLAN_INTERFACE_INFO& info, unsigned number)
{
    AdapterFacts facts;
    facts.number = number;
    facts.guid = forms::GuidText(info.InterfaceGuid);
    facts.description = Narrow(FixedText(info.strInterfaceDescription));
    facts.state = static_cast<unsigned>(info.isState);
    const std::string_view text = InterfaceStateText(facts.state);
    facts.stateText = text.empty() ? "unknown(" + std::to_string(facts.state) + ")" : std::string(text);
    return facts;
}

NetworkFacts DescribeNetwork(const WLAN_AVAILABLE_NETWORK& network)
{
    NetworkFacts facts;
    facts.ssid = DescribeSsid(network.dot11Ssid);
    facts.profile = Narrow(FixedText(network.strProfileName));
    facts.quality = network.wlanSignalQuality;
    facts.security = SecurityText(network.dot11DefaultAuthAlgorithm, network.dot11DefaultCipherAlgorithm);
    facts.bssType = BssTypeText(network.dot11BssType);
    for (ULONG i = 0; i < network.uNumberOfPhyTypes && i < WLAN_MAX_PHY_TYPE_NUMBER; ++i)
        facts.phys.push_back(PhyText(network.dot11PhyTypes[i]));
    facts.accessPoints = network.uNumberOfBssids;
    facts.connected = (network.dwFlags & WLAN_AVAILABLE_NETWORK_CONNECTED) != 0;
    facts.connectable = network.bNetworkConnectable != FALSE;
    if (!facts.connectable)
        facts.reason = ReasonText(network.wlanNotConnectableReason);
    return facts;
}

AccessPointFacts DescribeAccessPoint(const WLAN_BSS_ENTRY& entry)
{
    AccessPointFacts facts;
    facts.ssid = DescribeSsid(entry.dot11Ssid);
    facts.bssid = MacText(entry.dot11Bssid);
    facts.rssi = entry.lRssi;
    facts.quality = static_cast<unsigned>(entry.uLinkQuality);
    facts.frequencyKhz = entry.ulChCenterFrequency;
    facts.channel = forms::ChannelNumber(static_cast<std::uint32_t>(entry.ulChCenterFrequency));
    facts.band = BandText(entry.ulChCenterFrequency);
    facts.phy = PhyText(entry.dot11BssPhyType);
    facts.bssType = BssTypeText(entry.dot11BssType);
    facts.beaconPeriod = entry.usBeaconPeriod;
    return facts;
}

std::vector<Column> AccessPointColumns()
{
    return {{"BSSID"}, {"SSID"}, {"Signal"}, {"dBm", Align::right}, {"Channel", Align::right}, {"Band"}, {"PHY"}};
}

std::vector<Cell> AccessPointRow(Host& host, const AccessPointFacts& facts)
{
    const Cell ssid = facts.ssid.hex.empty() ? Cell("(hidden)", Tone::faint) : Cell(facts.ssid.text);
    const int quality = host.manager().GetSignalStrength(static_cast<int>(facts.rssi));
    return {facts.bssid,
            ssid,
            SignalBars(static_cast<unsigned long>(quality), host.terminal()),
            std::to_string(facts.rssi),
            std::to_string(facts.channel),
            facts.band,
            facts.phy};
}

std::string MomentText(std::uint64_t hostTime)
{
    using namespace std::chrono;
    constexpr std::uint64_t unitsInSecond = 10000000;
    constexpr sys_days beginning = 1601y / January / 1;
    constexpr auto first = 2000y; // drivers without a clock stamp from the start of the computer
    if (hostTime > (std::numeric_limits<std::int64_t>::max)())
        return {};
    const auto moment = beginning + seconds(static_cast<std::int64_t>(hostTime / unitsInSecond));
    const year_month_day date(floor<days>(moment));
    const hh_mm_ss time(moment - floor<days>(moment));
    if (date.year() < first)
        return {};
    char text[64];
    std::snprintf(text, sizeof(text), "%04d-%02u-%02u %02d:%02d:%02d UTC", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text;
}

std::string Counted(std::size_t count, const char* noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

} // namespace calvix::host
