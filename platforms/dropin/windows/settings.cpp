#include "dropin/windows/settings.h"

#include "forms/utf8.h"
#include "simulation/real_time.h"

#include <windows.h>

#include <fstream>
#include <iterator>

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

simulation::Scenario ChosenScenario(const std::wstring& folder)
{
    if (const std::wstring named = EnvironmentVariable(L"CALVIX_SCENARIO"); !named.empty())
        return LoadScenario(named);
    const std::wstring beside = folder + L"wlanapi.scenario.json";
    return Exists(beside) ? LoadScenario(beside) : simulation::BuiltInScenario();
}

unsigned int ChosenSpeed()
{
    return simulation::ReadSpeed(forms::Utf8FromWide(EnvironmentVariable(L"CALVIX_SPEED")), "CALVIX_SPEED");
}

} // namespace

Settings ReadSettings(const std::wstring& folder)
{
    const unsigned int speed = ChosenSpeed();
    return {ChosenScenario(folder), speed};
}

} // namespace calvix::dropin
