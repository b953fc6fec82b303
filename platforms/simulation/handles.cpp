#include "simulation/handles.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

const char* Name(HandleKind kind)
{
    switch (kind)
    {
    case HandleKind::wlanClient:
        return "client";
    case HandleKind::serviceManager:
        return "service manager";
    case HandleKind::service:
        return "service";
    case HandleKind::token:
        return "token";
    case HandleKind::process:
        return "process";
    case HandleKind::thread:
        return "thread";
    }
    return "";
}

// Handles of the platform are multiples of four, and small.
constexpr UINT_PTR firstValue = 0x100;
constexpr UINT_PTR valueStep = 4;

} // namespace

Handles::Handles(std::vector<std::string>& defects) : m_defects(defects), m_nextValue(firstValue) {}

HANDLE Handles::Open(HandleKind kind)
{
    const HANDLE handle = reinterpret_cast<HANDLE>(m_nextValue);
    m_nextValue += valueStep;
    m_open.emplace(handle, kind);
    return handle;
}

bool Handles::IsOpen(HANDLE handle, HandleKind kind) const
{
    const auto found = m_open.find(handle);
    return found != m_open.end() && found->second == kind;
}

bool Handles::Use(HANDLE handle, HandleKind kind, const char* operation)
{
    if (IsOpen(handle, kind))
        return true;
    NoteMisuse(handle, kind, operation);
    return false;
}

bool Handles::Close(HANDLE handle, HandleKind kind, const char* operation)
{
    if (!Use(handle, kind, operation))
        return false;
    m_open.erase(handle);
    return true;
}

std::size_t Handles::CountOpen(HandleKind kind) const
{
    return static_cast<std::size_t>(
        std::count_if(m_open.begin(), m_open.end(), [kind](const auto& entry) { return entry.second == kind; }));
}

std::size_t Handles::CountOpen() const
{
    return m_open.size();
}

void Handles::NoteMisuse(HANDLE handle, HandleKind kind, const char* operation)
{
    if (handle == nullptr)
        return;
    const auto value = reinterpret_cast<UINT_PTR>(handle);
    const bool wasOurs = value >= firstValue && value < m_nextValue && value % valueStep == 0;
    const bool isOther = m_open.count(handle) != 0;
    const char* const condition = isOther ? "a handle that is no " : wasOurs ? "closed " : "unknown ";
    m_defects.push_back(std::string(operation) + ": use of " + condition + Name(kind) + " handle");
}

} // namespace calvix::simulation
