#include "provider.h"

#include <string>
#include <vector>

namespace calvix::test::debugger_output_contract_test
{

namespace
{

#ifdef _WIN32

/// Text sent to the debugger reaches a process without one as an exception; its handler is the debugger.
std::vector<std::string>* g_heard = nullptr;

LONG CALLBACK HearDebuggerOutput(EXCEPTION_POINTERS* pointers)
{
    constexpr DWORD kDebuggerText = 0x40010006;
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (record.ExceptionCode == kDebuggerText && record.NumberParameters >= 2)
        g_heard->emplace_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
    return EXCEPTION_CONTINUE_SEARCH;
}

class Listener
{
public:
    explicit Listener(std::vector<std::string>& heard)
    {
        g_heard = &heard;
        m_handler = ::AddVectoredExceptionHandler(1, &HearDebuggerOutput);
    }
    ~Listener() { ::RemoveVectoredExceptionHandler(m_handler); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

private:
    void* m_handler;
};

#else

class Listener
{
public:
    explicit Listener(std::vector<std::string>&) {}
};

#endif

class DebuggerOutputContract : public PlatformContract
{
protected:
    /// What the debugger hears of `texts`, one element a call.
    std::vector<std::string> HeardOf(const std::vector<const char*>& texts)
    {
        std::vector<std::string> heard;
        {
            const Listener listener(heard);
            for (const char* text : texts)
                System().debugger().OutputDebugStringA(text);
        }
        return IsSimulation() ? Simulated().DebuggerLines() : heard;
    }
};

INSTANTIATE_TEST_SUITE_P(Platform, DebuggerOutputContract, testing::ValuesIn(Providers()), ProviderName);

using Heard = std::vector<std::string>;

TEST_P(DebuggerOutputContract, EachCallArrivesAsItIs)
{
    EXPECT_EQ(HeardOf({"one line\n", "a part", " and another", "\n"}),
              (Heard{"one line\n", "a part", " and another", "\n"}));
}

TEST_P(DebuggerOutputContract, BytesAreNotConverted)
{
    EXPECT_EQ(HeardOf({"caf\xE9 \xC3\xA9 \x81 %s\t\x01"}), Heard{"caf\xE9 \xC3\xA9 \x81 %s\t\x01"});
}

TEST_P(DebuggerOutputContract, LongTextsArriveWhole)
{
    const std::string text(10'000, 'x');
    EXPECT_EQ(HeardOf({text.c_str()}), Heard{text});
}

TEST_P(DebuggerOutputContract, AnEmptyTextIsACallToo)
{
    EXPECT_EQ(HeardOf({""}), Heard{""});
}

} // namespace

} // namespace calvix::test::debugger_output_contract_test
