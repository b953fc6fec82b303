#include "explain/platform_errors.h"
#include "explain/result_codes.h"

#include <algorithm>
#include <cctype>

namespace calvix::host
{

namespace
{

bool SameLetters(std::string_view left, std::string_view right)
{
    const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [lower](char a, char b) { return lower(a) == lower(b); });
}

Explanation ExplainFailure(Cause cause)
{
    const CauseText& text = Describe(cause);
    std::string meaning = text.meaning;
    if (text.operation != nullptr)
        meaning += std::string(" (") + text.operation + ")";
    return {true, true, meaning, text.advice};
}

Explanation ExplainPlatformError(long long code)
{
    const auto error = static_cast<std::uint32_t>(code);
    return {true, true, "the platform's error number: " + DescribePlatformError(error), AdviseOnPlatformError(error)};
}

/// The platform's error numbers are 32 bits; those with the top bit set come through an int as negative numbers.
bool IsPlatformError(long long code)
{
    return code > 0 ? code <= 0xFFFFFFFFLL : code < -0x10000 && code >= -0x80000000LL;
}

} // namespace

const MethodResults* FindMethod(std::string_view method)
{
    for (const MethodResults& results : AllMethodResults())
        if (SameLetters(results.method, method))
            return &results;
    return nullptr;
}

std::optional<Cause> FindCause(const MethodResults& results, long long code)
{
    // Some methods return unsigned numbers, in which a negative code has its 32 bits.
    const bool isUnsigned = code > 0x7FFFFFFFLL && code <= 0xFFFFFFFFLL;
    const long long wanted = isUnsigned ? code - 0x100000000LL : code;
    const auto row = std::find_if(results.codes.begin(), results.codes.end(),
                                  [wanted](const CodeRow& candidate) { return candidate.code == wanted; });
    return row != results.codes.end() ? std::optional(row->cause) : std::nullopt;
}

Explanation Explain(const MethodResults& results, long long code)
{
    if (const std::optional<Cause> cause = FindCause(results, code))
        return ExplainFailure(*cause);
    const Explanation unknown{false, false, "the method gives no such result", {}};
    switch (results.kind)
    {
    case ResultKind::status:
        return code == 0 ? Explanation{true, false, results.result, {}} : unknown;
    case ResultKind::count:
        return code >= 0 ? Explanation{true, false, results.result, {}} : unknown;
    case ResultKind::value:
        return {true, false, results.result, {}};
    case ResultKind::yesOrNo:
        if (code != 0 && code != 1)
            return unknown;
        return {true, false, std::string(code == 1 ? "yes: " : "no: ") + results.result, {}};
    case ResultKind::platformError:
        if (code == 0)
            return {true, false, results.result, {}};
        return IsPlatformError(code) ? ExplainPlatformError(code) : unknown;
    case ResultKind::text:
    case ResultKind::nothing:
        break;
    }
    return unknown;
}

} // namespace calvix::host

calvix::Explanation calvix::Explain(std::string_view method, long long code)
{
    const host::MethodResults* const results = host::FindMethod(method);
    return results != nullptr ? host::Explain(*results, code)
                              : Explanation{false, false, "the library has no such method", {}};
}
