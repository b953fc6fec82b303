#include "simulation/profile_document.h"

#include "forms/hex_text.h"
#include "forms/utf8.h"
#include "forms/xml_text.h"
#include "platform/records/error_numbers.h"
#include <calvix/platform_records.h>

#include <rapidxml/rapidxml.hpp>

#include <algorithm>
#include <string_view>
#include <vector>

namespace calvix::simulation
{

namespace
{

using Element = rapidxml::xml_node<char>;

constexpr std::size_t longestName = WLAN_MAX_NAME_LENGTH - 1;

// The parser recurses into elements. No profile nests deeper than ten, so that this is refused before it can hurt.
constexpr int deepestNesting = 64;

struct Refused
{
    ProfileRefusal refusal;
};

[[noreturn]] void Refuse(WLAN_REASON_CODE reason, DWORD error = ERROR_BAD_PROFILE)
{
    throw Refused{{error, reason}};
}

/// The parser descends once for each level, so it must not meet too many.
bool IsNestedTooDeep(std::string_view xml)
{
    int depth = 0;
    for (std::size_t at = xml.find('<'); at != std::string_view::npos && depth <= deepestNesting;
         at = xml.find('<', at + 1))
    {
        const std::string_view tag = xml.substr(at, xml.find('>', at) - at);
        if (tag.starts_with("</"))
            --depth;
        else if (!tag.starts_with("<!") && !tag.starts_with("<?") && !tag.ends_with('/'))
            ++depth;
    }
    return depth > deepestNesting;
}

const Element& Child(const Element& parent,
                     const char* name,
                     WLAN_REASON_CODE reasonIfMissing = WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA)
{
    const Element* const child = parent.first_node(name);
    if (child == nullptr)
        Refuse(reasonIfMissing);
    return *child;
}

std::string_view ElementText(const Element& element)
{
    return {element.value(), element.value_size()};
}

bool ReadFlag(const Element& parent, const char* name, bool otherwise)
{
    const Element* const child = parent.first_node(name);
    if (child == nullptr)
        return otherwise;
    if (ElementText(*child) != "true" && ElementText(*child) != "false")
        Refuse(WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA);
    return ElementText(*child) == "true";
}

std::wstring ReadName(const Element& root)
{
    std::wstring name = forms::WideFromUtf8(ElementText(Child(root, "name", WLAN_REASON_CODE_INVALID_PROFILE_NAME)));
    if (!IsProfileName(name))
        Refuse(WLAN_REASON_CODE_INVALID_PROFILE_NAME);
    return name;
}

// Where both are given the hexadecimal form counts; the name is for people.
Bytes ReadSsid(const Element& config)
{
    const Element& ssid = Child(config, "SSID");
    const Element* const hex = ssid.first_node("hex");
    const std::string_view name = hex == nullptr ? ElementText(Child(ssid, "name")) : std::string_view();
    const auto bytes =
        hex != nullptr ? forms::BytesFromHex(ElementText(*hex)) : std::optional(Bytes(name.begin(), name.end()));
    if (!bytes || bytes->empty() || bytes->size() > DOT11_SSID_MAX_LENGTH)
        Refuse(WLAN_REASON_CODE_PROFILE_SSID_INVALID);
    return *bytes;
}

DOT11_BSS_TYPE ReadBssType(const Element& root)
{
    const std::string_view type = ElementText(Child(root, "connectionType"));
    if (type != "ESS" && type != "IBSS")
        Refuse(WLAN_REASON_CODE_INVALID_BSS_TYPE);
    return type == "ESS" ? dot11_BSS_type_infrastructure : dot11_BSS_type_independent;
}

// A network of access points is joined automatically unless the profile says otherwise; an ad hoc one never is.
bool ReadMode(const Element& root, DOT11_BSS_TYPE bssType)
{
    const bool isAdHoc = bssType == dot11_BSS_type_independent;
    const Element* const mode = root.first_node("connectionMode");
    if (mode == nullptr)
        return !isAdHoc;
    if (ElementText(*mode) != "auto" && ElementText(*mode) != "manual")
        Refuse(WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA);
    if (ElementText(*mode) == "auto" && isAdHoc)
        Refuse(WLAN_REASON_CODE_INVALID_ADHOC_CONNECTION_MODE);
    return ElementText(*mode) == "auto";
}

// A profile without a key is taken: the service would ask the user for it.
std::string ReadKey(const Element& security, SecuritySuite suite)
{
    const Element* const sharedKey = security.first_node("sharedKey");
    if (sharedKey == nullptr)
        return {};
    const std::string_view type = ElementText(Child(*sharedKey, "keyType"));
    Child(*sharedKey, "protected");
    const bool isProtected = ReadFlag(*sharedKey, "protected", false);
    const std::string_view key = ElementText(Child(*sharedKey, "keyMaterial"));
    if (type != "passPhrase" && type != "networkKey")
        Refuse(WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA);
    const bool isPassphrase = type == "passPhrase" && UsesPassphrase(suite) && !isProtected;
    if (isPassphrase && (key.size() < 8 || key.size() > 63))
        Refuse(WLAN_REASON_CODE_MSMSEC_PROFILE_PSK_LENGTH);
    return isProtected ? std::string() : std::string(key);
}

void ReadSecurity(const Element& root, ProfileDocument& profile)
{
    const Element& msm = Child(root, "MSM", WLAN_REASON_CODE_MSM_SECURITY_MISSING);
    const Element& security = Child(msm, "security", WLAN_REASON_CODE_MSM_SECURITY_MISSING);
    const Element& method = Child(security, "authEncryption", WLAN_REASON_CODE_MSMSEC_PROFILE_NO_AUTH_CIPHER_SPECIFIED);
    const std::string_view authentication = ElementText(Child(method, "authentication"));
    const std::string_view encryption = ElementText(Child(method, "encryption"));
    if (!IsAuthenticationName(authentication) || !IsEncryptionName(encryption))
        Refuse(WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA);
    const SecuritySuite suite = SuiteFromNames(authentication, encryption);
    if (!IsSupported(suite))
        Refuse(WLAN_REASON_CODE_MSMSEC_PROFILE_INVALID_AUTH_CIPHER, ERROR_NO_MATCH);
    profile.security = suite;
    profile.key = ReadKey(security, suite);
}

ProfileDocument ReadDocument(const Element& root)
{
    ProfileDocument profile;
    profile.name = ReadName(root);
    const Element& config = Child(root, "SSIDConfig");
    profile.ssid = ReadSsid(config);
    profile.hidden = ReadFlag(config, "nonBroadcast", false);
    profile.bssType = ReadBssType(root);
    if (profile.hidden && profile.bssType == dot11_BSS_type_independent)
        Refuse(WLAN_REASON_CODE_NON_BROADCAST_SET_FOR_ADHOC);
    profile.automatic = ReadMode(root, profile.bssType);
    ReadSecurity(root, profile);
    return profile;
}

// Protected keys. The real service encrypts them for the machine; here they only have to be distinguished from plain ones
// and to be readable again, so that the form was chosen: a mark, and the key's bytes in hexadecimal.

constexpr std::wstring_view protectedMark = L"CA1F15EA1ED0";

struct Span
{
    std::size_t begin;
    std::size_t length;
};

// The text of the first element of this name.
std::optional<Span> FindText(const std::wstring& xml, const std::wstring& element)
{
    const std::size_t tag = xml.find(L"<" + element + L">");
    const std::size_t begin = tag + element.size() + 2;
    const std::size_t end = tag == std::wstring::npos ? tag : xml.find(L"</" + element + L">", begin);
    return end == std::wstring::npos ? std::nullopt : std::optional(Span{begin, end - begin});
}

void ReplaceText(std::wstring& xml, const std::wstring& element, const std::wstring& text)
{
    if (const auto span = FindText(xml, element))
        xml.replace(span->begin, span->length, text);
}

std::optional<std::wstring> KeyOf(const std::wstring& xml, std::wstring_view isProtected)
{
    const auto flag = FindText(xml, L"protected");
    const auto key = FindText(xml, L"keyMaterial");
    if (!flag || !key || xml.compare(flag->begin, flag->length, isProtected) != 0)
        return std::nullopt;
    return xml.substr(key->begin, key->length);
}

} // namespace

std::optional<ProfileDocument> ParseProfile(const std::string& xml, ProfileRefusal& refusal)
{
    try
    {
        if (IsNestedTooDeep(xml))
            Refuse(WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA);
        std::vector<char> text(xml.begin(), xml.end());
        text.push_back('\0');
        rapidxml::xml_document<char> document;
        document.parse<rapidxml::parse_validate_closing_tags>(text.data());
        return ReadDocument(Child(document, "WLANProfile"));
    }
    catch (const rapidxml::parse_error&)
    {
        refusal = {ERROR_BAD_PROFILE, WLAN_REASON_CODE_INVALID_PROFILE_SCHEMA};
    }
    catch (const Refused& refused)
    {
        refusal = refused.refusal;
    }
    return std::nullopt;
}

std::wstring WithProtectedKey(const std::wstring& xml)
{
    const auto key = KeyOf(xml, L"false");
    if (!key)
        return xml;
    const std::wstring hidden =
        std::wstring(protectedMark) + forms::WideFromUtf8(forms::HexText(forms::Utf8FromWide(*key)));
    std::wstring result = xml;
    ReplaceText(result, L"protected", L"true");
    ReplaceText(result, L"keyMaterial", hidden);
    return result;
}

std::wstring WithPlainKey(const std::wstring& xml)
{
    const auto key = KeyOf(xml, L"true");
    if (!key || key->compare(0, protectedMark.size(), protectedMark) != 0)
        return xml;
    const auto bytes = forms::BytesFromHex(forms::Utf8FromWide(std::wstring_view(*key).substr(protectedMark.size())));
    if (!bytes)
        return xml;
    std::wstring result = xml;
    ReplaceText(result, L"protected", L"false");
    ReplaceText(result, L"keyMaterial", forms::WideFromUtf8(std::string(bytes->begin(), bytes->end())));
    return result;
}

bool IsProfileName(std::wstring_view name)
{
    return !name.empty() && name.size() <= longestName;
}

std::wstring WithName(const std::wstring& xml, const std::wstring& name)
{
    std::wstring result = xml;
    ReplaceText(result, L"name", forms::WideFromUtf8(forms::EscapedXml(forms::Utf8FromWide(name))));
    return result;
}

} // namespace calvix::simulation
