#include "dropin/visible_service.h"

#include "dropin/windows/module.h"
#include "forms/utf8.h"
#include "simulation/computer.h"
#include "simulation/real_time.h"

#include <windows.h>

#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

namespace calvix::dropin
{

namespace
{

/// The value, or nothing where the variable is not set.
std::wstring EnvironmentVariable(const wchar_t* name)
{
    std::wstring value(::GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    value.resize(::GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

bool Exists(const std::wstring& path)
{
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// The simulation's own reader takes a narrow path, which cannot name every file.
simulation::Scenario LoadScenario(const std::wstring& path)
{
    const std::string name = forms::Utf8FromWide(path);
    std::ifstream file(path.c_str(), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    if (!file.is_open() || file.bad())
        throw simulation::ScenarioError(name + ": cannot be read");
    return simulation::ParseScenario(text, name);
}

/// The file that the environment names, or else the one beside the library, or else the built-in scenario.
simulation::Scenario ChosenScenario(const std::wstring& folder)
{
    if (const std::wstring named = EnvironmentVariable(L"CALVIX_SCENARIO"); !named.empty())
        return LoadScenario(named);
    const std::wstring beside = folder + L"wlanapi.scenario.json";
    return Exists(beside) ? LoadScenario(beside) : simulation::BuiltInScenario();
}

/// How many times as fast as real time the simulated time passes.
unsigned int ChosenSpeed()
{
    return simulation::ReadSpeed(forms::Utf8FromWide(EnvironmentVariable(L"CALVIX_SPEED")), "CALVIX_SPEED");
}

struct RunningComputer
{
    const unsigned int speed = ChosenSpeed();
    simulation::Computer computer{ChosenScenario(PinThisModule())};
    simulation::RealTime time{computer, speed};
};

void Report(const char* problem)
{
    const std::string line = "wlanapi.dll of Calvix: " + std::string(problem) + "\n";
    std::fputs(line.c_str(), stderr);
    std::fflush(stderr);
    ::OutputDebugStringW(forms::WideFromUtf8(line).c_str());
}

// It is never destroyed: its threads run until the process ends, and end with it wherever they are.
RunningComputer* Start()
{
    try
    {
        auto running = std::make_unique<RunningComputer>();
        running->time.KeepGoing();
        return running.release();
    }
    catch (const std::exception& problem)
    {
        Report(problem.what());
        return nullptr;
    }
}

} // namespace

DWORD FindVisibleService(VisibleService& found)
{
    if (ProcessIsEnding())
        return ERROR_SHUTDOWN_IN_PROGRESS;
    static RunningComputer* const running = Start();
    if (running == nullptr)
        return ERROR_INVALID_DATA;
    running->time.CatchUp();
    found = {&running->computer.wlan(), &running->computer.service()};
    return ERROR_SUCCESS;
}

} // namespace calvix::dropin
