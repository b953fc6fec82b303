#include "inventory/interface_listing.h"

#include "core/wlan_records.h"
#include "text/conversion.h"

namespace calvix
{

namespace
{

constexpr int kGuidTextSize = 39;

constexpr ValueText kStates[] = {
    {wlan_interface_state_not_ready, "Not ready"},
    {wlan_interface_state_connected, "Connected"},
    {wlan_interface_state_ad_hoc_network_formed, "First node in a ad hoc network"},
    {wlan_interface_state_disconnecting, "Disconnecting"},
    {wlan_interface_state_disconnected, "Not connected"},
    {wlan_interface_state_associating, "Attempting to associate with a network"},
    {wlan_interface_state_discovering, "Auto configuration is discovering settings for the network"},
    {wlan_interface_state_authenticating, "In process of authenticating"},
};

void ListGuid(Trace& trace, unsigned index, const GUID& guid)
{
    wchar_t text[kGuidTextSize] = {};
    if (platform::text().StringFromGUID2(guid, text, kGuidTextSize) == 0)
        trace.Message("StringFromGUID2 failed");
    else
        trace.Line("  InterfaceGUID[%u]: %s", index, NarrowText(text).c_str());
}

/// Deliberate: one listing writes the state on a new line after the label, the other on the same line, with two blanks
/// before an unknown state.
void ListState(Trace& trace, unsigned index, WLAN_INTERFACE_STATE state, bool onItsOwnLine)
{
    char label[64] = {};
    FormatTrace(label, sizeof(label), "  Interface State[%u]:\t ", index);
    const char* const known = TextOf(kStates, In32Bits(state), nullptr);
    if (onItsOwnLine)
        trace.Message(label);
    if (known != nullptr)
        trace.Line("%s%s", onItsOwnLine ? "" : label, known);
    else if (onItsOwnLine)
        trace.Line("Unknown state %d", static_cast<std::int32_t>(state));
    else
        trace.Line("%s Unknown state %d", label, static_cast<std::int32_t>(state));
}

void ListInterface(Trace& trace, unsigned index, const WLAN_INTERFACE_INFO& info, bool stateOnItsOwnLine)
{
    trace.Line("  Interface Index[%u]:\t %u", index, index);
    ListGuid(trace, index, info.InterfaceGuid);
    trace.Line("  Interface Description[%u]: %s", index, NarrowText(FixedText(info.strInterfaceDescription)).c_str());
    ListState(trace, index, info.isState, stateOnItsOwnLine);
}

} // namespace

int ListEveryInterface(HANDLE& client, const InterfaceListing& listing, ListSeen listSeen)
{
    LocalTrace<256> trace;
    InterfaceList interfaces("WlanFreeMemory(pIfList)");
    if (const ErrorNumber error = OpenClient(client, trace))
        return static_cast<int>(error);
    if (EnumerateInterfaces(client, interfaces, trace) != 0)
        return 0;
    trace.Line("%sNum Entries: %u", listing.indent, In32Bits(interfaces->dwNumberOfItems));
    trace.Line("%sCurrent Index: %u", listing.indent, In32Bits(interfaces->dwIndex));
    int result = 0;
    unsigned index = 0;
    for (const WLAN_INTERFACE_INFO& info : Items(*interfaces))
    {
        ListInterface(trace, index++, info, listing.stateOnItsOwnLine);
        if (!listSeen(client, &info.InterfaceGuid, trace))
            result = 1;
    }
    return result;
}

void ListSsid(Trace& trace, const char* label, const DOT11_SSID& ssid)
{
    const int length = static_cast<int>(SsidLength(ssid));
    if (length != 0)
        trace.Line("%s%.*s", label, length, reinterpret_cast<const char*>(ssid.ucSSID));
}

void ListEnd(Trace& trace)
{
    trace.Message("");
    trace.Message("");
}

} // namespace calvix
