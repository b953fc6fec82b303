#pragma once

#include "simulation/computer.h"
#include "support/manager_internals.h"

#include <calvix/wireless_manage.h>

namespace calvix::fuzz
{

/// A program that uses a simulated computer through the library, for as long as this lives.
class Program
{
public:
    explicit Program(simulation::Computer& computer) : m_previous(platform::ReplacePlatform(&computer))
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

    CWirelessManage& manager() { return *CWirelessManage::Get(); }

private:
    platform::Platform* m_previous;
};

} // namespace calvix::fuzz
