#include "core/copies.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace calvix::test::bounded_copy_test
{

namespace
{

template <typename Character>
class BoundedCopyTest : public ::testing::Test
{
protected:
    static constexpr Character kHomeNet[] = {'H', 'o', 'm', 'e', 'N', 'e', 't', 0};

    BoundedCopyTest() { std::fill_n(m_room, 10, Character('#')); }

    /// What a copy leaves in a room of ten characters, with its terminators written as '0'.
    std::string Room() const
    {
        std::string shown;
        for (const Character each : m_room)
            shown += each == 0 ? '0' : static_cast<char>(each);
        return shown;
    }

    Character m_room[10];
};

using Characters = ::testing::Types<char, wchar_t>;

} // namespace

TYPED_TEST_SUITE(BoundedCopyTest, Characters);

TYPED_TEST(BoundedCopyTest, CopiesTextThatFits)
{
    CopyTruncating(this->m_room, 10, this->kHomeNet);
    EXPECT_EQ("HomeNet0##", this->Room()) << "what follows the terminator is left alone";
}

TYPED_TEST(BoundedCopyTest, TheTerminatorNeedsAPlace)
{
    CopyTruncating(this->m_room, 8, this->kHomeNet);
    EXPECT_EQ("HomeNet0##", this->Room());
    CopyTruncating(this->m_room, 7, this->kHomeNet);
    EXPECT_EQ("HomeNe00##", this->Room());
}

TYPED_TEST(BoundedCopyTest, CutsSilently)
{
    CopyTruncating(this->m_room, 5, this->kHomeNet);
    EXPECT_EQ("Home0#####", this->Room());
}

TYPED_TEST(BoundedCopyTest, ACapacityOfOneTakesTheTerminatorOnly)
{
    CopyTruncating(this->m_room, 1, this->kHomeNet);
    EXPECT_EQ("0#########", this->Room());
}

TYPED_TEST(BoundedCopyTest, ACapacityOfNothingWritesNothing)
{
    CopyTruncating(this->m_room, 0, this->kHomeNet);
    CopyTruncatingToCaller(this->m_room, 0, this->kHomeNet);
    EXPECT_EQ("##########", this->Room());
}

TYPED_TEST(BoundedCopyTest, ACallersNegativeCapacityGivesTheEmptyText)
{
    CopyTruncatingToCaller(this->m_room, -1, this->kHomeNet);
    EXPECT_EQ("0#########", this->Room());
}

TYPED_TEST(BoundedCopyTest, ACallersCapacityCutsLikeAnyOther)
{
    CopyTruncatingToCaller(this->m_room, 5, this->kHomeNet);
    EXPECT_EQ("Home0#####", this->Room());
}

TYPED_TEST(BoundedCopyTest, WithoutADestinationNothingHappens)
{
    TypeParam* const nowhere = nullptr;
    CopyTruncating(nowhere, 10, this->kHomeNet);
    CopyTruncatingToCaller(nowhere, -1, this->kHomeNet);
    EXPECT_EQ("##########", this->Room());
}

} // namespace calvix::test::bounded_copy_test
