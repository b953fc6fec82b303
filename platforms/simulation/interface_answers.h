#pragma once

#include "simulation/adapter.h"
#include "simulation/blocks.h"

#include <calvix/platform_records.h>

#include <optional>

namespace calvix::simulation
{

/// The answer to a query: a block of the service's allocator and its size.
struct InterfaceAnswer
{
    void* data;
    std::size_t size;
};

/// The mode of an ordinary station, as every adapter has been called since the interface knows other modes.
inline constexpr ULONG extensibleStation = 4;

/// What WlanQueryInterface answers about one adapter, or nothing for an opcode that is not supported. What is about the
/// connection needs one that is up.
std::optional<InterfaceAnswer> AnswerInterface(Blocks& blocks, const Adapter& adapter, WLAN_INTF_OPCODE opcode);

/// What WlanGetInterfaceCapability hands out.
WLAN_INTERFACE_CAPABILITY* MakeCapability(Blocks& blocks, const Adapter& adapter);

/// An answer that is one number, in the type in which the service gives it.
template <typename Number>
InterfaceAnswer AnswerNumber(Blocks& blocks, Number number)
{
    auto* const data = static_cast<Number*>(blocks.Allocate(sizeof(Number), "query result"));
    *data = number;
    return {data, sizeof(Number)};
}

} // namespace calvix::simulation
