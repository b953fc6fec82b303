#include "autoconnect/profile_network_match.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace calvix::test::profile_network_match_test
{

using ::testing::ElementsAre;

namespace
{

template <typename Record>
void SetName(Record& record, const std::wstring& name)
{
    std::copy_n(name.c_str(), (std::min)(name.size() + 1, std::size_t{WLAN_MAX_NAME_LENGTH}), record.strProfileName);
}

WLAN_PROFILE_INFO Profile(const std::wstring& name)
{
    WLAN_PROFILE_INFO profile{};
    SetName(profile, name);
    return profile;
}

/// Available networks of these profile names, as one list of the service.
class Networks
{
public:
    explicit Networks(const std::vector<std::wstring>& names) : m_lists(names.size() + 1, WLAN_AVAILABLE_NETWORK_LIST{})
    {
        for (const std::wstring& name : names)
            SetName(*(m_lists[0].Network + m_lists[0].dwNumberOfItems++), name);
    }

    const WLAN_AVAILABLE_NETWORK_LIST& List() const { return m_lists[0]; }

    /// Places in the list of the networks that match.
    std::vector<std::ptrdiff_t> PlacesOf(const std::wstring& profile) const
    {
        NetworksByProfile networks;
        EXPECT_EQ(0u, networks.Take(List()));
        std::vector<std::ptrdiff_t> places;
        for (const WLAN_AVAILABLE_NETWORK* network : networks.Of(Profile(profile)))
            places.push_back(network - List().Network);
        return places;
    }

private:
    std::vector<WLAN_AVAILABLE_NETWORK_LIST> m_lists;
};

} // namespace

TEST(NetworksByProfileTest, TextAfterTheTerminatorIsIgnored)
{
    const Networks networks({std::wstring(L"Net\0rest", 8)});
    EXPECT_THAT(networks.PlacesOf(std::wstring(L"Net\0else", 8)), ElementsAre(0));
}

TEST(NetworksByProfileTest, ManyNamesAreDistinguished)
{
    std::vector<std::wstring> names;
    for (int index = 0; index < 300; ++index)
        names.push_back(L"Network " + std::to_wstring(index % 150));
    const Networks networks(names);
    for (int index = 149; index >= 0; --index)
        ASSERT_THAT(networks.PlacesOf(L"Network " + std::to_wstring(index)), ElementsAre(index, index + 150));
}

} // namespace calvix::test::profile_network_match_test
