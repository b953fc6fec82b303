#pragma once

#include "operations/description.h"
#include "wrappers/recording/records.h"
#include "wrappers/recording/tape.h"
#include "wrappers/recording/wlan_results.h"

#include <algorithm>
#include <string>
#include <utility>

namespace calvix::recording
{

// What operations answer and hand out, written into a recording or read from it: one overload for each role, or for what
// it derives from.

/// A call that was made, or is being answered.
template <typename Result>
struct CallOnTape
{
    Fields& fields;
    Tape& tape;
    bool failed;
    Result& result;
    TapedCall& call;
};

/// Records whose fields are among those of the call.
void DescribeFields(Fields& fields, SERVICE_STATUS& status);
void DescribeFields(Fields& fields, PROCESS_INFORMATION& information);
void DescribeFields(Fields& fields, LUID& luid);
/// There is never more than one privilege here.
void DescribeFields(Fields& fields, TOKEN_PRIVILEGES& previous);
void DescribeFields(Fields& fields, SYSTEMTIME& time);

void DescribeInformation(Fields& fields, POWER_INFORMATION_LEVEL level, PVOID output, ULONG size);
/// A scheme's GUID in a block of its own.
void DescribeScheme(Fields& fields, GUID** scheme);
/// What the platform has put into a buffer of bytes, if there was one.
void DescribeBuffer(Fields& fields, UCHAR* buffer, DWORD& size);
void DescribeModulePath(Fields& fields, char* path, DWORD room, DWORD& length);

/// A function's address means nothing elsewhere. Of the one that the library asks for, its answer is recorded, and a
/// replay has a function that gives it; any other is not there in a replay.
void DescribeFunction(Fields& fields, const char* name, FARPROC& address, platform::Platform* recorded);

/// What a call returns that a replay cannot answer any more. The handle of the calling process cannot fail.
template <typename Result>
Result NoAnswer(operations::Fails fails)
{
    constexpr DWORD cancelled = 1223; // ERROR_CANCELLED
    constexpr DWORD cancelledStatus = 0xC0000120;
    if constexpr (std::is_same_v<Result, HANDLE>)
        if (fails == operations::Fails::never)
            return INVALID_HANDLE_VALUE;
    return operations::FailedResult<Result>(fails,
                                            fails == operations::Fails::withStatus ? cancelledStatus : cancelled);
}

constexpr wrappers::HandleFamily FamilyOf(const HANDLE&)
{
    return wrappers::HandleFamily::object;
}
constexpr wrappers::HandleFamily FamilyOf(const SC_HANDLE&)
{
    return wrappers::HandleFamily::service;
}
constexpr wrappers::HandleFamily FamilyOf(const HMODULE&)
{
    return wrappers::HandleFamily::module;
}

/// The result itself: a number, a handle or the address of a function.
template <typename Result, typename Values>
void DescribeResult(Fields& fields, Result& result, const Values& values, platform::Platform* recorded)
{
    if constexpr (std::is_same_v<Result, FARPROC>)
        DescribeFunction(fields, operations::At<1>(values), result, recorded);
    else if constexpr (std::is_pointer_v<Result>)
        fields.HandedOut("result", FamilyOf(result), result);
    else
        fields.Number("result", result);
}

/// What is only given.
void Describe(const auto&, const operations::Given&, const auto&, const operations::AnyPlace&) {}
// These are written together with a neighbour.
void Describe(const auto&, const operations::AnswerSize&, const auto&, const operations::AnyPlace&) {}
void Describe(const auto&, const operations::BytesOut&, const auto&, const operations::AnyPlace&) {}
void Describe(const auto&, const operations::Buffer&, const auto&, const operations::AnyPlace&) {}

void Describe(const auto& call, const operations::NumberOut& role, auto* number, const operations::AnyPlace&)
{
    if (!call.failed)
        call.fields.NumberAt(role.name, number);
}

void Describe(const auto& call, const operations::ReasonOut& role, auto* number, const operations::AnyPlace&)
{
    call.fields.NumberAt(role.name, number);
}

void Describe(const auto& call, const operations::NumberExchanged& role, auto* number, const operations::AnyPlace&)
{
    if (!call.failed)
        call.fields.NumberAt(role.name, number);
}

template <wrappers::HandleFamily family>
void Describe(const auto& call, const operations::HandleOut<family>& role, auto* handle, const operations::AnyPlace&)
{
    if (!call.failed)
        call.fields.HandedOutAt(role.name, family, handle);
}

void Describe(const auto& call, const operations::ListOut&, auto** list, const operations::AnyPlace&)
{
    if (!call.failed && list != nullptr)
        DescribeList(call.fields, list);
}

void Describe(const auto& call, const operations::ProfileTextOut&, wchar_t** xml, const operations::AnyPlace&)
{
    if (!call.failed && xml != nullptr)
        DescribeText(call.fields, xml);
}

void Describe(const auto& call, const operations::SchemeOut&, GUID** scheme, const operations::AnyPlace&)
{
    if (!call.failed && scheme != nullptr)
        DescribeScheme(call.fields, scheme);
}

void Describe(const auto& call, const operations::AnswerOut&, PVOID* data, const auto& place)
{
    DWORD* const size = place.template Neighbour<operations::before>();
    if (!call.failed && size != nullptr && data != nullptr)
        DescribeAnswer(call.fields, place.template Of<operations::Opcode>(), *size, *data);
}

void Describe(const auto& call, const operations::RecordOut&, auto* record, const operations::AnyPlace&)
{
    if (!call.failed && record != nullptr)
        DescribeFields(call.fields, *record);
}

void Describe(const auto& call, const operations::WholeRecordOut& role, auto* record, const operations::AnyPlace&)
{
    if (!call.failed && record != nullptr)
        Describe(call.fields.Object(role.name), *record);
}

void Describe(const auto& call, const operations::BytesCountOut& role, DWORD* count, const auto& place)
{
    if (call.failed || count == nullptr)
        return;
    call.fields.Number(role.name, *count);
    const DWORD room = place.template Neighbour<-2>();
    call.fields.Into("output", place.template Neighbour<operations::before>(), (std::min)(room, *count));
}

void Describe(const auto& call, const operations::BufferSize&, DWORD* size, const auto& place)
{
    if (!call.failed && size != nullptr)
        DescribeBuffer(call.fields, place.template Neighbour<operations::before>(), *size);
}

template <int roomAt>
void Describe(const auto& call, const operations::TextOut<roomAt>&, wchar_t* text, const auto& place)
{
    if (!call.failed && text != nullptr)
        call.fields.TerminatedInto("text", text, static_cast<std::size_t>(place.template Neighbour<roomAt>()));
}

void Describe(const auto& call, const operations::ModulePathOut&, char* path, const auto& place)
{
    if (!call.failed && path != nullptr)
        DescribeModulePath(call.fields, path, place.template Neighbour<operations::after>(), call.result);
}

void Describe(const auto& call, const operations::InformationOut&, PVOID output, const auto& place)
{
    if (!call.failed && output != nullptr)
        DescribeInformation(call.fields, place.template Of<operations::Opcode>(), output,
                            place.template Neighbour<operations::after>());
}

/// Converted text. How many elements that is, differs between systems, and a text may have changed on its way into the
/// recording, so the size is made from the text. The call is made again for who has only asked for the size.
template <typename Character>
void Describe(const auto& call, const operations::DestinationOut&, Character*& destination, const auto& place)
{
    int& size = call.result;
    int& room = place.template Neighbour<operations::after>();
    if (size <= 0)
        return;
    const int terminator = place.template Of<operations::SourceLength>() < 0 ? 1 : 0;
    std::basic_string<Character> text;
    if (!call.fields.isReading())
    {
        text.resize(static_cast<std::size_t>(size));
        if (room > 0)
            std::copy_n(destination, size, text.data());
        else
        {
            Character* const asked = std::exchange(destination, text.data());
            room = size;
            call.call.Forward();
            destination = asked;
            room = 0;
        }
        text.resize(static_cast<std::size_t>(size - terminator));
    }
    call.fields.Text("text", text);
    if (!call.fields.isReading())
        return;
    size = static_cast<int>(text.size()) + terminator;
    // With its terminator, if it has one, and no more than there is room for.
    if (room > 0)
        std::copy_n(text.c_str(), (std::min)(size, room), destination);
}

void Describe(const auto& call, const operations::Callback&, WLAN_NOTIFICATION_CALLBACK callback, const auto& place)
{
    if (!call.failed && call.fields.isReading())
        call.tape.Listen(place.template Of<operations::Client>(),
                         {callback, place.template Neighbour<operations::after>()});
}

void Describe(const auto& call, const operations::Block&, PVOID block, const operations::AnyPlace&)
{
    if (call.fields.isReading())
        call.tape.holdings().Release(block);
}

} // namespace calvix::recording
