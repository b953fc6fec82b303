#include "support/contract_table.h"
#include "support/edited_answers.h"
#include "unit/inventory/trace_texts.h"

#include <cstring>

namespace calvix::test::ihv_control_test
{

using simulation::Bytes;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr unsigned long kWrongVersion = 0xFFFFFFFF;
constexpr unsigned long kUnseen = 77;
constexpr const char* kSecurityOpenFailed = "SetSecuritySettings -> WlanOpenHandle failed with error: %u";
constexpr const char* kControlOpenFailed = "IhvControl -> WlanOpenHandle failed with error: %u";
constexpr const char* kControlFailed = "WlanIhvControl ErrorCode:%d\n";

// Users, then network operators, then administrators: reading and writing each. Everybody else last.
const std::string kAccess = "O:SYG:SYD:"
                            "(A;;CCRC;;;BU)(A;;CCDCWPSDRCWD;;;BU)"
                            "(A;;CCRC;;;NO)(A;;CCDCWPSDRCWD;;;NO)"
                            "(A;;CCRC;;;BA)(A;;CCDCWPSDRCWD;;;BA)"
                            "(D;;FA;;;WD)";

const std::string kSecurityCall = "WlanSetSecuritySettings(client=1, object=7, sddl=\"" + kAccess + "\")";

/// A driver that answers one request, refuses another and has an answer for an empty one.
simulation::Scenario TalkativeWorld()
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].ihv = {{Bytes{1, 2, 3, 4}, {Bytes{9, 8}, 0}},
                             {Bytes{5, 5}, {Bytes{}, 1167}},
                             {Bytes{6}, {Bytes{}, 0x80070005}},
                             {Bytes{}, {Bytes{}, 0}}};
    return world;
}

class IhvControlTest : public LibraryTest
{
public:
    IhvControlTest() : LibraryTest(TalkativeWorld()) {}
};

long long Security(CWirelessManage& manager)
{
    return static_cast<long long>(manager.SetIhvSecuritySettings());
}

/// IhvControl that has to leave its outputs alone.
long long Control(CWirelessManage& manager)
{
    unsigned char buffer[4] = {1, 2, 3, 4};
    unsigned long returned = kUnseen;
    const unsigned long code = manager.IhvControl(&kAdapterA, buffer, sizeof(buffer), returned);
    EXPECT_THAT(buffer, ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(kUnseen, returned);
    return static_cast<long long>(code);
}

} // namespace

// --- SetIhvSecuritySettings ---

TEST_F(IhvControlTest, OrdinaryUsersGetAccessToTheDriver)
{
    EXPECT_EQ(130u, kAccess.size());
    EXPECT_EQ(0u, manager().SetIhvSecuritySettings());
    EXPECT_THAT(callLines(), ElementsAre(kSecurityCall));
    EXPECT_EQ(std::wstring(kAccess.begin(), kAccess.end()), computer().SecuritySettings(wlan_secure_ihv_control));
    EXPECT_THAT(traced(), IsEmpty());
    EXPECT_TRUE(sharedTraceUntouched());
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

TEST_F(IhvControlTest, EveryWayForSecuritySettingsToFail)
{
    const auto local = TraceBuffer::local;
    CheckFailures(*this,
                  {
                      {"SetIhvSecuritySettings", Security, "WlanOpenHandle", 1722, {kSecurityOpenFailed}, local, 1722},
                      // Deliberate: the service's refusal is not traced.
                      {"SetIhvSecuritySettings", Security, "WlanSetSecuritySettings", 5, {}, local},
                      {.method = "SetIhvSecuritySettings, no administrator",
                       .call = Security,
                       .expected = 5,
                       .buffer = local,
                       .prepare =
                           [](auto& test)
                       {
                           simulation::Scenario world = TalkativeWorld();
                           world.administrator = false;
                           test.UseWorld(world);
                       }},
                  });
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
    EXPECT_THAT(callLines(), ElementsAre(std::string("WlanIhvControl(client=1, interface=") + kAdapterAText +
                                         ", type=1, inputSize=4, input=non-null, outputSize=4, output=non-null, "
                                         "bytesReturned=non-null)"));
    EXPECT_THAT(traced(), IsEmpty());
    EXPECT_TRUE(sharedTraceUntouched());
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

// The line has a break of its own besides the one that ends every line.
TEST_F(IhvControlTest, TheDriversRefusalIsTraced)
{
    unsigned char buffer[2] = {5, 5};
    unsigned long returned = kUnseen;
    EXPECT_EQ(1167u, manager().IhvControl(&kAdapterA, buffer, 2, returned));
    EXPECT_THAT(traced(), ElementsAre("WlanIhvControl ErrorCode:1167\n"));
    EXPECT_THAT(buffer, ElementsAre(5, 5));
    EXPECT_EQ(kUnseen, returned);
}

// The result is unsigned, the traced number is not.
TEST_F(IhvControlTest, LargeErrorsAreTracedAsNegativeNumbers)
{
    unsigned char buffer[1] = {6};
    unsigned long returned = kUnseen;
    EXPECT_EQ(0x80070005u, manager().IhvControl(&kAdapterA, buffer, 1, returned));
    EXPECT_THAT(traced(), ElementsAre("WlanIhvControl ErrorCode:-2147024891\n"));
}

TEST_F(IhvControlTest, EveryWayForControlToFail)
{
    const auto local = TraceBuffer::local;
    CheckFailures(*this, {
                             {"IhvControl", Control, "WlanOpenHandle", 1722, {kControlOpenFailed}, local, 1722},
                             {"IhvControl", Control, "WlanIhvControl", 5, {kControlFailed}, local},
                         });
}

TEST_F(IhvControlTest, AnInterfaceThatIsNoneIsTheServicesToRefuse)
{
    unsigned char buffer[4] = {1, 2, 3, 4};
    unsigned long returned = kUnseen;
    EXPECT_EQ(87u, manager().IhvControl(&kNoAdapter, buffer, 4, returned));
    EXPECT_EQ(87u, manager().IhvControl(nullptr, buffer, 4, returned));
    EXPECT_EQ(kUnseen, returned);
}

} // namespace calvix::test::ihv_control_test
