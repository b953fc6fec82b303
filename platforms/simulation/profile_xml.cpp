#include "simulation/scenario.h"
#include "simulation/scenario_names.h"
#include "simulation/security_suite.h"
#include "simulation/utf8.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

std::string Escaped(const std::string& text)
{
    std::string result;
    for (const char character : text)
    {
        switch (character)
        {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        case '\'':
            result += "&apos;";
            break;
        default:
            result += character;
        }
    }
    return result;
}

/// Writes elements as the service does: one a line, indented by tabs.
class XmlWriter
{
public:
    void Open(const std::string& name, const std::string& attributes = "")
    {
        Line("<" + name + attributes + ">");
        m_open.push_back(name);
    }
    void Close()
    {
        const std::string name = m_open.back();
        m_open.pop_back();
        Line("</" + name + ">");
    }
    void Element(const std::string& name, const std::string& text)
    {
        Line("<" + name + ">" + Escaped(text) + "</" + name + ">");
    }
    const std::string& Finish()
    {
        while (!m_open.empty())
            Close();
        return m_text;
    }

private:
    void Line(const std::string& line) { m_text += std::string(m_open.size(), '\t') + line + "\r\n"; }

    std::string m_text = "<?xml version=\"1.0\"?>\r\n";
    std::vector<std::string> m_open;
};

/// Whether XML can hold the text: it has no way to write most control characters.
bool IsXmlText(const std::string& text)
{
    return IsUtf8(text) && std::all_of(text.begin(), text.end(),
                                       [](char character) { return static_cast<unsigned char>(character) >= 0x20; });
}

std::string UpperCaseHex(const Bytes& bytes)
{
    std::string text = HexText(bytes);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char digit) { return digit >= 'a' ? static_cast<char>(digit - 32) : digit; });
    return text;
}

void WriteNetwork(XmlWriter& xml, const ProfileSettings& settings)
{
    xml.Open("SSIDConfig");
    xml.Open("SSID");
    xml.Element("hex", UpperCaseHex(settings.ssid));
    const std::string name(settings.ssid.begin(), settings.ssid.end());
    if (!name.empty() && IsXmlText(name))
        xml.Element("name", name);
    xml.Close();
    if (settings.hidden)
        xml.Element("nonBroadcast", "true");
    xml.Close();
}

/// WEP keys and keys of 64 hexadecimal digits are keys already; from a passphrase the key is still to be made.
const char* KeyType(const ProfileSettings& settings)
{
    const bool isKey = settings.encryption == "WEP" || (settings.key.size() == 64 && BytesFromHex(settings.key));
    return isKey ? "networkKey" : "passPhrase";
}

void WriteSecurity(XmlWriter& xml, const ProfileSettings& settings)
{
    xml.Open("MSM");
    xml.Open("security");
    xml.Open("authEncryption");
    xml.Element("authentication", settings.authentication);
    xml.Element("encryption", settings.encryption);
    xml.Element("useOneX", UsesOneX(SuiteFromNames(settings.authentication, settings.encryption)) ? "true" : "false");
    xml.Close();
    if (settings.key.empty())
        return;
    xml.Open("sharedKey");
    xml.Element("keyType", KeyType(settings));
    xml.Element("protected", "false");
    xml.Element("keyMaterial", settings.key);
}

} // namespace

std::string MakeProfileXml(const ProfileSettings& settings)
{
    XmlWriter xml;
    xml.Open("WLANProfile", " xmlns=\"http://www.microsoft.com/networking/WLAN/profile/v1\"");
    xml.Element("name", settings.name);
    WriteNetwork(xml, settings);
    xml.Element("connectionType", settings.bssType == 2 ? "IBSS" : "ESS");
    xml.Element("connectionMode", settings.mode);
    WriteSecurity(xml, settings);
    return xml.Finish();
}

} // namespace calvix::simulation
