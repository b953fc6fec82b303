#include "wrappers/intercepted_utilities.h"

#include "wrappers/argument_texts.h"

namespace calvix::wrappers
{

using namespace argument;

namespace
{

/// Most options of an internet session are one number.
NumberAt OptionValue(std::string_view name, const void* buffer, DWORD size)
{
    return {name, size == sizeof(DWORD) ? static_cast<const DWORD*>(buffer) : nullptr};
}

} // namespace

int InterceptedText::MultiByteToWideChar(
    UINT codePage, DWORD flags, const char* source, int sourceLength, wchar_t* destination, int destinationLength)
{
    return m_point.Reasoned(
        "MultiByteToWideChar", 0,
        [&]
        { return m_inner.MultiByteToWideChar(codePage, flags, source, sourceLength, destination, destinationLength); },
        Number{"codePage", codePage}, Number{"flags", flags}, Narrow{"source", source, sourceLength},
        Number{"sourceLength", sourceLength}, Pointer{"destination", destination},
        Number{"destinationLength", destinationLength});
}

int InterceptedText::WideCharToMultiByte(UINT codePage,
                                         DWORD flags,
                                         const wchar_t* source,
                                         int sourceLength,
                                         char* destination,
                                         int destinationLength,
                                         const char* defaultCharacter,
                                         BOOL* usedDefaultCharacter)
{
    return m_point.Reasoned(
        "WideCharToMultiByte", 0,
        [&]
        {
            return m_inner.WideCharToMultiByte(codePage, flags, source, sourceLength, destination, destinationLength,
                                               defaultCharacter, usedDefaultCharacter);
        },
        Number{"codePage", codePage}, Number{"flags", flags}, Wide{"source", source, sourceLength},
        Number{"sourceLength", sourceLength}, Pointer{"destination", destination},
        Number{"destinationLength", destinationLength}, Narrow{"defaultCharacter", defaultCharacter},
        Pointer{"usedDefaultCharacter", usedDefaultCharacter});
}

int InterceptedText::StringFromGUID2(const GUID& guid, wchar_t* text, int capacity)
{
    return m_point.Reasoned(
        "StringFromGUID2", 0, [&] { return m_inner.StringFromGUID2(guid, text, capacity); }, Guid{"guid", &guid},
        Pointer{"text", text}, Number{"capacity", capacity});
}

BOOL InterceptedInternet::InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize)
{
    return m_point.Reasoned(
        "InternetSetOptionA", BOOL{0}, [&] { return m_inner.InternetSetOptionA(internet, option, buffer, bufferSize); },
        Pointer{"internet", internet}, Number{"option", option}, OptionValue("buffer", buffer, bufferSize),
        Size{"bufferSize", bufferSize, {"DWORD", sizeof(DWORD)}});
}

BOOL InterceptedInternet::InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved)
{
    return m_point.Reasoned(
        "InternetCheckConnectionA", BOOL{0}, [&] { return m_inner.InternetCheckConnectionA(url, flags, reserved); },
        Narrow{"url", url}, Number{"flags", flags}, Number{"reserved", reserved});
}

void InterceptedClock::Sleep(DWORD milliseconds)
{
    m_point.Certain(
        "Sleep", [&] { m_inner.Sleep(milliseconds); }, Number{"milliseconds", milliseconds});
}

BOOL InterceptedClock::FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime)
{
    return m_point.Reasoned(
        "FileTimeToSystemTime", BOOL{0}, [&] { return m_inner.FileTimeToSystemTime(fileTime, systemTime); },
        FileTime{"fileTime", fileTime}, Pointer{"systemTime", systemTime});
}

void InterceptedDebuggerOutput::OutputDebugStringA(const char* text)
{
    m_point.Certain(
        "OutputDebugStringA", [&] { m_inner.OutputDebugStringA(text); }, Narrow{"text", text});
}

DWORD InterceptedLastError::GetLastError()
{
    return m_point.LastError([&] { return m_inner.GetLastError(); });
}

} // namespace calvix::wrappers
