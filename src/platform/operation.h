#pragma once

namespace calvix::platform
{

template <typename Signature>
class Operation;

/// One operation of the platform, called like a function and as cheap: a function and the object that it works on, which
/// stays its owner's. Copies call the same. There is no operation that does nothing, so that a provider that forgets
/// one does not compile.
template <typename R, typename... Parameters>
class Operation<R(Parameters...)>
{
public:
    using Result = R;
    using Function = Result (*)(void* object, Parameters...);

    constexpr Operation(Function function, void* object) : m_function(function), m_object(object) {}

    Result operator()(Parameters... arguments) const { return m_function(m_object, arguments...); }

private:
    Function m_function;
    void* m_object;
};

} // namespace calvix::platform
