#include "host/host.h"

#include "core/wlan_records.h"
#include "output/text_forms.h"

#include <cctype>
#include <charconv>

namespace calvix::host
{

namespace
{

/// Whether both texts are the same GUID, with braces or without, in letters of any case.
bool SameGuidText(std::string_view left, std::string_view right)
{
    const auto letters = [](std::string_view text)
    {
        std::string kept;
        for (const char c : text)
            if (c != '{' && c != '}')
                kept += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        return kept;
    };
    return letters(left) == letters(right);
}

/// The place, from 0, of a number from 1 to `count`; none for any other text.
std::optional<std::size_t> PlaceOf(const std::string& text, std::size_t count)
{
    std::size_t number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || stop != text.data() + text.size())
        return std::nullopt;
    return number >= 1 && number <= count ? std::optional(number - 1) : std::nullopt;
}

} // namespace

Host::Host(
    const CommonOptions& options, std::istream& in, std::ostream& out, std::ostream& err, TerminalTraits terminal)
    : Output(options.json, in, out, err, InColor(terminal, options.noColor ? "never" : options.color)),
      ComputerInUse(options, err)
{
}

std::vector<WLAN_INTERFACE_INFO> Host::adapters()
{
    std::vector<WLAN_INTERFACE_INFO> list;
    Check("GetWlanInterface", manager().GetWlanInterface(&list));
    return list;
}

const WLAN_INTERFACE_INFO& Host::adapter()
{
    if (!m_adapter)
        m_adapter = FindAdapter();
    return *m_adapter;
}

/// A user may not know of the second adapter, and would wonder about the output.
void Host::NameFirstOf(const std::vector<WLAN_INTERFACE_INFO>& list)
{
    err() << "calvix: using the first of " << list.size() << " adapters, \""
          << VisibleText(Narrow(FixedText(list.front().strInterfaceDescription)))
          << "\"; --interface 2 selects the second (calvix adapters lists them).\n";
}

WLAN_INTERFACE_INFO Host::FindAdapter()
{
    const std::vector<WLAN_INTERFACE_INFO> list = adapters();
    const std::string& wanted = options().adapter;
    if (wanted.empty())
    {
        if (list.size() > 1)
            NameFirstOf(list);
        return list.front();
    }
    if (const auto place = PlaceOf(wanted, list.size()))
        return list[*place];
    GUID guid{};
    const bool described = manager().GetWlanInterfaceGuid(Widen(wanted).c_str(), guid) == 0;
    for (const WLAN_INTERFACE_INFO& info : list)
        if (described ? IsEqualGUID(info.InterfaceGuid, guid)
                      : SameGuidText(wanted, manager().GUID2String(info.InterfaceGuid)))
            return info;
    throw BadInput("there is no adapter \"" + wanted + "\"",
                   "list the adapters with: calvix adapters. Give the number, the GUID or the whole description");
}

} // namespace calvix::host
