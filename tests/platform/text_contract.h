#pragma once

#include "provider.h"

#include <string>
#include <vector>

namespace calvix::test
{

constexpr UINT kWestern = 1252;
constexpr UINT kJapanese = 932;
constexpr UINT kChinese = 936;

/// Whole texts through the conversions, with room to spare, and what became of the last error.
class TextContract : public PlatformContract
{
protected:
    platform::Text& Text() { return System().text(); }

    /// The wide form of `bytes`, whose length is given, so that it needs no terminator; empty when that fails.
    std::wstring Decode(UINT codePage, const std::string& bytes, DWORD flags = 0)
    {
        std::vector<wchar_t> room(kRoom);
        const int size = Text().MultiByteToWideChar(codePage, flags, bytes.data(), static_cast<int>(bytes.size()),
                                                    room.data(), kRoom);
        return {room.data(), static_cast<std::size_t>(size)};
    }

    std::string Encode(UINT codePage,
                       const std::wstring& text,
                       DWORD flags = 0,
                       const char* defaultCharacter = nullptr,
                       BOOL* usedDefault = nullptr)
    {
        std::vector<char> room(kRoom);
        const int size = Text().WideCharToMultiByte(codePage, flags, text.data(), static_cast<int>(text.size()),
                                                    room.data(), kRoom, defaultCharacter, usedDefault);
        return {room.data(), static_cast<std::size_t>(size)};
    }

    DWORD ErrorOfDecoding(UINT codePage, const std::string& bytes, DWORD flags = 0)
    {
        LeaveUnlikelyError();
        EXPECT_EQ(Decode(codePage, bytes, flags), L"");
        return LastError();
    }

    DWORD ErrorOfEncoding(UINT codePage,
                          const std::wstring& text,
                          DWORD flags = 0,
                          const char* defaultCharacter = nullptr,
                          BOOL* usedDefault = nullptr)
    {
        LeaveUnlikelyError();
        EXPECT_EQ(Encode(codePage, text, flags, defaultCharacter, usedDefault), "");
        return LastError();
    }

private:
    static constexpr int kRoom = 512;
};

} // namespace calvix::test
