#include "dropin/visible_service.h"

#include "dropin/windows/module.h"
#include "dropin/windows/settings.h"
#include "forms/utf8.h"
#include "simulation/computer.h"
#include "simulation/real_time.h"

#include <windows.h>

#include <cstdio>
#include <exception>
#include <memory>
#include <string>

namespace calvix::dropin
{

namespace
{

struct RunningComputer
{
    explicit RunningComputer(const Settings& settings) : computer(settings.scenario), time(computer, settings.speed) {}

    simulation::Computer computer;
    simulation::RealTime time;
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
        auto running = std::make_unique<RunningComputer>(ReadSettings(PinThisModule()));
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
