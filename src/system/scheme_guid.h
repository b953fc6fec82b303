#pragma once

#include "platform/platform.h"

namespace calvix
{

/// Owner of a scheme's GUID from power management. Calls LocalFree at the end of its scope, even without a GUID, which
/// the platform accepts.
class SchemeGuid
{
public:
    SchemeGuid() = default;
    SchemeGuid(const SchemeGuid&) = delete;
    SchemeGuid& operator=(const SchemeGuid&) = delete;
    ~SchemeGuid() { platform::power().LocalFree(m_guid); }

    /// Where an operation stores its result; for an owner that holds nothing yet.
    GUID** Receive() { return &m_guid; }

    const GUID* get() const { return m_guid; }

private:
    GUID* m_guid = nullptr;
};

} // namespace calvix
