#pragma once

#include "host/computer_in_use.h"
#include "output/output.h"

namespace calvix::host
{

/// What a command runs in: its output, its computer, and which of the computer's adapters it is about.
class Host : public Output, public ComputerInUse
{
public:
    Host(const CommonOptions& options, std::istream& in, std::ostream& out, std::ostream& err, TerminalTraits terminal);

    /// All adapters, at least one.
    std::vector<WLAN_INTERFACE_INFO> adapters();
    /// The adapter that was asked for. Fails when there is none like it.
    const WLAN_INTERFACE_INFO& adapter();
    const GUID* adapterGuid() { return &adapter().InterfaceGuid; }

private:
    WLAN_INTERFACE_INFO FindAdapter();
    void NameFirstOf(const std::vector<WLAN_INTERFACE_INFO>& list);

    std::optional<WLAN_INTERFACE_INFO> m_adapter;
};

} // namespace calvix::host
