#pragma once

#include "platform/platform.h"
#include "testing/manager_internals.h"

namespace calvix::test
{

/// A program that uses a computer through the library, for as long as this lives. It begins without a manager.
class Program
{
public:
    explicit Program(platform::Platform& computer) : m_previous(platform::ReplacePlatform(&computer))
    {
        ManagerInternals::Reset();
    }
    ~Program()
    {
        CWirelessManage::Delete();
        ManagerInternals::Reset();
        platform::ReplacePlatform(m_previous);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Makes none where there is one, for which the client would be opened.
    CWirelessManage& Manager()
    {
        CWirelessManage* const instance = ManagerInternals::Instance();
        return instance != nullptr ? *instance : *CWirelessManage::Get();
    }

private:
    platform::Platform* m_previous;
};

} // namespace calvix::test
