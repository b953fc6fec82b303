#pragma once

#include "support/library_test.h"

namespace calvix::test
{

/// The fixture of methods that have nothing to do with the WLAN service.
class SystemTest : public LibraryTest
{
public:
    using LibraryTest::LibraryTest;

    /// Nothing of what happened may show, and nothing may be held.
    void ExpectSilence()
    {
        EXPECT_THAT(traced(), ::testing::IsEmpty());
        EXPECT_TRUE(sharedTraceUntouched());
        ExpectNothingHeld();
    }
};

} // namespace calvix::test
