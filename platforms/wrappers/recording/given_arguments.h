#pragma once

#include "operations/description.h"
#include "wrappers/recording/records.h"
#include "wrappers/recording/tape.h"
#include "wrappers/recording/wlan_results.h"

namespace calvix::recording
{

// What operations are given, written into a recording: one overload for each role, or for what it derives from. Roles that
// mean nothing elsewhere write nothing.

/// Records whose fields are among those of the call.
void GiveFields(Fields& fields, const WLAN_CONNECTION_PARAMETERS* parameters);
void GiveFields(Fields& fields, const STARTUPINFOA* startup);
void GiveFields(Fields& fields, const TOKEN_PRIVILEGES* privileges);
void GiveFields(Fields& fields, const FILETIME* time);

void Give(Fields&, const operations::HandedOut&, const auto&, const operations::AnyPlace&) {}
void Give(Fields&, const operations::RecordSize&, const auto&, const operations::AnyPlace&) {}
void Give(Fields&, const operations::UnrecordedPointer&, const auto&, const operations::AnyPlace&) {}
void Give(Fields&, const operations::UnrecordedNumber&, const auto&, const operations::AnyPlace&) {}
void Give(Fields&, const operations::Context&, const auto&, const operations::AnyPlace&) {}
void Give(Fields&, const operations::NumberOverwritten&, const auto&, const operations::AnyPlace&) {}
void Give(Fields&, const operations::BufferSize&, const auto&, const operations::AnyPlace&) {}

void Give(Fields& fields, const operations::Pointer& role, const auto& pointer, const operations::AnyPlace&)
{
    fields.GivenPointer(role.name, pointer);
}

void Give(Fields& fields, const operations::Reserved& role, const auto& pointer, const operations::AnyPlace&)
{
    // It is null in every correct call, and then not worth a word.
    if (pointer != nullptr)
        fields.GivenPointer(role.name, pointer);
}

void Give(Fields& fields, const operations::Number& role, const auto& number, const operations::AnyPlace&)
{
    fields.Given(role.name, number);
}

void Give(Fields& fields, const operations::Flag& role, const auto& flag, const operations::AnyPlace&)
{
    fields.Given(role.name, flag);
}

template <wrappers::HandleFamily family>
void Give(Fields& fields, const operations::Handle<family>& role, const auto& handle, const operations::AnyPlace&)
{
    fields.GivenHandle(role.name, family, handle);
}

void Give(Fields& fields, const operations::Guid& role, const auto& guid, const operations::AnyPlace&)
{
    if constexpr (std::is_pointer_v<std::remove_cvref_t<decltype(guid)>>)
        fields.GivenGuid(role.name, guid);
    else
        fields.GivenGuid(role.name, &guid);
}

void Give(Fields& fields, const operations::Adapter&, const auto& guid, const operations::AnyPlace&)
{
    fields.GivenAdapter(guid);
}

void Give(Fields& fields, const operations::Text& role, const auto& text, const operations::AnyPlace&)
{
    fields.GivenText(role.name, text);
}

void Give(Fields& fields, const operations::ProfileName& role, const auto& name, const operations::AnyPlace&)
{
    fields.GivenName(role.name, name);
}

void Give(Fields& fields, const operations::Source& role, const auto& text, const auto& place)
{
    fields.GivenText(role.name, text, place.template Neighbour<operations::after>());
}

void Give(Fields& fields, const operations::SourceLength&, const auto& length, const operations::AnyPlace&)
{
    fields.Given("terminated", length < 0 ? 1 : 0);
}

void Give(Fields& fields, const operations::DestinationRoom&, const auto& room, const operations::AnyPlace&)
{
    fields.Given("sizeOnly", room == 0 ? 1 : 0);
}

void Give(Fields& fields, const operations::Ssid& role, const auto& ssid, const operations::AnyPlace&)
{
    fields.GivenRecord(role.name, ssid);
}

void Give(Fields& fields, const operations::Record&, const auto& record, const operations::AnyPlace&)
{
    GiveFields(fields, record);
}

void Give(Fields& fields, const operations::WholeRecord& role, const auto& record, const operations::AnyPlace&)
{
    fields.GivenRecord(role.name, record);
}

template <int sizeAt>
void Give(Fields& fields, const operations::Bytes<sizeAt>& role, const auto& bytes, const auto& place)
{
    fields.GivenBytes(role.name, bytes, place.template Neighbour<sizeAt>());
}

void Give(Fields& fields, const operations::FriendlyName&, const auto& bytes, const auto& place)
{
    fields.GivenBytes("name", bytes, place.template Neighbour<operations::after>());
}

void Give(Fields& fields, const operations::OptionValue& role, const auto& value, const auto& place)
{
    if (value != nullptr && place.template Neighbour<operations::after>() == sizeof(DWORD))
        fields.Given("value", *static_cast<const DWORD*>(value));
    else
        fields.GivenPointer(role.name, value);
}

void Give(Fields& fields, const operations::Setting&, const auto& data, const auto& place)
{
    const DWORD size = place.template Neighbour<operations::before>();
    GiveInterfaceData(fields, place.template Of<operations::Opcode>(), size, data);
}

void Give(Fields& fields, const operations::Callback& role, const auto& callback, const operations::AnyPlace&)
{
    fields.Given(role.name, callback != nullptr ? 1 : 0);
}

void Give(Fields& fields, const operations::Block&, const auto& block, const operations::AnyPlace&)
{
    fields.Given("block", fields.holdings().NumberOfBlock(block));
}

void Give(Fields& fields, const operations::Exchanged& role, const auto& number, const operations::AnyPlace&)
{
    if (number != nullptr)
        fields.Given(role.name, *number);
}

void Give(Fields&, const operations::AnswerSize&, const auto&, const operations::AnyPlace&) {}

/// What becomes of arguments on their way to the platform.
void Prepare(Tape&, const operations::Role&, const auto&, const operations::AnyPlace&) {}

void Prepare(Tape& tape, const operations::Callback&, WLAN_NOTIFICATION_CALLBACK& callback, const auto& place)
{
    PVOID& context = place.template Neighbour<operations::after>();
    const Tape::Listener listener = tape.Listen(place.template Of<operations::Client>(), {callback, context});
    callback = listener.callback;
    context = listener.context;
}

inline void Prepare(Tape& tape, const operations::Block&, const PVOID& block, const operations::AnyPlace&)
{
    // Once it is given back, the service may hand the same address out again.
    tape.holdings().Release(block);
}

} // namespace calvix::recording
