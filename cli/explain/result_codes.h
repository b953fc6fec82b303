#pragma once

#include "output/failure.h"

#include <calvix/explain.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace calvix::host
{

/// Why a method ended as it did. The same cause has different numbers in different methods.
enum class Cause
{
    clientNotOpened,
    enumerationFailed,
    noAdapter,
    noSuchInterface,
    noSuchDescription,
    scanRefused,
    networkListFailed,
    networkListEmpty,
    ssidNotVisible,
    networkNotListed,
    bssListFailed,
    bssListEmpty,
    noBssInView,
    accessPointNotListed,
    profileListFailed,
    noProfile,
    profileNotFound,
    profileNotDeleted,
    profileNotReadable,
    profileNotStored,
    noConnectionMode,
    malformedConnectionMode,
    notConnected,
    rssiRefused,
    statisticsRefused,
    noCandidate,
    everyRequestRefused,
    diagnosticRun,
    laterBssListFailed,
    laterBssListEmpty,
    firstBssListFailed,
    firstBssListEmpty,
    nullOutput,
    nullInput,
    radioStateUnknown,
    noPhy,
    safeModeUnknown,
    radioNotSwitched,
    otherServiceVersion,
    someAdapterRefused,
    profileNotInView,
    nothingMatches,
    nothingBetter,
    requestRefused,
    accessPointNotJoined,
    savedNotAutomatic,
    savedNotInView,
    profileNotMoved,
    signalGoodEnough,
    alreadyThere,
    suspendNotAllowed,
    noActiveScheme,
    schemeNotReadable,
    schemeNotWritten,
    schemeNotActivated,
    schemeNotCopied,
    schemeNotNamed,
    sleepTimeNotWritten,
    internetNotReached
};

struct CauseText
{
    Cause cause;
    const char* brief;               ///< as the library's header says it
    const char* meaning;             ///< what is the case, a sentence without its full stop
    const char* advice;              ///< what to do about it
    const char* operation = nullptr; ///< the platform's operation that was refused; null: none
    ExitCode exitCode = ExitCode::failed;
};

/// What is known about a cause.
const CauseText& Describe(Cause cause);

/// One row of a method's code table.
struct CodeRow
{
    int code;
    Cause cause;
};

/// The meaning of a result that is not in the method's table.
enum class ResultKind
{
    status,        ///< 0 is success
    count,         ///< 0 and more is a number of things
    value,         ///< every number is a result
    yesOrNo,       ///< 1 or 0; failures are 0 too
    text,          ///< text or bytes, no number
    platformError, ///< 0 is success, any other number is the platform's error number
    nothing        ///< no result
};

/// What one method's results mean. Overloads of one name share an entry.
struct MethodResults
{
    const char* method;
    ResultKind kind;
    const char* result; ///< the meaning of a result that is not a failure
    std::span<const CodeRow> codes = {};
};

/// Every method of the library, family by family.
std::span<const MethodResults> AllMethodResults();

/// The entry of a method, null when there is no such method. Letter case does not matter.
const MethodResults* FindMethod(std::string_view method);

/// The cause that a code has in a method; none if the code is unknown or not a failure.
std::optional<Cause> FindCause(const MethodResults& results, long long code);

Explanation Explain(const MethodResults& results, long long code);

} // namespace calvix::host
