#pragma once

#include "platform/clock.h"
#include "platform/debugger_output.h"
#include "platform/internet.h"
#include "platform/last_error.h"
#include "platform/text.h"
#include "wrappers/interception_point.h"

namespace calvix::wrappers
{

class InterceptedText final : public platform::Text
{
public:
    InterceptedText(platform::Text& inner, InterceptionPoint& point) : m_inner(inner), m_point(point) {}

    int MultiByteToWideChar(UINT codePage,
                            DWORD flags,
                            const char* source,
                            int sourceLength,
                            wchar_t* destination,
                            int destinationLength) override;
    int WideCharToMultiByte(UINT codePage,
                            DWORD flags,
                            const wchar_t* source,
                            int sourceLength,
                            char* destination,
                            int destinationLength,
                            const char* defaultCharacter,
                            BOOL* usedDefaultCharacter) override;
    int StringFromGUID2(const GUID& guid, wchar_t* text, int capacity) override;

private:
    platform::Text& m_inner;
    InterceptionPoint& m_point;
};

class InterceptedInternet final : public platform::Internet
{
public:
    InterceptedInternet(platform::Internet& inner, InterceptionPoint& point) : m_inner(inner), m_point(point) {}

    BOOL InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize) override;
    BOOL InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved) override;

private:
    platform::Internet& m_inner;
    InterceptionPoint& m_point;
};

class InterceptedClock final : public platform::Clock
{
public:
    InterceptedClock(platform::Clock& inner, InterceptionPoint& point) : m_inner(inner), m_point(point) {}

    void Sleep(DWORD milliseconds) override;
    BOOL FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime) override;

private:
    platform::Clock& m_inner;
    InterceptionPoint& m_point;
};

class InterceptedDebuggerOutput final : public platform::DebuggerOutput
{
public:
    InterceptedDebuggerOutput(platform::DebuggerOutput& inner, InterceptionPoint& point)
        : m_inner(inner), m_point(point)
    {
    }

    void OutputDebugStringA(const char* text) override;

private:
    platform::DebuggerOutput& m_inner;
    InterceptionPoint& m_point;
};

class InterceptedLastError final : public platform::LastError
{
public:
    InterceptedLastError(platform::LastError& inner, InterceptionPoint& point) : m_inner(inner), m_point(point) {}

    DWORD GetLastError() override;

private:
    platform::LastError& m_inner;
    InterceptionPoint& m_point;
};

} // namespace calvix::wrappers
