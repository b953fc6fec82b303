#include "operations/operations.h"

namespace calvix::operations
{

const Facts* FactsOf(std::string_view name)
{
    const Facts* found = nullptr;
    ForEachOperation(
        [&](const Facts& operation)
        {
            if (operation.name == name)
                found = &operation;
        });
    return found;
}

} // namespace calvix::operations
