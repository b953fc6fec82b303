// The inputs that fuzzing begins with and those that it has found, run through their targets once more.

#include "targets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace calvix::test::replay_test
{
namespace
{

using fuzz::Target;

const std::filesystem::path kFolder = CALVIX_SOURCE_DIR "/fuzz";

std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    std::error_code absent;
    for (const auto& entry : std::filesystem::directory_iterator(folder, absent))
        files.push_back(entry.path());
    return files;
}

std::string Bytes(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Replay(const Target& target, const std::vector<std::filesystem::path>& files)
{
    for (const std::filesystem::path& path : files)
    {
        const std::string bytes = Bytes(path);
        // On the heap and no longer than the input, where the sanitizers see a byte too many.
        const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
        EXPECT_NO_THROW(target.run(data.data(), data.size())) << path.filename();
    }
}

class EveryTarget : public testing::TestWithParam<Target>
{
};

TEST_P(EveryTarget, KeepsItsPromisesOnSeedsAndFindings)
{
    const std::vector<std::filesystem::path> seeds = FilesIn(kFolder / "seeds" / GetParam().name);
    EXPECT_THAT(seeds, testing::SizeIs(testing::Ge(5))) << "a target without seeds";
    Replay(GetParam(), seeds);
    Replay(GetParam(), FilesIn(kFolder / "findings" / GetParam().name));
}

INSTANTIATE_TEST_SUITE_P(All,
                         EveryTarget,
                         testing::ValuesIn(fuzz::kTargets),
                         [](const auto& target) { return target.param.name; });

TEST(Findings, BelongToTargets)
{
    std::vector<std::string> names;
    for (const Target& target : fuzz::kTargets)
        names.emplace_back(target.name);
    const std::vector<std::filesystem::path> folders = FilesIn(kFolder / "findings");
    EXPECT_THAT(folders, testing::Not(testing::IsEmpty()));
    for (const std::filesystem::path& folder : folders)
        EXPECT_THAT(names, testing::Contains(folder.filename().string()));
}

} // namespace
} // namespace calvix::test::replay_test
