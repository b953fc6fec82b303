// What the properties of calvix.dll and calvix.exe show.

#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

namespace calvix::test::version_resource_test
{
namespace
{

struct ShippedFile
{
    const char* path;
    const char* name;
    const char* description;
    DWORD type;
};

class VersionResource : public testing::TestWithParam<ShippedFile>
{
protected:
    void SetUp() override
    {
        const DWORD size = ::GetFileVersionInfoSizeA(GetParam().path, nullptr);
        ASSERT_NE(size, 0U) << GetParam().path << " has no version resource";
        resource_.resize(size);
        ASSERT_TRUE(::GetFileVersionInfoA(GetParam().path, 0, size, resource_.data()));
    }

    std::string Text(const std::string& name) const
    {
        void* text = nullptr;
        UINT length = 0;
        const std::string americanEnglishUnicode = "\\StringFileInfo\\040904B0\\";
        if (!::VerQueryValueA(resource_.data(), (americanEnglishUnicode + name).c_str(), &text, &length))
            return "(no " + name + ")";
        return static_cast<const char*>(text);
    }

    VS_FIXEDFILEINFO Numbers() const
    {
        void* numbers = nullptr;
        UINT size = 0;
        if (!::VerQueryValueA(resource_.data(), "\\", &numbers, &size) || size != sizeof(VS_FIXEDFILEINFO))
            return {};
        return *static_cast<const VS_FIXEDFILEINFO*>(numbers);
    }

private:
    std::vector<char> resource_;
};

std::string Dotted(DWORD high, DWORD low)
{
    return std::to_string(HIWORD(high)) + "." + std::to_string(LOWORD(high)) + "." + std::to_string(HIWORD(low)) + "." +
           std::to_string(LOWORD(low));
}

std::string LicenseCopyright()
{
    std::ifstream license(CALVIX_SOURCE_DIR "/LICENSE");
    std::string line;
    while (std::getline(license, line))
        if (line.starts_with("Copyright"))
            return line;
    return "(no copyright line)";
}

TEST_P(VersionResource, HasTheProjectsVersion)
{
    EXPECT_EQ(Text("FileVersion"), CALVIX_VERSION);
    EXPECT_EQ(Text("ProductVersion"), CALVIX_VERSION);
    const VS_FIXEDFILEINFO numbers = Numbers();
    EXPECT_EQ(Dotted(numbers.dwFileVersionMS, numbers.dwFileVersionLS), CALVIX_VERSION ".0");
    EXPECT_EQ(Dotted(numbers.dwProductVersionMS, numbers.dwProductVersionLS), CALVIX_VERSION ".0");
}

TEST_P(VersionResource, DescribesTheFile)
{
    EXPECT_EQ(Text("ProductName"), "Calvix");
    EXPECT_EQ(Text("FileDescription"), GetParam().description);
    EXPECT_EQ(Text("OriginalFilename"), GetParam().name);
    EXPECT_EQ(Numbers().dwFileType, GetParam().type);
}

TEST_P(VersionResource, HasTheCopyrightOfTheLicense)
{
    EXPECT_EQ(Text("LegalCopyright"), LicenseCopyright());
}

INSTANTIATE_TEST_SUITE_P(
    Shipped,
    VersionResource,
    testing::Values(ShippedFile{CALVIX_LIBRARY, "calvix.dll", "Wireless management library", VFT_DLL},
                    ShippedFile{CALVIX_PROGRAM, "calvix.exe", "Wireless management from the command line", VFT_APP}),
    [](const testing::TestParamInfo<ShippedFile>& file) { return file.param.type == VFT_DLL ? "Library" : "Program"; });

} // namespace
} // namespace calvix::test::version_resource_test
