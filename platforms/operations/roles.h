#pragma once

#include "platform/platform.h"

#include <cstdint>
#include <type_traits>

namespace calvix::operations
{

/// How an operation fails: what it returns then.
enum class Fails
{
    withErrorNumber, ///< the result is the reason
    withStatus,      ///< the same as an NTSTATUS
    withNothing,     ///< FALSE, null, no characters; the reason is in GetLastError
    withAllBits,     ///< WAIT_FAILED, and GetLastError
    withNo,          ///< FALSE is an answer too
    never
};

/// Whether the result of an operation that fails is the error.
constexpr bool ReturnsError(Fails fails)
{
    return fails == Fails::withErrorNumber || fails == Fails::withStatus;
}

/// A result as a number: a handle or another pointer is 1, or 0 if it is null.
template <typename Result>
constexpr long long AsNumber(Result result)
{
    if constexpr (std::is_pointer_v<Result>)
        return result != nullptr ? 1 : 0;
    else
        return static_cast<long long>(result);
}

/// Whether a call failed, by its result as a number; "no" is an answer.
constexpr bool HasFailed(Fails fails, long long result)
{
    switch (fails)
    {
    case Fails::withErrorNumber:
    case Fails::withStatus:
        return result != 0;
    case Fails::withNothing:
        return result == 0;
    case Fails::withAllBits:
        return static_cast<unsigned long>(result & 0xFFFFFFFF) == WAIT_FAILED;
    case Fails::withNo:
    case Fails::never:
        break;
    }
    return false;
}

/// What an operation returns that fails with this error.
template <typename Result>
constexpr Result FailedResult(Fails fails, DWORD error)
{
    if constexpr (!std::is_integral_v<Result>)
        return Result{};
    else if (fails == Fails::withErrorNumber)
        return static_cast<Result>(error);
    else if (fails == Fails::withStatus)
        return static_cast<Result>(static_cast<std::int32_t>(error));
    else
        return static_cast<Result>(fails == Fails::withAllBits ? WAIT_FAILED : 0);
}

enum class Facility
{
    wlan,
    services,
    power,
    security,
    processes,
    internet,
    text,
    clock,
    debugger,
    errors
};

/// The families of handles, numbered apart from each other.
enum class HandleFamily
{
    client,  ///< of the WLAN service
    service, ///< of the service control manager
    object,  ///< processes, threads and tokens
    module
};

/// What parameters are for. Each role says what its parameter is called, and by its type how it is shown, recorded and
/// replayed: wrappers/argument_texts.h and wrappers/recording have overloads for roles or what they derive from.
struct Role
{
    /// Whether names of networks and adapters may come up in it, which an anonymised recording hides.
    static constexpr bool tellsNames = false;
    const char* name;
};

/// Read by the operation.
struct Given : Role
{
};

/// Only written by it; before the call only its address is known.
struct HandedOut : Role
{
};

/// Read and written.
struct Exchanged : Role
{
};

struct NameTelling : Given
{
    static constexpr bool tellsNames = true;
};

struct NameTellingOut : HandedOut
{
    static constexpr bool tellsNames = true;
};

// --- Given

/// Only its presence is shown; an Unrecorded one is not in recordings at all.
struct Pointer : Given
{
};
/// Null in every correct call.
struct Reserved : Pointer
{
    constexpr Reserved() : Pointer{"reserved"} {}
};
struct UnrecordedPointer : Pointer
{
};

/// An integer or an enumeration, shown by its name if it has one.
struct Number : Given
{
};
struct UnrecordedNumber : Number
{
};
/// The number that says which record comes with it (operations/records.h).
struct Opcode : Number
{
};
struct Flag : Given
{
};

template <HandleFamily handleFamily>
struct Handle : Given
{
    static constexpr HandleFamily family = handleFamily;
};
using Service = Handle<HandleFamily::service>;
using Object = Handle<HandleFamily::object>;
using Module = Handle<HandleFamily::module>;
struct Client : Handle<HandleFamily::client>
{
    constexpr Client() : Handle{"client"} {}
};

struct Guid : Given
{
};
struct Adapter : Guid
{
    constexpr Adapter() : Guid{"interface"} {}
    static constexpr bool tellsNames = true;
};

/// Terminated text.
struct Text : Given
{
};
struct ProfileName : Text
{
    static constexpr bool tellsNames = true;
};
struct ProfileText : Text
{
    static constexpr bool tellsNames = true;
};
struct CommandLine : Text
{
    static constexpr bool tellsNames = true;
};
struct Ssid : NameTelling
{
};

/// A record that is shown field by field.
struct Record : NameTelling
{
};
/// The same for those whose fields only recordings have, as an object of their own.
struct WholeRecord : Pointer
{
};

/// A parameter's place, seen from another's.
inline constexpr int before = -1;
inline constexpr int after = 1;

/// Bytes, as many as the parameter `sizeAt` says.
template <int sizeAt>
struct Bytes : Pointer
{
};

/// Wide text in bytes, terminator included: the name of a power scheme.
struct FriendlyName : Given
{
};

/// The size of a record, which differs between Windows and other systems.
struct RecordSize : Given
{
};

/// Options of an internet session; most are one number.
struct OptionValue : Given
{
};
struct OptionSize : RecordSize
{
};

/// What an interface is set to, by the opcode.
struct SettingSize : RecordSize
{
};
struct Setting : Given
{
};

/// Text to be converted, and the number of its characters, negative if it is terminated.
struct Source : NameTelling
{
};
struct SourceLength : Number
{
};

/// For how many converted characters there is room; 0 asks for their number.
struct DestinationRoom : Number
{
};

/// Where notifications go, and what they bring along.
struct Callback : Pointer
{
};
struct Context : Pointer
{
};

/// A block that goes back to who handed it out.
struct Block : Pointer
{
};

// --- Handed out, if the operation does not fail

struct NumberOut : HandedOut
{
};
/// Handed out by a failing operation, too.
struct ReasonOut : HandedOut
{
};
template <HandleFamily handleFamily>
struct HandleOut : HandedOut
{
    static constexpr HandleFamily family = handleFamily;
};

/// A block of the WLAN service's, which goes back to it.
struct BlockOut : NameTellingOut
{
};
struct ListOut : BlockOut
{
};
struct ProfileTextOut : BlockOut
{
};
/// The answer to a question, by its opcode; its size is the parameter before.
struct AnswerOut : BlockOut
{
};
/// The GUID of a power scheme in a block of its own.
struct SchemeOut : HandedOut
{
};

/// A record in memory of the caller, shown field by field, or as an object of its own.
struct RecordOut : HandedOut
{
};
struct WholeRecordOut : HandedOut
{
};

/// Bytes in memory of the caller: the parameter before is the capacity, the one after is the size used.
struct BytesOut : HandedOut
{
};
struct BytesCountOut : HandedOut
{
};

/// Terminated wide text; the parameter `roomAt` says for how many characters there is room.
template <int roomAt>
struct TextOut : NameTellingOut
{
};

/// Converted text.
struct DestinationOut : NameTellingOut
{
};

/// The path of a module, as many characters as the result says.
struct ModulePathOut : HandedOut
{
};

/// What is known about power, by its level; the next parameter is the capacity.
struct InformationOut : HandedOut
{
};
struct InformationRoom : RecordSize
{
};

// --- Exchanged

struct NumberExchanged : Exchanged
{
};
/// A number that is read, but means nothing until it is written.
struct NumberOverwritten : NumberExchanged
{
};
/// A legacy power scheme; -1 asks for a new one.
struct SchemeExchanged : NumberExchanged
{
};
/// The size of an answer, set before by careful callers.
struct AnswerSize : Exchanged
{
};
/// A buffer of bytes, and how many there is room for, then how many there are.
struct Buffer : HandedOut
{
};
struct BufferSize : NumberExchanged
{
};

} // namespace calvix::operations
