#pragma once

#include "session/arguments.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace calvix::fuzz::session
{

/// Calls a method with arguments that the input chooses; gives the result where it is a number.
using Call = std::function<std::optional<long long>(CWirelessManage& manager, Arguments& arguments)>;

struct Method
{
    std::string declaration; ///< as tests/binary/exports.txt has it
    Call call;

    /// The method's name alone.
    std::string Name() const { return declaration.substr(0, declaration.find('(')); }
};

/// Every method once.
const std::vector<Method>& EveryMethod();

/// Those of them that need more than an argument of the usual kind for each parameter.
std::vector<Method> MethodsOfParticularArguments();

} // namespace calvix::fuzz::session
