#include "windows/optional_library.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace
{

using calvix::windows::OptionalExport;
using calvix::windows::OptionalLibrary;
namespace fs = std::filesystem;

constexpr wchar_t kNoSuchLibrary[] = L"calvix-no-such-library.dll";

using GivesErrorNumber = DWORD(WINAPI*)(DWORD);
using GivesStatus = LONG(WINAPI*)();
using GivesBool = BOOL(WINAPI*)(const char*);
using GivesBoolean = BOOLEAN(WINAPI*)();
using GivesNothing = void(WINAPI*)(void*);

TEST(OptionalLibrary, NamesTheReasonOfWhatIsMissing)
{
    const std::pair<const wchar_t*, DWORD> reasons[] = {{kNoSuchLibrary, ERROR_MOD_NOT_FOUND},
                                                        {L"kernel32.dll", ERROR_PROC_NOT_FOUND}};
    for (const auto& [name, reason] : reasons)
    {
        SCOPED_TRACE(testing::PrintToString(name));
        const OptionalLibrary library(name);
        DWORD error = ERROR_SUCCESS;
        EXPECT_EQ(library.Find("CalvixNoSuchExport", error), nullptr);
        EXPECT_EQ(error, reason);
        const OptionalExport<GivesErrorNumber> operation(library, "CalvixNoSuchExport");
        EXPECT_EQ(operation(DWORD{1}), reason) << "and so does a call of it";
    }
}

TEST(OptionalLibrary, FindsAnExportAndClearsTheError)
{
    const OptionalLibrary library(L"kernel32.dll");
    DWORD error = ERROR_GEN_FAILURE;
    EXPECT_EQ(library.Find("GetTickCount", error),
              ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "GetTickCount"));
    EXPECT_EQ(error, static_cast<DWORD>(ERROR_SUCCESS));
}

/// The current folder, with a DLL in it, and back to the former one.
class FolderWithALibrary
{
public:
    FolderWithALibrary()
    {
        wchar_t program[MAX_PATH] = {};
        ::GetModuleFileNameW(nullptr, program, MAX_PATH);
        fs::create_directory(m_folder);
        fs::copy_file(fs::path(program).replace_filename("calvix.dll"), m_folder / "calvix-planted.dll");
        fs::current_path(m_folder);
    }
    FolderWithALibrary(const FolderWithALibrary&) = delete;
    FolderWithALibrary& operator=(const FolderWithALibrary&) = delete;
    ~FolderWithALibrary()
    {
        fs::current_path(m_former);
        fs::remove_all(m_folder);
    }

private:
    const fs::path m_former = fs::current_path();
    const fs::path m_folder = fs::temp_directory_path() / ("calvix-planted-" + std::to_string(::GetCurrentProcessId()));
};

TEST(OptionalLibrary, IsNotTakenFromTheCurrentFolder)
{
    const FolderWithALibrary current;
    DWORD error = ERROR_SUCCESS;
    EXPECT_EQ(OptionalLibrary(L"calvix-planted.dll").Find("Anything", error), nullptr);
    EXPECT_EQ(error, static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
    EXPECT_EQ(::GetModuleHandleW(L"calvix-planted.dll"), nullptr);
}

TEST(OptionalLibrary, IsTakenFromTheProgramsFolderOnlyWhereThatIsSaid)
{
    DWORD error = ERROR_SUCCESS;
    OptionalLibrary(L"calvix.dll").Find("Anything", error);
    EXPECT_EQ(error, static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
    OptionalLibrary(L"calvix.dll", LOAD_LIBRARY_SEARCH_APPLICATION_DIR).Find("Anything", error);
    EXPECT_EQ(error, static_cast<DWORD>(ERROR_PROC_NOT_FOUND)) << "found, without this export";
}

TEST(OptionalExport, MissingBooleanOperationsFailWithTheReasonAsLastError)
{
    const OptionalLibrary library(kNoSuchLibrary);
    const OptionalExport<GivesBool> wide(library, "Anything");
    ::SetLastError(ERROR_SUCCESS);
    EXPECT_EQ(wide("text"), FALSE);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));

    const OptionalExport<GivesBoolean> narrow(library, "Anything");
    ::SetLastError(ERROR_SUCCESS);
    EXPECT_EQ(narrow(), FALSE);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST(OptionalExport, MissingStatusOperationAnswersWithAFailureStatus)
{
    const OptionalLibrary library(kNoSuchLibrary);
    const OptionalExport<GivesStatus> operation(library, "Anything");
    EXPECT_LT(operation(), 0);
    EXPECT_EQ(static_cast<DWORD>(operation()) & 0xFFFFU, static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST(OptionalExport, MissingReleaseLeavesTheMemoryAlone)
{
    const OptionalLibrary library(kNoSuchLibrary);
    const OptionalExport<GivesNothing> release(library, "Anything");
    int memory = 42;
    release(&memory);
    EXPECT_EQ(memory, 42);
}

TEST(OptionalExport, PresentOneIsCalledWithItsArguments)
{
    const OptionalLibrary library(L"kernel32.dll");
    const OptionalExport<decltype(&::MulDiv)> mulDiv(library, "MulDiv");
    EXPECT_EQ(mulDiv(6, 7, 2), 21);
}

TEST(OptionalExport, LeavesTheLastErrorOfTheOperationInPlace)
{
    const OptionalLibrary library(L"kernel32.dll");
    const OptionalExport<decltype(&::SetLastError)> fails(library, "SetLastError");
    fails(DWORD{ERROR_BUSY});
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_BUSY));
}

} // namespace
