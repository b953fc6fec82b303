#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

/// Whether a method gave one of the codes that it has. These tests run on whatever computer is there, with or without
/// the WLAN service, so more cannot be asked for.
inline testing::AssertionResult GaveAnyOf(long code, std::initializer_list<long> codes)
{
    if (std::find(codes.begin(), codes.end(), code) != codes.end())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << code << " is none of its codes";
}
