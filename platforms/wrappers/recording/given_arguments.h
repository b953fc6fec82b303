#pragma once

#include "operations/description.h"
#include "wrappers/recording/power_records.h"
#include "wrappers/recording/tape.h"
#include "wrappers/recording/wlan_records.h"
#include "wrappers/recording/wlan_results.h"

namespace calvix::recording
{

// What operations are given, written into a recording: one overload for each role, or for what it derives from. Roles that
// mean nothing elsewhere write nothing.

/// Records whose fields stand among those of the call.
void GiveFields(Fields& fields, const WLAN_CONNECTION_PARAMETERS* parameters);
void GiveFields(Fields& fields, const STARTUPINFOA* startup);
void GiveFields(Fields& fields, const TOKEN_PRIVILEGES* privileges);
void GiveFields(Fields& fields, const FILETIME* time);

void Give(Fields&, const operations::HandedOut&, const auto&, const auto&) {}
void Give(Fields&, const operations::RecordSize&, const auto&, const auto&) {}
void Give(Fields&, const operations::UnrecordedPointer&, const auto&, const auto&) {}
void Give(Fields&, const operations::UnrecordedNumber&, const auto&, const auto&) {}
void Give(Fields&, const operations::Context&, const auto&, const auto&) {}
void Give(Fields&, const operations::NumberOverwritten&, const auto&, const auto&) {}
void Give(Fields&, const operations::BufferSize&, const auto&, const auto&) {}

void Give(Fields& fields, const operations::Pointer& role, const auto& pointer, const auto&)
{
    fields.GivenPointer(role.name, pointer);
}

void Give(Fields& fields, const operations::Reserved& role, const auto& pointer, const auto&)
{
    // It is null in every correct call, and then not worth a word.
    if (pointer != nullptr)
        fields.GivenPointer(role.name, pointer);
}

void Give(Fields& fields, const operations::Number& role, const auto& number, const auto&)
{
    fields.Given(role.name, number);
}

void Give(Fields& fields, const operations::Flag& role, const auto& flag, const auto&)
{
    fields.Given(role.name, flag);
}

template <wrappers::HandleFamily family>
void Give(Fields& fields, const operations::Handle<family>& role, const auto& handle, const auto&)
{
    fields.GivenHandle(role.name, family, handle);
}

void Give(Fields& fields, const operations::Guid& role, const auto& guid, const auto&)
{
    if constexpr (std::is_pointer_v<std::remove_cvref_t<decltype(guid)>>)
        fields.GivenGuid(role.name, guid);
    else
        fields.GivenGuid(role.name, &guid);
}

void Give(Fields& fields, const operations::Adapter&, const auto& guid, const auto&)
{
    fields.GivenAdapter(guid);
}

void Give(Fields& fields, const operations::Text& role, const auto& text, const auto&)
{
    fields.GivenText(role.name, text);
}

void Give(Fields& fields, const operations::ProfileName& role, const auto& name, const auto&)
{
    fields.GivenName(role.name, name);
}

void Give(Fields& fields, const operations::Source& role, const auto& text, const auto& place)
{
    fields.GivenText(role.name, text, place.template Neighbour<operations::after>());
}

void Give(Fields& fields, const operations::SourceLength&, const auto& length, const auto&)
{
    fields.Given("terminated", length < 0 ? 1 : 0);
}

void Give(Fields& fields, const operations::DestinationRoom&, const auto& room, const auto&)
{
    fields.Given("sizeOnly", room == 0 ? 1 : 0);
}

void Give(Fields& fields, const operations::Ssid& role, const auto& ssid, const auto&)
{
    fields.GivenRecord(role.name, ssid);
}

void Give(Fields& fields, const operations::Record&, const auto& record, const auto&)
{
    GiveFields(fields, record);
}

void Give(Fields& fields, const operations::WholeRecord& role, const auto& record, const auto&)
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

void Give(Fields& fields, const operations::Callback& role, const auto& callback, const auto&)
{
    fields.Given(role.name, callback != nullptr ? 1 : 0);
}

void Give(Fields& fields, const operations::Block&, const auto& block, const auto&)
{
    fields.Given("block", fields.holdings().NumberOfBlock(block));
}

void Give(Fields& fields, const operations::Exchanged& role, const auto& number, const auto&)
{
    if (number != nullptr)
        fields.Given(role.name, *number);
}

void Give(Fields&, const operations::AnswerSize&, const auto&, const auto&) {}

/// What becomes of arguments on their way to the platform.
void Prepare(Tape&, const operations::Role&, const auto&, const auto&) {}

void Prepare(Tape& tape, const operations::Callback&, WLAN_NOTIFICATION_CALLBACK& callback, const auto& place)
{
    PVOID& context = place.template Neighbour<operations::after>();
    const Tape::Listener listener = tape.Listen(place.template Of<operations::Client>(), {callback, context});
    callback = listener.callback;
    context = listener.context;
}

void Prepare(Tape& tape, const operations::Block&, const PVOID& block, const auto&)
{
    // Once it is given back, the service may hand the same address out again.
    tape.holdings().Release(block);
}

} // namespace calvix::recording
