#pragma once

#include <new>

namespace calvix
{

/// Takes a step that needs memory from the heap. Whether memory ran out, which no method lets its caller know by an
/// exception: it ends as it does when the list that the step is about cannot be obtained.
template <typename Step>
bool OutOfMemoryIn(Step step)
{
    try
    {
        step();
    }
    catch (const std::bad_alloc&)
    {
        return true;
    }
    return false;
}

} // namespace calvix
