#include "simulation/event_queue.h"

#include <gtest/gtest.h>

#include <string>

namespace calvix::simulation::event_queue_test
{

using std::chrono::milliseconds;

TEST(EventQueue, RunsWhatFallsDueInOrder)
{
    EventQueue queue;
    std::string ran;
    queue.Schedule(milliseconds(20), [&] { ran += 'c'; });
    queue.Schedule(milliseconds(10), [&] { ran += 'a'; });
    queue.Schedule(milliseconds(10), [&] { ran += 'b'; });
    queue.Advance(milliseconds(9));
    EXPECT_EQ(ran, "");
    queue.Advance(milliseconds(1));
    EXPECT_EQ(ran, "ab");
    queue.Advance(milliseconds(100));
    EXPECT_EQ(ran, "abc");
    EXPECT_EQ(queue.Now(), milliseconds(110));
}

TEST(EventQueue, ActionsSeeTheirOwnTimeAndMayScheduleMore)
{
    EventQueue queue;
    std::string ran;
    queue.Schedule(milliseconds(10),
                   [&]
                   {
                       ran += std::to_string(queue.Now().count());
                       queue.Schedule(milliseconds(5), [&] { ran += "," + std::to_string(queue.Now().count()); });
                   });
    queue.Advance(milliseconds(20));
    EXPECT_EQ(ran, "10,15");
}

TEST(EventQueue, CancelledEventsDoNotRun)
{
    EventQueue queue;
    bool ran = false;
    const auto event = queue.Schedule(milliseconds(10), [&] { ran = true; });
    queue.Cancel(event);
    queue.Cancel(event);
    queue.Advance(milliseconds(20));
    EXPECT_FALSE(ran);
}

} // namespace calvix::simulation::event_queue_test
