#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

namespace calvix::test::ihv_control_test
{

using simulation::Bytes;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr unsigned long kWrongVersion = 0xFFFFFFFF;
constexpr unsigned long kUnseen = 77;

// Users, then network operators, then administrators: reading and writing each. Everybody else last.
const std::string kAccess = "O:SYG:SYD:"
                            "(A;;CCRC;;;BU)(A;;CCDCWPSDRCWD;;;BU)"
                            "(A;;CCRC;;;NO)(A;;CCDCWPSDRCWD;;;NO)"
                            "(A;;CCRC;;;BA)(A;;CCDCWPSDRCWD;;;BA)"
                            "(D;;FA;;;WD)";

const std::string kSecurityCall = "WlanSetSecuritySettings(client=1, object=7, sddl=\"" + kAccess + "\")";

/// A driver that answers one request and has an answer for an empty one.
simulation::Scenario TalkativeScenario()
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[0].ihv = {{Bytes{1, 2, 3, 4}, {Bytes{9, 8}, 0}}, {Bytes{}, {Bytes{}, 0}}};
    return scenario;
}

class IhvControlTest : public LibraryTest
{
public:
    IhvControlTest() : LibraryTest(TalkativeScenario()) {}
};

} // namespace

// --- SetIhvSecuritySettings ---

TEST_F(IhvControlTest, OrdinaryUsersGetAccessToTheDriver)
{
    EXPECT_EQ(130u, kAccess.size());
    EXPECT_EQ(0u, manager().SetIhvSecuritySettings());
    EXPECT_THAT(callLines(), ElementsAre(kSecurityCall));
    EXPECT_EQ(std::wstring(kAccess.begin(), kAccess.end()), computer().SecuritySettings(wlan_secure_ihv_control));
    ExpectSilence();
}

TEST_F(IhvControlTest, SecuritySettingsOpenTheClientHandleWhenNeeded)
{
    ForgetClient();
    EXPECT_EQ(0u, manager().SetIhvSecuritySettings());
    EXPECT_THAT(calls(), ElementsAre("WlanOpenHandle", "WlanSetSecuritySettings"));
    EXPECT_EQ("2", call("WlanOpenHandle")["clientVersion"]);
}

// Deliberate: the one method that looks at the version, and only when it opens the handle itself.
TEST_F(IhvControlTest, AnotherVersionOfTheServiceIsRefused)
{
    for (const DWORD version : {DWORD{0}, DWORD{1}, DWORD{3}})
    {
        ForgetClient();
        EditedAnswers edited;
        edited.service.negotiatedVersion = version;
        EXPECT_EQ(kWrongVersion, manager().SetIhvSecuritySettings());
        EXPECT_THAT(calls(), ElementsAre("WlanOpenHandle")) << "no security call";
        EXPECT_THAT(traced(), IsEmpty());
        EXPECT_NE(nullptr, ManagerInternals::Client()) << "the handle stays open";

        ClearCalls();
        EXPECT_EQ(0u, manager().SetIhvSecuritySettings()) << "and is not asked for its version any more";
        EXPECT_EQ(0, manager().EnableAutoCfg(&kAdapterA));
        EXPECT_THAT(calls(), ElementsAre("WlanSetSecuritySettings", "WlanSetInterface"));
    }
}

TEST_F(IhvControlTest, OnlyAnAdministratorGivesAccess)
{
    simulation::Scenario scenario = TalkativeScenario();
    scenario.administrator = false;
    UseScenario(scenario);
    EXPECT_EQ(5u, manager().SetIhvSecuritySettings());
    ExpectSilence();
}

TEST_F(IhvControlTest, AHandleThatCannotBeOpenedIsNotAskedForItsVersion)
{
    ForgetClient();
    FailOn("WlanOpenHandle", 1722);
    EditedAnswers edited;
    edited.service.negotiatedVersion = 1;
    EXPECT_EQ(1722u, manager().SetIhvSecuritySettings());
}

// --- IhvControl ---

TEST_F(IhvControlTest, TheDriversAnswerReplacesTheRequest)
{
    unsigned char buffer[4] = {1, 2, 3, 4};
    unsigned long returned = kUnseen;
    EXPECT_EQ(0u, manager().IhvControl(&kAdapterA, buffer, sizeof(buffer), returned));
    EXPECT_THAT(buffer, ElementsAre(9, 8, 3, 4));
    EXPECT_EQ(2u, returned);
    EXPECT_THAT(callLines(),
                ElementsAre(CallForA("WlanIhvControl", "type=1, inputSize=4, input=non-null, outputSize=4, "
                                                       "output=non-null, bytesReturned=non-null")));
    ExpectSilence();
}

TEST_F(IhvControlTest, AnEmptyRequestIsTheServicesToAnswer)
{
    unsigned char buffer[1] = {1};
    unsigned long returned = kUnseen;
    EXPECT_EQ(0u, manager().IhvControl(&kAdapterA, buffer, 0, returned));
    EXPECT_EQ(0u, returned);
    EXPECT_EQ("0", call("WlanIhvControl")["inputSize"]);
    EXPECT_EQ("0", call("WlanIhvControl")["outputSize"]);
    EXPECT_EQ(0u, manager().IhvControl(&kAdapterA, nullptr, 0, returned)) << "without a buffer, too";
    EXPECT_EQ(87u, manager().IhvControl(&kAdapterA, nullptr, 4, returned)) << "a missing request is refused";
}

} // namespace calvix::test::ihv_control_test
