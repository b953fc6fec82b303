#include "cli_test.h"

#include "testing/manager_internals.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace calvix::test
{

namespace
{

/// A folder of this test alone. Creating it fails where it exists, so that programs that run at the same time get
/// different ones.
std::string MakeFolder()
{
    for (int number = 0;; ++number)
    {
        const auto path = std::filesystem::temp_directory_path() / ("calvix_cli_test_" + std::to_string(number));
        if (std::filesystem::create_directory(path))
            return path.string();
    }
}

} // namespace

CliTest::CliTest() : m_folder(MakeFolder()) {}

CliTest::~CliTest()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
    ManagerInternals::Reset();
}

Outcome CliTest::Run(const std::vector<std::string>& arguments, host::TerminalTraits terminal)
{
    ManagerInternals::Reset();
    std::istringstream in(m_input);
    std::ostringstream out;
    std::ostringstream err;
    const int exitCode = host::Run(arguments, in, out, err, terminal);
    return {exitCode, out.str(), err.str()};
}

Outcome CliTest::RunTogether(const std::vector<std::string>& arguments)
{
    ManagerInternals::Reset();
    std::istringstream in(m_input);
    std::ostringstream both;
    const int exitCode = host::Run(arguments, in, both, both, {});
    return {exitCode, both.str(), {}};
}

Outcome
CliTest::RunOn(const simulation::Scenario& scenario, std::vector<std::string> arguments, host::TerminalTraits terminal)
{
    arguments.push_back("--scenario");
    arguments.push_back(FileWith("scenario.json", simulation::WriteScenario(scenario)));
    return Run(arguments, terminal);
}

std::string CliTest::PathFor(const std::string& name) const
{
    return (std::filesystem::path(m_folder) / name).string();
}

std::string CliTest::FileWith(const std::string& name, const std::string& content) const
{
    const std::string path = PathFor(name);
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

std::string CliTest::Content(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace calvix::test
