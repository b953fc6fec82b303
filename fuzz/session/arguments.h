#pragma once

#include "input.h"
#include "methods/method.h"

namespace calvix::fuzz::session
{

/// Makes the arguments of calls out of the input: ordinary ones, and those that a caller in trouble would pass (null
/// pointers, names of nothing, numbers at their limits), but no buffer that is smaller than the method is told.
class HostileArguments final : public test::methods::Arguments
{
public:
    explicit HostileArguments(Input& input) : m_input(input) {}

protected:
    using Parameter = test::methods::Parameter;

    bool IsNull(const Parameter& parameter) override;
    const GUID* Adapter() override;
    std::string Text(const Parameter& parameter) override;
    std::string Document() override;
    DOT11_SSID Ssid() override;
    WLAN_CONNECTION_ATTRIBUTES Connection() override;
    long long Number(const Parameter& parameter) override;
    WLAN_NOTIFICATION_CALLBACK Callback() override;

private:
    std::string Text();
    std::uint32_t AnyNumber();

    Input& m_input;
};

} // namespace calvix::fuzz::session
