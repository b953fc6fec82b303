#include "simulation/command_line_names.h"

#include <gtest/gtest.h>

namespace calvix::simulation::command_line_names_test
{

using Names = std::vector<std::string>;

TEST(CommandLineNames, EveryBeginningThatASpaceEnds)
{
    EXPECT_EQ(CommandNames("one"), (Names{"one"}));
    EXPECT_EQ(CommandNames(" one two\tthree"), (Names{"one", "one two", "one two\tthree"}));
    EXPECT_EQ(CommandNames(""), Names{});
    EXPECT_EQ(CommandNames(" \t "), Names{});
}

TEST(CommandLineNames, QuotationMarksDecide)
{
    EXPECT_EQ(CommandNames("\"one two\" three"), (Names{"one two"}));
    EXPECT_EQ(CommandNames("\"one two"), (Names{"one two"}));
    EXPECT_EQ(CommandNames("\"\" one"), (Names{""}));
}

TEST(CommandLineNames, FilesAreLookedForWhereThePlatformDoes)
{
    EXPECT_EQ(FilesOfCommand("ping", "C:\\Tools\\"),
              (Names{"C:\\Tools\\ping.exe", "C:\\Windows\\System32\\ping.exe", "C:\\Windows\\ping.exe"}));
    EXPECT_EQ(FilesOfCommand("ping.com", "").front(), "ping.com");
    EXPECT_EQ(FilesOfCommand("D:\\v1.2\\ping", "C:\\Tools\\"), (Names{"D:\\v1.2\\ping", "D:\\v1.2\\ping.exe"}));
}

} // namespace calvix::simulation::command_line_names_test
