// What the shipped program records of the system's WLAN library, the drop-in here, and how it plays it back.
// scenarios/home.json.

#include "dropin/child_process.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace calvix::test::end_to_end_recording_test
{
namespace
{

std::wstring OwnFolder()
{
    wchar_t path[1024] = L"";
    ::GetModuleFileNameW(nullptr, path, 1024);
    const std::wstring own = path;
    return own.substr(0, own.rfind(L'\\') + 1);
}

class Recording : public ::testing::Test
{
protected:
    ~Recording() override { ::DeleteFileW(m_file.c_str()); }

    /// `recorded` and the same again without a WLAN library, from the recording.
    void ExpectTheSame(const std::wstring& command)
    {
        const ProgramEnd recorded = Run(command + L" --record \"" + m_file + L"\"");
        const ProgramEnd replayed = Run(command + L" --replay \"" + m_file + L"\"");
        EXPECT_EQ(recorded.exitCode, 0u) << recorded.errors;
        EXPECT_NE(recorded.output, "");
        EXPECT_EQ(recorded.output, replayed.output);
        EXPECT_EQ(recorded.errors, replayed.errors);
        EXPECT_EQ(recorded.exitCode, replayed.exitCode);
    }

private:
    static ProgramEnd Run(const std::wstring& arguments)
    {
        return RunProgram(OwnFolder() + L"calvix.exe", {}, arguments);
    }

    std::wstring m_file = OwnFolder() + L"session.jsonl";
};

TEST_F(Recording, OfListsReplays)
{
    ExpectTheSame(L"networks --json");
}

TEST_F(Recording, OfNotificationsReplays)
{
    ExpectTheSame(L"connect Lindenhof");
}

} // namespace
} // namespace calvix::test::end_to_end_recording_test
