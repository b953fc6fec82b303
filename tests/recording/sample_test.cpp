// Sessions that calvix.exe recorded under Wine, of the simulated computer of the drop-in wlanapi.dll, replayed on any
// system. None of them is of Windows.

#include "cli/cli_test.h"

#include <fstream>
#include <sstream>

namespace calvix::test::recording_sample_test
{
namespace
{

const std::string kSamples = CALVIX_SOURCE_DIR "/tests/data/wine-recordings/";

struct Sample
{
    std::string name;
    int exitCode = -1;
    std::vector<std::string> arguments;
};

std::vector<Sample> Samples()
{
    std::vector<Sample> samples;
    std::ifstream file(kSamples + "sessions.txt");
    for (std::string line; std::getline(file, line);)
    {
        std::istringstream words(line);
        Sample sample;
        if (line.starts_with("#") || !(words >> sample.name >> sample.exitCode))
            continue;
        for (std::string word; words >> word;)
            sample.arguments.push_back(word);
        samples.push_back(sample);
    }
    return samples;
}

/// Windows ends lines with two characters, profiles do so everywhere, and the files in the folder never do.
std::string WithoutReturns(std::string text)
{
    std::erase(text, '\r');
    return text;
}

class RecordingSample : public CliTest
{
};

TEST_F(RecordingSample, MadeUnderWineReplaysEverywhere)
{
    const std::vector<Sample> samples = Samples();
    EXPECT_GE(samples.size(), 8u);
    for (const Sample& sample : samples)
    {
        SCOPED_TRACE(sample.name);
        std::vector<std::string> arguments = sample.arguments;
        arguments.insert(arguments.end(), {"--replay", kSamples + sample.name + ".jsonl"});
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(sample.exitCode, outcome.exitCode) << outcome.err;
        EXPECT_EQ(Content(kSamples + sample.name + ".out"), WithoutReturns(outcome.out));
    }
}

} // namespace
} // namespace calvix::test::recording_sample_test
