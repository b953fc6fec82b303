#include <calvix/wireless_manage.h>

#include "core/service_steps.h"

#include <cwchar>
#include <string_view>

using namespace calvix;

/// Profiles are inspected by plain text search, on purpose: what it finds decides which profiles the automatic
/// connection uses, so its rules are kept exactly, entities, namespaces and white space left as they stand.

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

/// What stands between the first closing tag and the last '>' before it.
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
    // The profile's own <name> stands before the SSID and must not be taken for it.
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
