#include "sweep/method_call.h"

#include <ostream>

namespace calvix::test::sweep
{

std::string MethodCall::Name() const
{
    const std::string text = declaration;
    return text.substr(0, text.find('('));
}

void PrintTo(const MethodCall& method, std::ostream* stream)
{
    *stream << method.declaration;
}

std::vector<MethodCall> EveryMethod()
{
    std::vector<MethodCall> all;
    for (const auto family : {ServiceMethods, AirMethods, ProfileMethods, JoiningMethods, ComputerMethods})
    {
        const std::vector<MethodCall> methods = family();
        all.insert(all.end(), methods.begin(), methods.end());
    }
    return all;
}

} // namespace calvix::test::sweep
