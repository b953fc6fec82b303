#include "processes_contract.h"

#include <vector>

namespace calvix::test::modules_contract_test
{

namespace
{

class ModulesContract : public ProcessesContract
{
protected:
    /// The program's own path, for which there is always room.
    std::string Path(HMODULE module = nullptr)
    {
        std::vector<char> room(1024, '#');
        const DWORD length = Processes().GetModuleFileNameA(module, room.data(), 1024);
        EXPECT_GT(length, 0u) << LastError();
        EXPECT_EQ(room[length], '\0');
        return {room.data(), length};
    }
};

INSTANTIATE_TEST_SUITE_P(Platform, ModulesContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(ModulesContract, ThePathIsWhole)
{
    const std::string path = Path();
    EXPECT_EQ(path.substr(1, 2), ":\\") << path;
    EXPECT_TRUE(path.ends_with(".exe")) << path;
}

TEST_P(ModulesContract, APathNeedsRoomForItsTerminator)
{
    const std::string path = Path();
    const auto length = static_cast<DWORD>(path.size());
    std::vector<char> room(path.size() + 2, '#');
    EXPECT_EQ(Processes().GetModuleFileNameA(nullptr, room.data(), length + 1), length);
    EXPECT_STREQ(room.data(), path.c_str());
    EXPECT_EQ(room.back(), '#');
}

TEST_P(ModulesContract, WithTooLittleRoomAPathIsCutAndTerminated)
{
    const std::string path = Path();
    for (const DWORD size : {static_cast<DWORD>(path.size()), Error(4), Error(1)})
    {
        std::vector<char> room(path.size() + 2, '#');
        LeaveUnlikelyError();
        EXPECT_EQ(Processes().GetModuleFileNameA(nullptr, room.data(), size), size);
        EXPECT_EQ(LastError(), Error(ERROR_INSUFFICIENT_BUFFER));
        // Wine uses the last place for the path, as Windows XP did.
        const std::string kept = path.substr(0, size - 1) + OrOnWine('\0', path[size - 1]);
        EXPECT_EQ(std::string(room.data(), size), kept);
        EXPECT_EQ(room[size], '#');
    }
}

TEST_P(ModulesContract, WithoutRoomNothingIsWritten)
{
    char untouched = '#';
    EXPECT_EQ(Processes().GetModuleFileNameA(nullptr, &untouched, 0), 0u);
    EXPECT_EQ(untouched, '#');
}

TEST_P(ModulesContract, ModulesAreFoundByName)
{
    const HMODULE kernel = Processes().GetModuleHandleA("kernel32.dll");
    ASSERT_NE(kernel, nullptr) << LastError();
    EXPECT_EQ(Processes().GetModuleHandleA("KERNEL32.DLL"), kernel);
    EXPECT_EQ(Processes().GetModuleHandleA("kernel32"), kernel) << "the extension may be left out";
    const std::string path = Path(kernel);
    EXPECT_NE(path.find("\\"), std::string::npos);
    EXPECT_TRUE(path.ends_with("ernel32.dll") || path.ends_with("ERNEL32.DLL")) << path;
}

TEST_P(ModulesContract, TheProgramIsAModuleToo)
{
    const HMODULE program = Processes().GetModuleHandleA(nullptr);
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(Path(program), Path());
}

TEST_P(ModulesContract, UnknownModulesAreMissed)
{
    for (const char* name : {"calvix-no-such-library.dll", "calvix-no-such-library", "kernel32.exe"})
        EXPECT_EQ(ErrorOf([&] { return Processes().GetModuleHandleA(name); }), Error(ERROR_MOD_NOT_FOUND)) << name;
    std::vector<char> room(1024);
    const auto nobodys = reinterpret_cast<HMODULE>(UINT_PTR{0x10000});
    EXPECT_EQ(ErrorOf([&] { return Processes().GetModuleFileNameA(nobodys, room.data(), 1024); }),
              Error(ERROR_MOD_NOT_FOUND));
}

TEST_P(ModulesContract, UnknownFunctionsAreMissed)
{
    const HMODULE kernel = Processes().GetModuleHandleA("kernel32.dll");
    for (const char* name : {"CalvixNoSuchExport", "isWow64process", ""})
        EXPECT_EQ(ErrorOf([&] { return Processes().GetProcAddress(kernel, name); }), Error(ERROR_PROC_NOT_FOUND))
            << name;
}

/// The one function that is asked for in this way.
TEST_P(ModulesContract, AFunctionCanBeCalledByItsAddress)
{
    using IsWow64 = BOOL(WINAPI*)(HANDLE, BOOL*);
    const HMODULE kernel = Processes().GetModuleHandleA("kernel32.dll");
    const FARPROC address = Processes().GetProcAddress(kernel, "IsWow64Process");
    ASSERT_NE(address, nullptr) << LastError();
    // The cast through void(*)() shows the compiler that the change of the function's type is intended.
    const auto isWow64 = reinterpret_cast<IsWow64>(reinterpret_cast<void (*)()>(address));
    BOOL answer = 7;
    EXPECT_TRUE(isWow64(Processes().GetCurrentProcess(), &answer));
    EXPECT_EQ(answer, FALSE) << "this is a 64-bit program";
}

} // namespace

} // namespace calvix::test::modules_contract_test
