#include "output/facts.h"

namespace calvix::host
{

const char* OutcomeText(Outcome outcome)
{
    switch (outcome)
    {
    case Outcome::notTried:
        return "not tried";
    case Outcome::refused:
        return "refused";
    case Outcome::accepted:
        return "accepted";
    case Outcome::joined:
        return "joined";
    }
    return "";
}

} // namespace calvix::host
