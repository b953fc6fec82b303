#include "without_wlan/method_case.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <ostream>

namespace calvix::test::every_method
{

Answer AnErrorNumber()
{
    return testing::Truly(
        [](const std::string& answer)
        {
            return !answer.empty() && answer != "0" &&
                   std::all_of(answer.begin(), answer.end(),
                               [](unsigned char letter) { return std::isdigit(letter) != 0; });
        });
}

std::vector<MethodCase> AllMethods()
{
    std::vector<MethodCase> all;
    for (const auto family : {SystemMethods, ConversionMethods, RadioMethods, InventoryMethods, ProfileMethods,
                              ConnectionMethods, AutomaticMethods, FrameMethods})
    {
        const std::vector<MethodCase> methods = family();
        all.insert(all.end(), methods.begin(), methods.end());
    }
    return all;
}

std::vector<std::string> ExportedMethods()
{
    std::ifstream list(CALVIX_SOURCE_DIR "/tests/binary/exports.txt");
    std::vector<std::string> methods;
    for (std::string line; std::getline(list, line);)
        methods.push_back(line);
    return methods;
}

std::string TestName(const testing::TestParamInfo<MethodCase>& method)
{
    std::string name;
    for (const char letter : std::string(method.param.declaration))
    {
        if (letter == '(')
            break;
        name += std::isalnum(static_cast<unsigned char>(letter)) != 0 ? letter : 'X';
    }
    return name + "_" + std::to_string(method.index);
}

void OnWine::SetUp()
{
    if (::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr)
        GTEST_SKIP() << "not to be done to a real computer";
}

void PrintTo(const MethodCase& method, std::ostream* stream)
{
    *stream << method.declaration;
}

} // namespace calvix::test::every_method
