#include "simulation/profile_store.h"

#include "platform/records/error_numbers.h"
#include <calvix/platform_records.h>

#include <gtest/gtest.h>

#include <string>

namespace calvix::simulation::profile_store_test
{

namespace
{

Profile Named(const std::wstring& name, DWORD flags = 0, const std::wstring& xml = L"")
{
    Profile profile;
    profile.document.name = name;
    profile.flags = flags;
    profile.xml = xml;
    return profile;
}

/// The store's order, one letter a profile.
std::wstring Order(const ProfileStore& store)
{
    std::wstring order;
    for (const auto& profile : store.InOrder())
        order += profile->document.name;
    return order;
}

ProfileStore StoreOf(const std::wstring& names)
{
    ProfileStore store;
    for (const wchar_t name : names)
        EXPECT_TRUE(store.Append(Named(std::wstring(1, name))));
    return store;
}

TEST(ProfileStore, NewOnesGoOnTop)
{
    ProfileStore store = StoreOf(L"ab");
    EXPECT_EQ(store.Store(Named(L"c"), false), ERROR_SUCCESS);
    EXPECT_EQ(Order(store), L"cab");
}

TEST(ProfileStore, NewOnesStayBelowThoseOfGroupPolicy)
{
    ProfileStore store;
    store.Append(Named(L"p", WLAN_PROFILE_GROUP_POLICY));
    store.Append(Named(L"a"));
    EXPECT_EQ(store.Store(Named(L"b"), false), ERROR_SUCCESS);
    EXPECT_EQ(store.Store(Named(L"q", WLAN_PROFILE_GROUP_POLICY), false), ERROR_SUCCESS);
    EXPECT_EQ(Order(store), L"qpba");
}

TEST(ProfileStore, OverwritingKeepsThePositionAndHasToBeAskedFor)
{
    ProfileStore store = StoreOf(L"abc");
    EXPECT_EQ(store.Store(Named(L"b", 0, L"new"), false), ERROR_ALREADY_EXISTS);
    EXPECT_EQ(store.Find(L"b")->xml, L"");
    EXPECT_EQ(store.Store(Named(L"b", 0, L"new"), true), ERROR_SUCCESS);
    EXPECT_EQ(store.Find(L"b")->xml, L"new");
    EXPECT_EQ(store.InOrder()[1]->xml, L"new");
    EXPECT_EQ(Order(store), L"abc");
}

TEST(ProfileStore, NamesAreCaseSensitive)
{
    ProfileStore store = StoreOf(L"ab");
    EXPECT_EQ(store.Find(L"A"), nullptr);
    EXPECT_EQ(store.Store(Named(L"A"), false), ERROR_SUCCESS);
    EXPECT_EQ(Order(store), L"Aab");
    EXPECT_FALSE(store.Append(Named(L"A")));
}

TEST(ProfileStore, Deleting)
{
    ProfileStore store = StoreOf(L"abc");
    EXPECT_EQ(store.Delete(L"b"), ERROR_SUCCESS);
    EXPECT_EQ(store.Delete(L"b"), ERROR_NOT_FOUND);
    EXPECT_EQ(store.Find(L"b"), nullptr);
    EXPECT_EQ(Order(store), L"ac");
}

TEST(ProfileStore, MovingChangesTheOrder)
{
    const struct
    {
        const wchar_t* name;
        DWORD position;
        DWORD error;
        const wchar_t* order;
    } cases[] = {{L"a", 0, ERROR_SUCCESS, L"abcd"},  {L"a", 1, ERROR_SUCCESS, L"bacd"},
                 {L"a", 3, ERROR_SUCCESS, L"bcda"},  {L"d", 0, ERROR_SUCCESS, L"dabc"},
                 {L"c", 1, ERROR_SUCCESS, L"acbd"},  {L"a", 4, ERROR_NOT_FOUND, L"abcd"},
                 {L"x", 0, ERROR_NOT_FOUND, L"abcd"}};
    for (const auto& each : cases)
    {
        ProfileStore store = StoreOf(L"abcd");
        EXPECT_EQ(store.Move(each.name, each.position), each.error) << each.name << each.position;
        EXPECT_EQ(Order(store), each.order);
    }
}

} // namespace

} // namespace calvix::simulation::profile_store_test
