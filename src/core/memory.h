#pragma once

#include "core/trace.h"

#include <new>

namespace calvix
{

/// Owner of a block of the WLAN service. Calls WlanFreeMemory at the end of its scope, the last declared first. Traces
/// the release text, if any, just before.
template <typename Record>
class WlanMemory
{
public:
    explicit WlanMemory(const char* releaseText = nullptr) : m_releaseText(releaseText) {}
    WlanMemory(const WlanMemory&) = delete;
    WlanMemory& operator=(const WlanMemory&) = delete;
    ~WlanMemory() { Release(); }

    /// Releases the block before the end of the scope.
    void Release()
    {
        if (m_block == nullptr)
            return;
        if (m_releaseText != nullptr)
            EmitTrace(m_releaseText);
        platform::wlan().WlanFreeMemory(m_block);
        m_block = nullptr;
    }

    /// Where an operation stores its result. Releases the previous block.
    Record** Receive()
    {
        Release();
        return &m_block;
    }

    /// Takes ownership of untyped data of an operation.
    void Take(PVOID data)
    {
        Release();
        m_block = static_cast<Record*>(data);
    }

    Record* get() const { return m_block; }
    Record* operator->() const { return m_block; }
    Record& operator*() const { return *m_block; }

private:
    Record* m_block = nullptr;
    const char* m_releaseText;
};

using InterfaceList = WlanMemory<WLAN_INTERFACE_INFO_LIST>;
using NetworkList = WlanMemory<WLAN_AVAILABLE_NETWORK_LIST>;
using ProfileList = WlanMemory<WLAN_PROFILE_INFO_LIST>;
using BssList = WlanMemory<WLAN_BSS_LIST>;
using ConnectionAttributes = WlanMemory<WLAN_CONNECTION_ATTRIBUTES>;
using ProfileText = WlanMemory<wchar_t>;

/// Takes a step that needs memory from the heap. Whether memory ran out, which no method lets its caller know by an
/// exception: it ends as it does when the list that the step is about cannot be obtained.
template <typename Step>
bool OutOfMemoryIn(Step step)
{
    try
    {
        step();
    }
    catch (const std::bad_alloc&)
    {
        return true;
    }
    return false;
}

} // namespace calvix
