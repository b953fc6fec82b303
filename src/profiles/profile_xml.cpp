#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

#include <cwchar>
#include <string_view>

using namespace calvix;

/// Deliberate: profiles are read with a plain text search. Its result decides which profiles the automatic connection
/// uses, so its rules stay as they are: it does not interpret entities, namespaces or white space.

namespace
{

constexpr const wchar_t* kModeEnd = L"</connectionMode>";
constexpr std::wstring_view kAutomatic = L"auto";

enum class ElementProblem
{
    none,
    missingEnd,
    missingStart
};

struct ElementText
{
    std::wstring_view text;
    ElementProblem problem;
};

/// The text between the first closing tag and the last '>' before it.
ElementText TextBefore(const wchar_t* closingTag, const wchar_t* xml)
{
    const wchar_t* const end = std::wcsstr(xml, closingTag);
    if (end == nullptr)
        return {{}, ElementProblem::missingEnd};
    const std::wstring_view head(xml, static_cast<std::size_t>(end - xml));
    const std::size_t start = head.rfind(L'>');
    if (start == std::wstring_view::npos)
        return {{}, ElementProblem::missingStart};
    return {head.substr(start + 1), ElementProblem::none};
}

} // namespace

int CWirelessManage::IsThisSSID(const wchar_t* xml, wchar_t* ssid)
{
    if (xml == nullptr || ssid == nullptr)
        return 0;
    // Skip the profile's own <name>, which comes before the SSID.
    const wchar_t* const start = std::wcsstr(xml, L"<SSID>");
    if (start == nullptr)
        return 0;
    const ElementText name = TextBefore(L"</name>", start);
    return name.problem == ElementProblem::none && name.text == ssid ? 1 : 0;
}

int CWirelessManage::IsAutoConnMode(const wchar_t* xml)
{
    if (xml == nullptr)
        return 0;
    return TextBefore(kModeEnd, xml).text == kAutomatic ? 1 : 0;
}

int CWirelessManage::IsAutoConnMode2(const GUID* pInterfaceGuid, const wchar_t* name)
{
    LocalTrace<128> trace;
    ProfileText profile;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ReadProfile(hClient, pInterfaceGuid, name, profile, trace) != 0)
        return -4;
    const ElementText mode = TextBefore(kModeEnd, profile.get());
    if (mode.problem == ElementProblem::missingEnd)
        return -5;
    if (mode.problem == ElementProblem::missingStart)
        return -6;
    return mode.text == kAutomatic ? 1 : 0;
}
