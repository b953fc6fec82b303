#pragma once

#include "platform/clock.h"
#include "platform/debugger_output.h"
#include "platform/internet.h"
#include "platform/last_error.h"
#include "platform/text.h"
#include "wrappers/recording/tape.h"

namespace calvix::recording
{

class TapedText final : public platform::Text
{
public:
    TapedText(Tape& tape, platform::Text* inner) : m_tape(tape), m_inner(inner) {}

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
    Tape& m_tape;
    platform::Text* m_inner;
};

class TapedInternet final : public platform::Internet
{
public:
    TapedInternet(Tape& tape, platform::Internet* inner) : m_tape(tape), m_inner(inner) {}

    BOOL InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize) override;
    BOOL InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved) override;

private:
    Tape& m_tape;
    platform::Internet* m_inner;
};

class TapedClock final : public platform::Clock
{
public:
    TapedClock(Tape& tape, platform::Clock* inner) : m_tape(tape), m_inner(inner) {}

    void Sleep(DWORD milliseconds) override;
    BOOL FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime) override;

private:
    Tape& m_tape;
    platform::Clock* m_inner;
};

class TapedDebuggerOutput final : public platform::DebuggerOutput
{
public:
    TapedDebuggerOutput(Tape& tape, platform::DebuggerOutput* inner) : m_tape(tape), m_inner(inner) {}

    void OutputDebugStringA(const char* text) override;

private:
    Tape& m_tape;
    platform::DebuggerOutput* m_inner;
};

class TapedLastError final : public platform::LastError
{
public:
    TapedLastError(Tape& tape, platform::LastError* inner) : m_tape(tape), m_inner(inner) {}

    DWORD GetLastError() override;

private:
    Tape& m_tape;
    platform::LastError* m_inner;
};

} // namespace calvix::recording
