#pragma once

#include "operations/changed_platform.h"

namespace calvix::test
{

using platform::Power;
using platform::Processes;
using platform::WlanService;

/// The platform in use, changed where a test changes it, for as long as it lives.
class ChangedPlatform : public operations::ChangedPlatform
{
public:
    ChangedPlatform()
        : operations::ChangedPlatform(platform::CurrentPlatform()), m_previous(platform::ReplacePlatform(&platform()))
    {
    }
    ~ChangedPlatform() { platform::ReplacePlatform(m_previous); }

private:
    platform::Platform* m_previous;
};

} // namespace calvix::test
