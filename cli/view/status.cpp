#include "view/status.h"

#include "core/wlan_records.h"
#include "output/table.h"
#include "output/text_forms.h"
#include "output/words.h"
#include "view/describe.h"

namespace calvix::host
{

ConnectionFacts DescribeConnection(const WLAN_CONNECTION_ATTRIBUTES& attributes)
{
    const WLAN_ASSOCIATION_ATTRIBUTES& association = attributes.wlanAssociationAttributes;
    const WLAN_SECURITY_ATTRIBUTES& security = attributes.wlanSecurityAttributes;
    ConnectionFacts facts;
    facts.profile = Narrow(FixedText(attributes.strProfileName));
    facts.mode = ConnectionModeText(attributes.wlanConnectionMode);
    facts.ssid = DescribeSsid(association.dot11Ssid);
    facts.bssid = MacText(association.dot11Bssid);
    facts.bssType = BssTypeText(association.dot11BssType);
    facts.phy = PhyText(association.dot11PhyType);
    facts.security = SecurityText(security.dot11AuthAlgorithm, security.dot11CipherAlgorithm);
    facts.quality = association.wlanSignalQuality;
    facts.receiveKbps = association.ulRxRate;
    facts.transmitKbps = association.ulTxRate;
    return facts;
}

namespace
{

/// What not every driver reports; left out if it is refused.
void AddMeasurements(Host& host, WLAN_CONNECTION_ATTRIBUTES& attributes, ConnectionFacts& facts)
{
    const GUID* const adapter = host.adapterGuid();
    int rssi = 0;
    if (host.manager().GetRssi(adapter, rssi) == 0)
        facts.rssi = rssi;
    const long accessPoints = host.manager().GetCurrentWiFi(adapter, &attributes);
    if (accessPoints >= 0)
        facts.accessPoints = accessPoints;
    _WIFI_TXRX_COUNT count{};
    if (host.manager().GetWlanStatistics(adapter, &count) == 0)
    {
        facts.framesSent = count.ullTransmitted;
        facts.framesReceived = count.ullReceived;
    }
}

std::string RateText(unsigned long kbps)
{
    return kbps != 0 ? std::to_string(kbps / 1000) + " Mbit/s" : "unknown";
}

std::vector<std::pair<std::string, std::string>> PairsOf(const ConnectionFacts& connection,
                                                         const TerminalTraits& terminal)
{
    const Cell bars = SignalBars(connection.quality, terminal);
    std::string signal = Toned(bars.text, bars.tone, terminal) + " " + std::to_string(connection.quality) + "%";
    if (connection.rssi)
        signal += " (" + std::to_string(*connection.rssi) + " dBm)";
    std::vector<std::pair<std::string, std::string>> pairs = {{"SSID", connection.ssid.text},
                                                              {"BSSID", connection.bssid},
                                                              {"Profile", VisibleText(connection.profile)},
                                                              {"Security", connection.security},
                                                              {"PHY", connection.phy},
                                                              {"Signal", signal},
                                                              {"Receive rate", RateText(connection.receiveKbps)},
                                                              {"Transmit rate", RateText(connection.transmitKbps)}};
    if (connection.accessPoints)
        pairs.emplace_back("Access points", std::to_string(*connection.accessPoints) + " of this network in view");
    if (connection.framesSent && connection.framesReceived)
        pairs.emplace_back("Frames", std::to_string(*connection.framesSent) + " sent, " +
                                         std::to_string(*connection.framesReceived) + " received");
    return pairs;
}

} // namespace

StatusFacts ReadStatus(Host& host)
{
    StatusFacts status;
    // The adapter's state may have changed since the adapter was looked up.
    WLAN_INTERFACE_INFO now = host.adapter();
    unsigned number = 0;
    const std::vector<WLAN_INTERFACE_INFO> adapters = host.adapters();
    for (unsigned i = 0; i < adapters.size(); ++i)
    {
        if (IsEqualGUID(adapters[i].InterfaceGuid, now.InterfaceGuid))
        {
            now = adapters[i];
            number = i + 1;
        }
    }
    status.adapter = DescribeAdapter(now, number);
    if (!IsConnectedState(now.isState))
        return status;
    WLAN_CONNECTION_ATTRIBUTES attributes{};
    host.Check("GetCurrentConnection", host.manager().GetCurrentConnection(host.adapterGuid(), &attributes));
    status.connection = DescribeConnection(attributes);
    AddMeasurements(host, attributes, *status.connection);
    return status;
}

void PrintStatus(Output& output, const StatusFacts& status)
{
    std::vector<std::pair<std::string, std::string>> pairs = {
        {"Adapter", VisibleText(status.adapter.description)},
        {"State", Toned(status.adapter.stateText, status.connection ? Tone::good : Tone::plain, output.terminal())}};
    if (status.connection)
        for (const auto& pair : PairsOf(*status.connection, output.terminal()))
            pairs.push_back(pair);
    PrintPairs(output.out(), pairs);
}

} // namespace calvix::host
