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

const char* VerdictText(Verdict verdict)
{
    if (verdict == Verdict::ok)
        return "ok";
    return verdict == Verdict::warning ? "warning" : "failed";
}

} // namespace calvix::host
