#include "simulation/handles.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace calvix::simulation::handles_test
{

using Defects = std::vector<std::string>;

class HandlesTest : public ::testing::Test
{
protected:
    Defects defects;
    Handles handles{defects};
};

TEST_F(HandlesTest, AreNeverNullAndNeverReused)
{
    std::set<HANDLE> seen{nullptr, INVALID_HANDLE_VALUE};
    for (int count = 0; count < 100; ++count)
    {
        const HANDLE handle = handles.Open(HandleKind::wlanClient);
        EXPECT_TRUE(seen.insert(handle).second);
        EXPECT_TRUE(handles.Close(handle, HandleKind::wlanClient, "WlanCloseHandle"));
    }
    EXPECT_EQ(handles.CountOpen(), 0u);
    EXPECT_EQ(defects, Defects{});
}

TEST_F(HandlesTest, AreCountedByKind)
{
    handles.Open(HandleKind::token);
    handles.Open(HandleKind::token);
    handles.Open(HandleKind::process);
    EXPECT_EQ(handles.CountOpen(HandleKind::token), 2u);
    EXPECT_EQ(handles.CountOpen(HandleKind::wlanClient), 0u);
    EXPECT_EQ(handles.CountOpen(), 3u);
}

TEST_F(HandlesTest, MisuseIsNoted)
{
    const HANDLE client = handles.Open(HandleKind::wlanClient);
    const HANDLE token = handles.Open(HandleKind::token);
    EXPECT_TRUE(handles.Use(client, HandleKind::wlanClient, "WlanScan"));
    handles.Close(client, HandleKind::wlanClient, "WlanCloseHandle");
    EXPECT_FALSE(handles.Use(client, HandleKind::wlanClient, "WlanScan"));
    EXPECT_FALSE(handles.Use(token, HandleKind::wlanClient, "WlanScan"));
    EXPECT_FALSE(handles.Use(reinterpret_cast<HANDLE>(UINT_PTR{1}), HandleKind::wlanClient, "WlanScan"));
    EXPECT_FALSE(handles.Use(nullptr, HandleKind::wlanClient, "WlanScan"));
    EXPECT_FALSE(handles.Close(client, HandleKind::wlanClient, "WlanCloseHandle"));
    EXPECT_EQ(defects,
              (Defects{"WlanScan: use of closed client handle", "WlanScan: use of a handle that is no client handle",
                       "WlanScan: use of unknown client handle", "WlanCloseHandle: use of closed client handle"}));
}

} // namespace calvix::simulation::handles_test
