#pragma once

#include "simulation/adapter.h"
#include "simulation/blocks.h"

#include <calvix/platform_records.h>

namespace calvix::simulation
{

/// The answer to a query: a block of the service's allocator and its size.
struct InterfaceAnswer
{
    void* data;
    std::size_t size;
};

/// What WlanQueryInterface answers about one adapter. Those about the connection need one that is up.
InterfaceAnswer AnswerConnection(Blocks& blocks, const Adapter& adapter);
InterfaceAnswer AnswerChannel(Blocks& blocks, const Adapter& adapter);
InterfaceAnswer AnswerRssi(Blocks& blocks, const Adapter& adapter);
InterfaceAnswer AnswerRadioState(Blocks& blocks, const Adapter& adapter);
InterfaceAnswer AnswerStatistics(Blocks& blocks, const Adapter& adapter);
InterfaceAnswer AnswerSuites(Blocks& blocks, const std::vector<SecuritySuite>& suites);
InterfaceAnswer AnswerCountries(Blocks& blocks);

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
