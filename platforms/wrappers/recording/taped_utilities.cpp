#include "wrappers/recording/taped_utilities.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace calvix::recording
{

namespace
{

/// The result of a conversion: its text. How many elements that is, differs between systems, and a text may have changed
/// on its way into the recording, so the size is made from the text. `convert` fetches the text for who has only asked
/// for the size.
template <typename Character, typename Convert>
void DescribeConversion(
    Fields& fields, int& size, bool terminated, Character* destination, int destinationLength, Convert convert)
{
    if (size <= 0)
        return;
    const int terminator = terminated ? 1 : 0;
    std::basic_string<Character> text;
    if (!fields.isReading())
    {
        text.resize(static_cast<std::size_t>(size));
        if (destinationLength > 0)
            std::copy_n(destination, size, text.data());
        else
            convert(text.data(), size);
        text.resize(static_cast<std::size_t>(size - terminator));
    }
    fields.Text("text", text);
    if (!fields.isReading())
        return;
    size = static_cast<int>(text.size()) + terminator;
    if (destinationLength <= 0)
        return;
    // With its terminator, if it has one, and no more than there is room for.
    std::copy_n(text.c_str(), (std::min)(size, destinationLength), destination);
}

} // namespace

int TapedText::MultiByteToWideChar(
    UINT codePage, DWORD flags, const char* source, int sourceLength, wchar_t* destination, int destinationLength)
{
    const auto convert = [&](wchar_t* target, int room)
    { return m_inner->MultiByteToWideChar(codePage, flags, source, sourceLength, target, room); };
    return m_tape.Pass(
        "MultiByteToWideChar", 0, [&] { return convert(destination, destinationLength); },
        [&](Fields& fields)
        {
            fields.Given("codePage", codePage);
            fields.Given("flags", flags);
            fields.GivenText("source", source, sourceLength);
            fields.Given("terminated", sourceLength < 0 ? 1 : 0);
            fields.Given("sizeOnly", destinationLength == 0 ? 1 : 0);
        },
        [&](Fields& fields, int& size)
        { DescribeConversion(fields, size, sourceLength < 0, destination, destinationLength, convert); });
}

int TapedText::WideCharToMultiByte(UINT codePage,
                                   DWORD flags,
                                   const wchar_t* source,
                                   int sourceLength,
                                   char* destination,
                                   int destinationLength,
                                   const char* defaultCharacter,
                                   BOOL* usedDefaultCharacter)
{
    const auto convert = [&](char* target, int room)
    {
        return m_inner->WideCharToMultiByte(codePage, flags, source, sourceLength, target, room, defaultCharacter,
                                            usedDefaultCharacter);
    };
    return m_tape.Pass(
        "WideCharToMultiByte", 0, [&] { return convert(destination, destinationLength); },
        [&](Fields& fields)
        {
            fields.Given("codePage", codePage);
            fields.Given("flags", flags);
            fields.GivenText("source", source, sourceLength);
            fields.Given("terminated", sourceLength < 0 ? 1 : 0);
            fields.Given("sizeOnly", destinationLength == 0 ? 1 : 0);
            fields.GivenText("defaultCharacter", defaultCharacter);
        },
        [&](Fields& fields, int& size)
        {
            DescribeConversion(fields, size, sourceLength < 0, destination, destinationLength, convert);
            if (size > 0)
                fields.NumberAt("usedDefaultCharacter", usedDefaultCharacter);
        });
}

int TapedText::StringFromGUID2(const GUID& guid, wchar_t* text, int capacity)
{
    return m_tape.Pass(
        "StringFromGUID2", 0, [&] { return m_inner->StringFromGUID2(guid, text, capacity); },
        [&](Fields& fields)
        {
            fields.GivenGuid("guid", &guid);
            fields.Given("capacity", capacity);
        },
        [&](Fields& fields, int& size)
        {
            if (size > 0)
                fields.TerminatedInto("text", text, static_cast<std::size_t>(capacity));
        });
}

BOOL TapedInternet::InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize)
{
    return m_tape.Pass(
        "InternetSetOptionA", BOOL{0},
        [&] { return m_inner->InternetSetOptionA(internet, option, buffer, bufferSize); },
        [&](Fields& fields)
        {
            fields.GivenPointer("internet", internet);
            fields.Given("option", option);
            // Most options are one number.
            if (buffer != nullptr && bufferSize == sizeof(DWORD))
                fields.Given("value", *static_cast<const DWORD*>(buffer));
            else
                fields.GivenPointer("buffer", buffer);
        });
}

BOOL TapedInternet::InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved)
{
    return m_tape.Pass(
        "InternetCheckConnectionA", BOOL{0}, [&] { return m_inner->InternetCheckConnectionA(url, flags, reserved); },
        [&](Fields& fields)
        {
            fields.GivenText("url", url);
            fields.Given("flags", flags);
        });
}

void TapedClock::Sleep(DWORD milliseconds)
{
    m_tape.Tell(
        "Sleep", [&] { m_inner->Sleep(milliseconds); },
        [&](Fields& fields) { fields.Given("milliseconds", milliseconds); });
}

BOOL TapedClock::FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime)
{
    return m_tape.Pass(
        "FileTimeToSystemTime", BOOL{0}, [&] { return m_inner->FileTimeToSystemTime(fileTime, systemTime); },
        [&](Fields& fields)
        {
            fields.Given("low", fileTime != nullptr ? fileTime->dwLowDateTime : 0);
            fields.Given("high", fileTime != nullptr ? fileTime->dwHighDateTime : 0);
        },
        [&](Fields& fields, BOOL& converted)
        {
            if (converted == FALSE || systemTime == nullptr)
                return;
            fields.Number("wYear", systemTime->wYear);
            fields.Number("wMonth", systemTime->wMonth);
            fields.Number("wDayOfWeek", systemTime->wDayOfWeek);
            fields.Number("wDay", systemTime->wDay);
            fields.Number("wHour", systemTime->wHour);
            fields.Number("wMinute", systemTime->wMinute);
            fields.Number("wSecond", systemTime->wSecond);
            fields.Number("wMilliseconds", systemTime->wMilliseconds);
        });
}

void TapedDebuggerOutput::OutputDebugStringA(const char* text)
{
    m_tape.Remark("OutputDebugStringA", text, [&] { m_inner->OutputDebugStringA(text); });
}

DWORD TapedLastError::GetLastError()
{
    return m_tape.Pass(
        "GetLastError", kNoAnswer, [&] { return m_inner->GetLastError(); }, [](Fields&) {});
}

} // namespace calvix::recording
