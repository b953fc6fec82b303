#pragma once

#include "platform/platform.h"

namespace calvix
{

/// Owner of a token, process or thread handle. Closed with CloseHandle at the end of its scope.
class ObjectHandle
{
public:
    explicit ObjectHandle(HANDLE handle = nullptr) : m_handle(handle) {}
    ObjectHandle(const ObjectHandle&) = delete;
    ObjectHandle& operator=(const ObjectHandle&) = delete;
    ~ObjectHandle()
    {
        if (m_handle != nullptr)
            platform::processes().CloseHandle(m_handle);
    }

    /// Where an operation stores its result; for an owner that holds nothing yet.
    HANDLE* Receive() { return &m_handle; }

    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

} // namespace calvix
