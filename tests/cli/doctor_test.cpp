// The doctor looks and changes nothing; tests/data/transcripts/doctor.txt has what it finds.

#include "cli_test.h"

#include <calvix/testing/computer.h>

#include <filesystem>

namespace calvix::test::doctor_test
{
namespace
{

class DoctorCommand : public CliTest
{
};

TEST_F(DoctorCommand, ChangesNothingOnAnyComputerOfTheGallery)
{
    const std::string sessions = Content(CALVIX_SOURCE_DIR "/tests/data/transcripts/doctor.txt");
    for (const auto& entry : std::filesystem::directory_iterator(CALVIX_SOURCE_DIR "/scenarios"))
    {
        const std::string name = entry.path().filename().string();
        SCOPED_TRACE(name);
        EXPECT_THAT(sessions, ::testing::HasSubstr("<!-- on scenarios/" + name + " -->\n$ calvix doctor\n"));
        auto computer = calvix::testing::Computer::FromFile(entry.path().string());
        Run({"doctor"});
        EXPECT_LT(0u, computer.Calls().size());
        for (const char* change : {"StartServiceA", "WlanSetInterface", "WlanConnect", "WlanDisconnect",
                                   "WlanSetProfile", "WlanSetProfilePosition", "WlanDeleteProfile"})
            EXPECT_EQ(0u, computer.CallCount(change)) << change;
    }
}

} // namespace
} // namespace calvix::test::doctor_test
