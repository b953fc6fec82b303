// What the DLL shows to the outside.

#include "dropin/function_names.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <set>
#include <string>

namespace calvix::test::dropin_exports_test
{
namespace
{

/// A module's tables, where the loader put them.
class LoadedImage
{
public:
    explicit LoadedImage(HMODULE module) : m_base(reinterpret_cast<const unsigned char*>(module)) {}

    template <typename Record>
    const Record* At(DWORD offset) const
    {
        return reinterpret_cast<const Record*>(m_base + offset);
    }

    const IMAGE_DATA_DIRECTORY& Directory(std::size_t index) const
    {
        const auto* const dos = At<IMAGE_DOS_HEADER>(0);
        const auto* const headers = At<IMAGE_NT_HEADERS64>(static_cast<DWORD>(dos->e_lfanew));
        return headers->OptionalHeader.DataDirectory[index];
    }

private:
    const unsigned char* m_base;
};

TEST(DropinExports, AreTheDocumentedFunctionsAndNothingElse)
{
    const HMODULE module = ::GetModuleHandleW(L"wlanapi.dll");
    ASSERT_NE(module, nullptr);
    const LoadedImage image(module);
    const auto* const table =
        image.At<IMAGE_EXPORT_DIRECTORY>(image.Directory(IMAGE_DIRECTORY_ENTRY_EXPORT).VirtualAddress);
    std::set<std::string> names;
    for (DWORD index = 0; index < table->NumberOfNames; ++index)
        names.insert(image.At<char>(image.At<DWORD>(table->AddressOfNames)[index]));
    std::set<std::string> documented(std::begin(answeredNames), std::end(answeredNames));
    documented.insert(std::begin(unsupportedNames), std::end(unsupportedNames));
    EXPECT_EQ(names, documented);
    EXPECT_EQ(table->NumberOfFunctions, documented.size()) << "there are nameless ones";
    EXPECT_STREQ(image.At<char>(table->Name), "wlanapi.dll");
}

// No other file has to lie beside it.
TEST(DropinExports, NeedOnlyWhatEveryWindowsHas)
{
    const std::set<std::string> expected = {"KERNEL32.dll", "msvcrt.dll", "USER32.dll", "ADVAPI32.dll"};
    const HMODULE module = ::GetModuleHandleW(L"wlanapi.dll");
    ASSERT_NE(module, nullptr);
    const LoadedImage image(module);
    const auto* entry = image.At<IMAGE_IMPORT_DESCRIPTOR>(image.Directory(IMAGE_DIRECTORY_ENTRY_IMPORT).VirtualAddress);
    for (; entry->Name != 0; ++entry)
        EXPECT_EQ(expected.count(image.At<char>(entry->Name)), 1u) << image.At<char>(entry->Name);
}

} // namespace
} // namespace calvix::test::dropin_exports_test
