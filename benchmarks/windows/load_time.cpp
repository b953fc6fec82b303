// What a program waits for the first time that it uses calvix.dll, in microseconds: for the library to be loaded, and for
// the manager, which binds wlanapi.dll and opens the client handle. A process can be asked only once.

#include <windows.h>

#include <cstdio>

namespace
{

constexpr char kGet[] = "_ZN15CWirelessManage3GetEv";

long long Ticks()
{
    LARGE_INTEGER ticks{};
    ::QueryPerformanceCounter(&ticks);
    return ticks.QuadPart;
}

long long Microseconds(long long ticks)
{
    LARGE_INTEGER ticksPerSecond{};
    ::QueryPerformanceFrequency(&ticksPerSecond);
    return ticks * 1000000 / ticksPerSecond.QuadPart;
}

} // namespace

int main()
{
    using GetFunction = void* (*)();
    const long long start = Ticks();
    const HMODULE library = ::LoadLibraryW(L"calvix.dll");
    const long long loaded = Ticks();
    if (library == nullptr)
        return 1;
    const auto get = reinterpret_cast<GetFunction>(reinterpret_cast<void (*)()>(::GetProcAddress(library, kGet)));
    if (get == nullptr || get() == nullptr)
        return 1;
    const long long usable = Ticks();
    std::printf("%lld %lld\n", Microseconds(loaded - start), Microseconds(usable - loaded));
    return 0;
}
