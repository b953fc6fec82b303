// What can be asked of the simulated computer only. Everything else about texts is in tests/platform.

#include "simulation/text.h"

#include "platform/records/error_numbers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace calvix::simulation::text_test
{

namespace
{

class TextTest : public ::testing::Test
{
protected:
    std::wstring Decode(UINT codePage, const std::string& bytes)
    {
        std::vector<wchar_t> room(256, L'#');
        const int size =
            m_text.MultiByteToWideChar(codePage, 0, bytes.data(), static_cast<int>(bytes.size()), room.data(), 256);
        return {room.data(), static_cast<std::size_t>(size)};
    }

    std::string Encode(UINT codePage, const std::wstring& text, BOOL* used = nullptr)
    {
        std::vector<char> room(256, '#');
        const int size = m_text.WideCharToMultiByte(codePage, 0, text.data(), static_cast<int>(text.size()),
                                                    room.data(), 256, nullptr, used);
        return {room.data(), static_cast<std::size_t>(size)};
    }

    LastErrorCell m_lastError;
    std::uint32_t m_codePage = 1252;
    SimulatedText m_text{m_lastError, m_codePage};
};

TEST_F(TextTest, CodePageZeroIsTheActiveOne)
{
    EXPECT_EQ(Decode(CP_ACP, "\x80\xE9"), L"\u20AC\u00E9");
    m_codePage = 932;
    EXPECT_EQ(Decode(CP_ACP, "\x93\x8C"), L"\u6771");
    m_codePage = 936;
    EXPECT_EQ(Decode(CP_ACP, "\xB6\xAB\x80"), L"\u4E1C\u20AC");
    m_codePage = CP_UTF8;
    EXPECT_EQ(Decode(CP_ACP, "\xE6\x9D\xB1"), L"\u6771");
}

TEST_F(TextTest, Utf8HasNoDefaultCharacterWhereItIsTheActiveCodePageEither)
{
    BOOL used = FALSE;
    m_codePage = CP_UTF8;
    EXPECT_EQ(Encode(CP_ACP, L"a", &used), "");
    EXPECT_EQ(m_lastError, ERROR_INVALID_PARAMETER);
}

TEST_F(TextTest, LongTextsAreConvertedWhole)
{
    std::wstring text;
    std::string bytes;
    for (int count = 0; count < 80; ++count)
    {
        text += L"\u6771a";
        bytes += "\x93\x8C"
                 "a";
    }
    EXPECT_EQ(Encode(932, text), bytes);
    EXPECT_EQ(Decode(932, bytes), text);
    text[101] = L'\u0E01';
    EXPECT_EQ(Encode(932, text).size(), bytes.size());
}

} // namespace

} // namespace calvix::simulation::text_test
