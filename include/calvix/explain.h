// Result codes in words. Link calvix::explain.
#pragma once

#include <string>
#include <string_view>

namespace calvix
{

/// A result in words, each text a sentence without its full stop.
struct Explanation
{
    bool known = false; ///< whether the method has such a result
    bool failure = false;
    std::string meaning; ///< what is the case
    std::string advice;  ///< what to do about it; may be empty
};

/// What a result of a method of CWirelessManage means, as `calvix explain METHOD CODE` says it. Letter case does not
/// matter in the name. A method or a result that does not exist is not known, and the meaning says which.
Explanation Explain(std::string_view method, long long code);

} // namespace calvix
