#include "wrappers/interceptor.h"

#include <algorithm>

namespace calvix::wrappers
{

std::string Call::Line() const
{
    std::string line(operation);
    line += '(';
    for (const Argument& argument : arguments)
    {
        if (&argument != &arguments.front())
            line += ", ";
        line.append(argument.name).append("=").append(argument.text);
    }
    return line += ')';
}

std::string_view Call::operator[](std::string_view name) const
{
    const auto found = std::find_if(arguments.begin(), arguments.end(),
                                    [name](const Argument& argument) { return argument.name == name; });
    return found != arguments.end() ? std::string_view(found->text) : std::string_view();
}

bool InterceptorChain::WantsArguments() const
{
    return std::any_of(m_interceptors.begin(), m_interceptors.end(),
                       [](const Interceptor* interceptor) { return interceptor->WantsArguments(); });
}

std::optional<DWORD> InterceptorChain::Before(const Call& call)
{
    std::optional<DWORD> error;
    for (Interceptor* const interceptor : m_interceptors)
    {
        const std::optional<DWORD> own = interceptor->Before(call);
        if (!error)
            error = own;
    }
    return error;
}

void InterceptorChain::After(const Call& call, long long result)
{
    for (auto interceptor = m_interceptors.rbegin(); interceptor != m_interceptors.rend(); ++interceptor)
        (*interceptor)->After(call, result);
}

} // namespace calvix::wrappers
