#include "support/changed_platform.h"
#include "support/library_test.h"

#include <cstring>

namespace calvix::test::host_program_test
{
namespace
{

using ::testing::ElementsAre;

class HostProgramTest : public LibraryTest
{
public:
    void UseProgram(const std::string& path)
    {
        simulation::Scenario fresh = RichScenario();
        fresh.programPath = path;
        UseScenario(fresh);
    }

    char (&Member())[512] { return ManagerInternals::AppPath(manager()); }
};

TEST_F(HostProgramTest, ItsFolderEndsInABackslash)
{
    UseProgram("C:\\Tools\\host.exe");
    char* const folder = manager().GetAppPath();
    EXPECT_STREQ("C:\\Tools\\", folder);
    EXPECT_EQ(Member(), folder) << "the text is the object's";
    EXPECT_THAT(timeline(), ElementsAre("GetModuleFileNameA(module=null, fileName=non-null, size=512)"));
    ExpectSilence();
}

TEST_F(HostProgramTest, TheLastBackslashCounts)
{
    struct
    {
        const char* program;
        const char* folder;
    } const rows[] = {{"C:\\host.exe", "C:\\"},
                      {"C:\\Program Files\\Tool Box\\bin\\host.exe", "C:\\Program Files\\Tool Box\\bin\\"},
                      {"\\\\server\\share\\host.exe", "\\\\server\\share\\"},
                      {"C:\\Tools.d\\mixed/slashes.exe", "C:\\Tools.d\\"},
                      {"C:\\Tools\\", "C:\\Tools\\"}};
    for (const auto& row : rows)
    {
        UseProgram(row.program);
        EXPECT_STREQ(row.folder, manager().GetAppPath());
    }
}

TEST_F(HostProgramTest, WithoutABackslashTheTextIsEmpty)
{
    for (const char* answer : {"host.exe", "C:/Tools/host.exe", ""})
    {
        std::strcpy(Member(), "C:\\Earlier\\");
        ChangedPlatform changed;
        changed.Instead<&Processes::GetModuleFileNameA>(
            [answer](auto, char* fileName, auto)
            {
                std::strcpy(fileName, answer);
                return static_cast<DWORD>(std::strlen(answer));
            });
        EXPECT_STREQ("", manager().GetAppPath()) << answer;
    }
}

TEST_F(HostProgramTest, APathThatCannotBeAskedForIsEmpty)
{
    std::strcpy(Member(), "C:\\Earlier\\");
    FailOn("GetModuleFileNameA", 126);
    EXPECT_STREQ("", manager().GetAppPath());
    EXPECT_EQ(1u, InjectedFailures());
    ExpectSilence();
}

// A platform that cuts a path need not terminate it.
TEST_F(HostProgramTest, ACutPathIsTerminated)
{
    struct
    {
        std::size_t backslash;
        std::size_t length;
    } const rows[] = {{100, 101}, {510, 511}, {511, 0}};
    for (const auto& row : rows)
    {
        ChangedPlatform changed;
        changed.Instead<&Processes::GetModuleFileNameA>(
            [&row](auto, char* fileName, DWORD size)
            {
                std::memset(fileName, 'x', size);
                fileName[row.backslash] = '\\';
                return size;
            });
        EXPECT_EQ(row.length, std::strlen(manager().GetAppPath())) << row.backslash;
    }
}

TEST_F(HostProgramTest, EveryCallOverwritesTheText)
{
    UseProgram("C:\\Tools\\host.exe");
    std::memset(Member(), 'x', sizeof(Member()));
    char* const first = manager().GetAppPath();
    std::strcpy(first, "C:\\Elsewhere\\and\\longer\\");
    EXPECT_EQ(first, manager().GetAppPath());
    EXPECT_STREQ("C:\\Tools\\", first);
}

} // namespace
} // namespace calvix::test::host_program_test
