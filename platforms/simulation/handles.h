#pragma once

#include <calvix/platform_records.h>

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace calvix::simulation
{

enum class HandleKind
{
    wlanClient,
    serviceManager,
    service,
    token,
    process,
    thread
};

/// The handles that the computer gave out. A value identifies one object of one kind, is never null and is never
/// given out again, so that the use of a closed handle cannot go unnoticed.
class Handles
{
public:
    /// `defects` receives a line for every use of a handle that is not open; it outlives this object.
    explicit Handles(std::vector<std::string>& defects);

    HANDLE Open(HandleKind kind);

    /// Whether `handle` is open and of this kind.
    bool IsOpen(HANDLE handle, HandleKind kind) const;

    /// IsOpen for the operation named, which is not entitled to a "no": a handle that is not null and not open is
    /// noted as a defect, "WlanScan: use of closed client handle".
    bool Use(HANDLE handle, HandleKind kind, const char* operation);

    /// Closes the handle; false, with the same note as Use, if it is not open.
    bool Close(HANDLE handle, HandleKind kind, const char* operation);

    std::size_t CountOpen(HandleKind kind) const;
    std::size_t CountOpen() const;

private:
    void NoteMisuse(HANDLE handle, HandleKind kind, const char* operation);

    std::vector<std::string>& m_defects;
    std::unordered_map<HANDLE, HandleKind> m_open;
    UINT_PTR m_nextValue;
};

} // namespace calvix::simulation
