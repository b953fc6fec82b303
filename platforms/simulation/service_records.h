#pragma once

#include "simulation/blocks.h"
#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>

namespace calvix::simulation
{

/// What the service's operations fill their records with.

/// A zeroed block of the service's allocator that begins with a Record. It is exactly `size` bytes long, so that a
/// list that is read past its last entry is read past its block.
template <typename Record>
Record* NewRecord(Blocks& blocks, std::size_t size, const char* what)
{
    return static_cast<Record*>(blocks.Allocate(size, what));
}

/// Copies a text, cut if need be, into a record's field and terminates it.
template <std::size_t capacity>
void CopyText(const std::wstring& text, wchar_t (&field)[capacity])
{
    field[text.copy(field, capacity - 1)] = L'\0';
}

inline WLAN_PHY_RADIO_STATE RadioRecord(std::size_t index, const PhyDescription& phy)
{
    WLAN_PHY_RADIO_STATE record{};
    record.dwPhyIndex = static_cast<DWORD>(index);
    record.dot11SoftwareRadioState = phy.software == RadioSwitch::on ? dot11_radio_state_on : dot11_radio_state_off;
    record.dot11HardwareRadioState = phy.hardware == RadioSwitch::on ? dot11_radio_state_on : dot11_radio_state_off;
    return record;
}

/// A copy of a text in a block of the service's allocator.
inline wchar_t* NewText(Blocks& blocks, const std::wstring& text, const char* what)
{
    const std::size_t count = text.size() + 1;
    auto* const copy = static_cast<wchar_t*>(blocks.Allocate(count * sizeof(wchar_t), what));
    std::copy_n(text.c_str(), count, copy);
    return copy;
}

inline DOT11_SSID MakeSsid(const Bytes& bytes)
{
    DOT11_SSID ssid{};
    const std::size_t length = bytes.size() < DOT11_SSID_MAX_LENGTH ? bytes.size() : DOT11_SSID_MAX_LENGTH;
    ssid.uSSIDLength = static_cast<ULONG>(length);
    if (length != 0)
        std::memcpy(ssid.ucSSID, bytes.data(), length);
    return ssid;
}

/// The bytes of a record whose length was checked.
inline Bytes SsidBytes(const DOT11_SSID& ssid)
{
    return Bytes(ssid.ucSSID, ssid.ucSSID + ssid.uSSIDLength);
}

/// The answer to a query: a block of the service's allocator and its size.
struct InterfaceAnswer
{
    void* data;
    std::size_t size;
};

/// An answer that is one number, in the type in which the service gives it.
template <typename Number>
InterfaceAnswer AnswerNumber(Blocks& blocks, Number number)
{
    auto* const data = static_cast<Number*>(blocks.Allocate(sizeof(Number), "query result"));
    *data = number;
    return {data, sizeof(Number)};
}

} // namespace calvix::simulation
