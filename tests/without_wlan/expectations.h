#pragma once

#include "methods/method.h"

#include <gtest/gtest.h>

namespace calvix::test::every_method
{

enum class Computer
{
    withoutWlan, ///< there is no wlanapi.dll
    wine         ///< Wine's own: the client handle opens, there is no adapter, and requests are refused
};

/// Calls the method and compares its answer and what it was given to fill with what is expected on the computer.
void Check(const methods::Method& method, Computer computer);

/// Every method; last come those after which the manager is not what it was.
std::vector<methods::Method> AllMethods();

/// Tests that call every method, which ends programs, changes power settings and puts a computer to sleep: skipped
/// anywhere but on Wine, which only pretends.
class OnWine : public testing::Test
{
protected:
    void SetUp() override;
};

} // namespace calvix::test::every_method
