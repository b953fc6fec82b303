// Profile documents: what the service reads out of one, what the methods that search the text find in it, and what
// becomes of it between being stored and being read again.

#include "forms/guid_text.h"
#include "forms/utf8.h"
#include "input.h"
#include "promise.h"
#include "targets.h"

#include "simulation/computer.h"
#include "testing/program.h"

#include "simulation/profile_document.h"

#include <vector>

namespace calvix::fuzz
{

namespace
{

using simulation::ProfileDocument;
using simulation::ProfileRefusal;

constexpr const char* kAdapterText = "{F0220001-0001-4001-8001-000000000001}";

simulation::Computer& ComputerWithoutProfiles()
{
    static simulation::Computer computer(
        []
        {
            simulation::Scenario scenario;
            scenario.adapters.resize(1);
            scenario.adapters[0].guid = kAdapterText;
            scenario.adapters[0].description = "Adapter";
            return scenario;
        }());
    return computer;
}

bool IsSame(const ProfileDocument& one, const ProfileDocument& other)
{
    return one.name == other.name && one.ssid == other.ssid && one.hidden == other.hidden &&
           one.bssType == other.bssType && one.automatic == other.automatic && one.key == other.key;
}

/// A document of our own that says the same can be read as well.
void CheckWrittenAnew(const ProfileDocument& document)
{
    simulation::ProfileSettings settings;
    settings.name = forms::Utf8FromWide(document.name);
    settings.ssid = document.ssid;
    settings.mode = document.automatic ? "auto" : "manual";
    settings.hidden = document.hidden;
    settings.bssType = static_cast<std::uint32_t>(document.bssType);
    ProfileRefusal refusal{};
    const auto again = simulation::ParseProfile(simulation::MakeProfileXml(settings), refusal);
    Promise(again.has_value(), "a profile written anew is taken");
    ProfileDocument expected = document;
    expected.key.clear();
    Promise(IsSame(*again, expected), "a profile written anew says the same");
}

void CheckProtectedKey(const std::wstring& xml, const ProfileDocument& document)
{
    const std::wstring hidden = simulation::WithProtectedKey(xml);
    if (hidden == xml)
        return;
    ProfileRefusal refusal{};
    const auto withoutKey = simulation::ParseProfile(forms::Utf8FromWide(hidden), refusal);
    Promise(withoutKey.has_value(), "a profile with its key protected is still one");
    const auto plain = simulation::ParseProfile(forms::Utf8FromWide(simulation::WithPlainKey(hidden)), refusal);
    Promise(plain && IsSame(*plain, document), "a protected key comes back as it was");
}

/// What the search for an element's text finds, told once more without searching backwards.
int ExpectedAutomatic(const std::wstring& xml)
{
    const std::size_t end = xml.find(L"</connectionMode>");
    const std::wstring_view expected = L">auto";
    if (end == std::wstring::npos || end < expected.size())
        return 0;
    return std::wstring_view(xml).substr(end - expected.size(), expected.size()) == expected ? 1 : 0;
}

void CheckTextSearch(CWirelessManage& manager, const std::wstring& xml, std::wstring ssid)
{
    Promise(manager.IsAutoConnMode(xml.c_str()) == ExpectedAutomatic(xml), "automatic is what ends in \">auto\"");
    Promise(manager.IsAutoConnMode(nullptr) == 0, "no document is not automatic");
    const bool isThis = manager.IsThisSSID(xml.c_str(), ssid.data()) == 1;
    const std::wstring name = L">" + ssid + L"</name>";
    Promise(!isThis || xml.find(name, xml.find(L"<SSID>")) != std::wstring::npos, "an SSID that is found stands there");
    if (name.find(L'>', 1) == name.size() - 1 && ssid.find(L'<') == std::wstring::npos)
        Promise(manager.IsThisSSID((L"<name>A</name><SSID><name" + name).c_str(), ssid.data()) == 1,
                "an SSID that stands there is found");
}

/// Stored, read and deleted again through the library.
void CheckStored(CWirelessManage& manager, const std::wstring& xml, const ProfileDocument* document)
{
    const GUID adapter = *forms::GuidFromText(kAdapterText);
    Promise((manager.SetProfile(&adapter, xml.c_str()) == 0) == (document != nullptr),
            "the service stores what it can read, and nothing else");
    if (document == nullptr)
        return;
    const wchar_t* const name = document->name.c_str();
    std::vector<wchar_t> read(xml.size() + 1, L'#');
    Promise(manager.GetProfile(&adapter, name, read.data(), static_cast<int>(read.size())) == 0,
            "a stored profile can be read");
    Promise(read.back() == L'\0' || std::wstring_view(read.data()).size() < read.size(), "what is read is terminated");
    const int mode = manager.IsAutoConnMode(read.data());
    const int stored = manager.IsAutoConnMode2(&adapter, name);
    Promise(stored == mode || (stored < -4 && mode == 0), "both ask the same about the connection mode");
    Promise(manager.GetProfileCount(&adapter) == 1, "one profile is stored");
    Promise(manager.DeleteProfile(&adapter, name) == 0, "a stored profile can be deleted");
}

} // namespace

void RunProfileXml(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const std::wstring ssid = forms::WideFromUtf8(input.Until("\n"));
    // As text arrives at the library: up to its first zero character.
    const std::wstring xml = forms::WideFromUtf8(input.Rest()).c_str();

    simulation::Computer& computer = ComputerWithoutProfiles();
    {
        test::Program program(computer);
        ProfileRefusal refusal{};
        const auto document = simulation::ParseProfile(forms::Utf8FromWide(xml), refusal);
        Promise(document || (refusal.error != 0 && refusal.reason != 0), "a refusal has a reason");
        if (document)
        {
            CheckWrittenAnew(*document);
            CheckProtectedKey(xml, *document);
        }
        CheckTextSearch(program.Manager(), xml, ssid.c_str());
        CheckStored(program.Manager(), xml, document ? &*document : nullptr);
    }
    const simulation::Accounts accounts = computer.Audit();
    Promise(accounts.liveBlocks == 0 && accounts.openClients == 0 && accounts.defects.empty(), "nothing is left held");
}

} // namespace calvix::fuzz
