#include "wrappers/recording/wlan_results.h"

#include "operations/records.h"
#include "wrappers/recording/records.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

namespace calvix::recording
{

namespace
{

/// More items than any list has; a damaged number must not take all memory.
constexpr std::size_t kMostItems = 100000;

template <typename List>
List* MakeList(Fields& fields, std::size_t size)
{
    return static_cast<List*>(fields.holdings().Make(size));
}

void NumberBlock(Fields& fields, const void* block)
{
    // The number follows from the order of the calls; it is there for readers of the file.
    if (!fields.isReading() && block != nullptr)
        fields.Given("block", fields.holdings().Keep(block));
}

std::size_t CountItems(Fields& fields, std::size_t count)
{
    const std::size_t listed = fields.Count("list", count);
    if (listed > kMostItems)
        throw Damage("list", "is too long");
    return listed;
}

/// `first` finds the items in a list; SDKs differ in how they declare them.
template <typename List, typename First>
void DescribeItems(Fields& fields, List** list, First first)
{
    using Item = std::remove_pointer_t<decltype(first(**list))>;
    if (fields.IsNull("list", fields.isReading() ? nullptr : *list))
        return;
    const std::size_t count = CountItems(fields, fields.isReading() ? 0 : (*list)->dwNumberOfItems);
    if (fields.isReading())
    {
        *list = MakeList<List>(fields, sizeof(List) + count * sizeof(Item));
        (*list)->dwNumberOfItems = static_cast<DWORD>(count);
    }
    fields.Number("dwIndex", (*list)->dwIndex);
    Item* const items = first(**list);
    for (std::size_t i = 0; i < count; ++i)
        Describe(fields.Element("list", i), items[i]);
    NumberBlock(fields, *list);
}

/// The elements of an entry, if they lie within the list.
std::string ElementsOf(const WLAN_BSS_LIST& list, const WLAN_BSS_ENTRY& entry)
{
    const auto* const entryBytes = reinterpret_cast<const char*>(&entry);
    const auto place = static_cast<std::size_t>(entryBytes - reinterpret_cast<const char*>(&list));
    if (entry.ulIeOffset > list.dwTotalSize - place || entry.ulIeSize > list.dwTotalSize - place - entry.ulIeOffset)
        return {};
    return {entryBytes + entry.ulIeOffset, static_cast<std::size_t>(entry.ulIeSize)};
}

void WriteBssList(Fields& fields, WLAN_BSS_LIST& list)
{
    CountItems(fields, list.dwNumberOfItems);
    WLAN_BSS_ENTRY* const first = list.wlanBssEntries;
    for (std::size_t i = 0; i < list.dwNumberOfItems; ++i)
    {
        Fields item = fields.Element("list", i);
        Describe(item, first[i]);
        std::string elements = ElementsOf(list, first[i]);
        item.Elements("informationElements", elements);
    }
}

/// The entries, then their elements.
WLAN_BSS_LIST* ReadBssList(Fields& fields)
{
    const std::size_t count = CountItems(fields, 0);
    std::vector<WLAN_BSS_ENTRY> entries(count);
    std::vector<std::string> elements(count);
    const std::size_t entriesEnd = offsetof(WLAN_BSS_LIST, wlanBssEntries) + count * sizeof(WLAN_BSS_ENTRY);
    std::size_t size = (std::max)(entriesEnd, sizeof(WLAN_BSS_LIST));
    for (std::size_t i = 0; i < count; ++i)
    {
        Fields item = fields.Element("list", i);
        Describe(item, entries[i]);
        item.Elements("informationElements", elements[i]);
        entries[i].ulIeOffset = static_cast<ULONG>(size - (entriesEnd - (count - i) * sizeof(WLAN_BSS_ENTRY)));
        entries[i].ulIeSize = static_cast<ULONG>(elements[i].size());
        size += elements[i].size();
    }
    auto* const list = MakeList<WLAN_BSS_LIST>(fields, size);
    list->dwTotalSize = static_cast<DWORD>(size);
    list->dwNumberOfItems = static_cast<DWORD>(count);
    for (std::size_t i = 0; i < count; ++i)
    {
        auto* const entry = list->wlanBssEntries + i;
        *entry = entries[i];
        elements[i].copy(reinterpret_cast<char*>(entry) + entry->ulIeOffset, elements[i].size());
    }
    return list;
}

/// A block of bytes of unknown form.
void DescribeRaw(Fields& fields, const char* name, DWORD& size, PVOID& data)
{
    std::string bytes;
    if (!fields.isReading() && data != nullptr)
        bytes.assign(static_cast<const char*>(data), size);
    fields.Bytes(name, bytes);
    if (!fields.isReading())
        return;
    size = static_cast<DWORD>(bytes.size());
    data = nullptr;
    if (!bytes.empty() || fields.Has("block"))
        data = std::memcpy(fields.holdings().Make(bytes.size()), bytes.data(), bytes.size());
}

/// A block that holds one record.
template <typename Record>
void DescribeRecord(Fields& fields, DWORD& size, PVOID& data)
{
    const bool whole = fields.isReading() ? !fields.Has("bytes") : data != nullptr && size == sizeof(Record);
    if (!whole)
        return DescribeRaw(fields, "bytes", size, data);
    if (fields.isReading())
    {
        data = fields.holdings().Make(sizeof(Record));
        size = sizeof(Record);
    }
    Describe(fields.Object("data"), *static_cast<Record*>(data));
}

/// Statistics are as long as there are PHYs.
void DescribeStatistics(Fields& fields, DWORD& size, PVOID& data)
{
    constexpr std::size_t head = offsetof(WLAN_STATISTICS, PhyCounters);
    const bool whole =
        fields.isReading() ? !fields.Has("bytes") : data != nullptr && size >= head + sizeof(WLAN_PHY_FRAME_STATISTICS);
    if (!whole)
        return DescribeRaw(fields, "bytes", size, data);
    const std::size_t present = fields.isReading() ? 0 : (size - head) / sizeof(WLAN_PHY_FRAME_STATISTICS);
    const std::size_t count = fields.Count("phys", present);
    if (fields.isReading())
    {
        if (count == 0 || count > kMostItems)
            throw Damage("phys", "is not a list of PHYs");
        size = static_cast<DWORD>(head + count * sizeof(WLAN_PHY_FRAME_STATISTICS));
        data = fields.holdings().Make(size);
    }
    auto& statistics = *static_cast<WLAN_STATISTICS*>(data);
    WLAN_PHY_FRAME_STATISTICS* const first = statistics.PhyCounters;
    for (std::size_t i = 0; i < count; ++i)
        Describe(fields.Element("phys", i), first[i]);
    Fields record = fields.Object("data");
    Describe(record, statistics);
    record.Number("dwNumberOfPhys", statistics.dwNumberOfPhys);
}

/// The profile's text, which may follow, is left out: it may have a key in it. Some services leave out more.
void DescribeConnectionData(Fields& fields, DWORD& size, PVOID& data)
{
    constexpr std::size_t least = offsetof(WLAN_CONNECTION_NOTIFICATION_DATA, dwFlags);
    WLAN_CONNECTION_NOTIFICATION_DATA cut{};
    DWORD cutSize = sizeof(cut);
    PVOID shortened = &cut;
    if (fields.isReading())
        return DescribeRecord<WLAN_CONNECTION_NOTIFICATION_DATA>(fields, size, data);
    if (data == nullptr || size < least)
        return DescribeRaw(fields, "bytes", size, data);
    std::memcpy(&cut, data,
                (std::min)(static_cast<std::size_t>(size), offsetof(WLAN_CONNECTION_NOTIFICATION_DATA, strProfileXml)));
    DescribeRecord<WLAN_CONNECTION_NOTIFICATION_DATA>(fields, cutSize, shortened);
}

void DescribeAcmData(Fields& fields, DWORD code, DWORD& size, PVOID& data)
{
    switch (code)
    {
    case wlan_notification_acm_connection_start:
    case wlan_notification_acm_connection_complete:
    case wlan_notification_acm_connection_attempt_fail:
    case wlan_notification_acm_disconnecting:
    case wlan_notification_acm_disconnected:
        return DescribeConnectionData(fields, size, data);
    case wlan_notification_acm_scan_fail:
        return DescribeRecord<WLAN_REASON_CODE>(fields, size, data);
    case wlan_notification_acm_power_setting_change:
        return DescribeRecord<WLAN_POWER_SETTING>(fields, size, data);
    case wlan_notification_acm_bss_type_change:
        return DescribeRecord<DOT11_BSS_TYPE>(fields, size, data);
    default:
        return DescribeRaw(fields, "bytes", size, data);
    }
}

void DescribeMsmData(Fields& fields, DWORD code, DWORD& size, PVOID& data)
{
    if (code == wlan_notification_msm_radio_state_change)
        return DescribeRecord<WLAN_PHY_RADIO_STATE>(fields, size, data);
    if (code == wlan_notification_msm_signal_quality_change)
        return DescribeRecord<WLAN_SIGNAL_QUALITY>(fields, size, data);
    if (code >= wlan_notification_msm_associating && code <= wlan_notification_msm_peer_leave)
        return DescribeRecord<WLAN_MSM_NOTIFICATION_DATA>(fields, size, data);
    DescribeRaw(fields, "bytes", size, data);
}

} // namespace

void DescribeList(Fields& fields, WLAN_INTERFACE_INFO_LIST** list)
{
    DescribeItems(fields, list,
                  [](WLAN_INTERFACE_INFO_LIST& whole) -> WLAN_INTERFACE_INFO* { return whole.InterfaceInfo; });
}

void DescribeList(Fields& fields, WLAN_AVAILABLE_NETWORK_LIST** list)
{
    DescribeItems(fields, list,
                  [](WLAN_AVAILABLE_NETWORK_LIST& whole) -> WLAN_AVAILABLE_NETWORK* { return whole.Network; });
}

void DescribeList(Fields& fields, WLAN_PROFILE_INFO_LIST** list)
{
    DescribeItems(fields, list, [](WLAN_PROFILE_INFO_LIST& whole) -> WLAN_PROFILE_INFO* { return whole.ProfileInfo; });
}

void DescribeList(Fields& fields, WLAN_BSS_LIST** list)
{
    if (fields.IsNull("list", fields.isReading() ? nullptr : *list))
        return;
    if (fields.isReading())
        *list = ReadBssList(fields);
    else
        WriteBssList(fields, **list);
    NumberBlock(fields, *list);
}

void DescribeText(Fields& fields, wchar_t** xml)
{
    if (fields.IsNull("xml", fields.isReading() ? nullptr : *xml))
        return;
    std::wstring text;
    if (!fields.isReading())
        text = *xml;
    fields.Text("xml", text);
    if (fields.isReading())
    {
        *xml = static_cast<wchar_t*>(fields.holdings().Make((text.size() + 1) * sizeof(wchar_t)));
        text.copy(*xml, text.size());
    }
    NumberBlock(fields, *xml);
}

template <typename Opcode>
void DescribeAnswer(Fields& fields, Opcode opcode, DWORD& size, PVOID& data)
{
    const auto describe = [&]<typename Record>(operations::RecordType<Record>)
    {
        if constexpr (std::is_void_v<Record>)
            DescribeRaw(fields, "bytes", size, data);
        else if constexpr (std::is_same_v<Record, WLAN_STATISTICS>)
            DescribeStatistics(fields, size, data);
        else
            DescribeRecord<Record>(fields, size, data);
    };
    operations::VisitAnswer(opcode, describe);
    NumberBlock(fields, data);
}

template void DescribeAnswer(Fields& fields, WLAN_INTF_OPCODE opcode, DWORD& size, PVOID& data);
template void DescribeAnswer(Fields& fields, WLAN_AUTOCONF_OPCODE opcode, DWORD& size, PVOID& data);

void GiveInterfaceData(Fields& fields, WLAN_INTF_OPCODE opcode, DWORD size, const void* data)
{
    const auto give = [&]<typename Record>(operations::RecordType<Record>)
    {
        if constexpr (!std::is_void_v<Record>)
            if (data != nullptr && size == sizeof(Record))
                return fields.GivenRecord("data", static_cast<const Record*>(data));
        fields.GivenBytes("data", data, size);
    };
    operations::VisitSetting(opcode, give);
}

void DescribeNews(Fields& fields, WLAN_NOTIFICATION_DATA& news)
{
    fields.Number("source", news.NotificationSource);
    fields.Number("code", news.NotificationCode);
    fields.AdapterGuid("interface", news.InterfaceGuid);
    if (news.NotificationSource == WLAN_NOTIFICATION_SOURCE_ACM)
        DescribeAcmData(fields, news.NotificationCode, news.dwDataSize, news.pData);
    else if (news.NotificationSource == WLAN_NOTIFICATION_SOURCE_MSM)
        DescribeMsmData(fields, news.NotificationCode, news.dwDataSize, news.pData);
    else
        DescribeRaw(fields, "bytes", news.dwDataSize, news.pData);
}

} // namespace calvix::recording
