#include "forms/hex_text.h"
#include "forms/utf8.h"
#include "forms/xml_text.h"
#include "simulation/scenario.h"
#include "simulation/security_suite.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

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
        Line("<" + name + ">" + forms::EscapedXml(text) + "</" + name + ">");
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
    return forms::IsUtf8(text) &&
           std::all_of(text.begin(), text.end(),
                       [](char character) { return static_cast<unsigned char>(character) >= 0x20; });
}

void WriteNetwork(XmlWriter& xml, const ProfileSettings& settings)
{
    xml.Open("SSIDConfig");
    xml.Open("SSID");
    xml.Element("hex", forms::HexText(settings.ssid));
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
    const bool isKey = settings.encryption == "WEP" || (settings.key.size() == 64 && forms::BytesFromHex(settings.key));
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

std::string ProfileNameFor(const Bytes& ssid)
{
    const std::string text(ssid.begin(), ssid.end());
    return IsXmlText(text) ? text : forms::HexText(ssid);
}

} // namespace calvix::simulation
