#include "forms/address_text.h"
#include "forms/hex_text.h"
#include "forms/utf8.h"
#include "import/capture_encoding.h"
#include "import/capture_values.h"
#include "import/read_capture.h"
#include "output/text_forms.h"

#include <algorithm>
#include <optional>

namespace calvix::host
{

namespace
{

using Cells = std::vector<std::string>;

/// More than nmcli has.
constexpr std::size_t kMostColumns = 64;

/// One access point of a list.
struct ValueRow
{
    std::size_t line = 0;
    Cells cells; ///< without the blanks around them
};

struct ValueTable
{
    Cells names; ///< of the columns, in English; empty: not known
    std::vector<ValueRow> rows;
};

Cells Split(std::string_view text, char separator)
{
    Cells cells(1);
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\\' && i + 1 < text.size()) // "02\:00"
            cells.back() += text[++i];
        else if (text[i] == separator)
            cells.emplace_back();
        else
            cells.back() += text[i];
    for (std::string& cell : cells)
        cell = std::string(Trim(cell));
    return cells;
}

bool HasAddress(const ValueRow& row)
{
    return std::any_of(row.cells.begin(), row.cells.end(),
                       [](const std::string& cell) { return forms::AddressFromText(cell).has_value(); });
}

/// What nmcli prints unless it is asked for something else.
Cells OwnColumns()
{
    return Split("IN-USE:BSSID:SSID:MODE:CHAN:RATE:SIGNAL:BARS:SECURITY", ':');
}

/// Values do not say what they are. The frequency sets the columns that we ask for apart from nmcli's own.
Cells ColumnsOfValues(const std::vector<ValueRow>& rows)
{
    constexpr std::size_t kFrequency = 5;
    const Cells withFlags = Split("IN-USE:BSSID:SSID:MODE:CHAN:FREQ:RATE:SIGNAL:SECURITY:WPA-FLAGS:RSN-FLAGS", ':');
    for (const ValueRow& row : rows)
    {
        const std::size_t count = row.cells.size();
        const bool hasFrequency = count > kFrequency && row.cells[kFrequency].ends_with(" MHz");
        if (hasFrequency && (count == withFlags.size() || count == withFlags.size() - 2))
            return Cells(withFlags.begin(), withFlags.begin() + static_cast<std::ptrdiff_t>(count));
        if (!hasFrequency && count == OwnColumns().size() && forms::AddressFromText(row.cells[1]))
            return OwnColumns();
    }
    return {};
}

std::optional<ValueTable> ValuesIn(std::string_view text)
{
    ValueTable table;
    const std::vector<std::string_view> lines = LinesOf(text);
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (!Trim(lines[i]).empty())
            table.rows.push_back({i + 1, Split(lines[i], ':')});
    const auto count = std::count_if(table.rows.begin(), table.rows.end(),
                                     [](const ValueRow& row) { return row.cells.size() >= 3 && HasAddress(row); });
    // One line may be damaged, or the last one cut off.
    if (count == 0 || static_cast<std::size_t>(count) * 2 < table.rows.size())
        return std::nullopt;
    table.names = ColumnsOfValues(table.rows);
    return table;
}

/// Where the labels of a table begin, by columns on a screen, where some characters are two wide. Labels stand two blanks
/// apart at least, and may have single ones within.
std::vector<std::size_t> LabelStarts(std::string_view header)
{
    std::vector<std::size_t> starts;
    for (std::size_t at = header.find_first_not_of(' '); at < header.size() && starts.size() <= kMostColumns;)
    {
        starts.push_back(DisplayWidth(header.substr(0, at)));
        at = header.find_first_not_of(' ', std::min(header.find("  ", at), header.size()));
    }
    return starts;
}

Cells CutAt(std::string_view line, const std::vector<std::size_t>& starts)
{
    Cells cells;
    std::size_t end = 0;
    std::size_t width = 0;
    for (std::size_t i = 1; i <= starts.size(); ++i)
    {
        const std::size_t begin = end;
        while (end < line.size() && (i == starts.size() || width < starts[i]))
        {
            const std::size_t letter = end;
            forms::NextCharacter(line, end);
            width += DisplayWidth(line.substr(letter, end - letter));
        }
        cells.emplace_back(Trim(line.substr(begin, end - begin)));
    }
    return cells;
}

std::optional<ValueTable> TableIn(std::string_view text)
{
    ValueTable table;
    std::vector<std::size_t> starts;
    std::string_view header;
    const std::vector<std::string_view> lines = LinesOf(text);
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (Trim(lines[i]).empty() || Trim(lines[i]) == Trim(header))
            continue;
        else if (!starts.empty())
            table.rows.push_back({i + 1, CutAt(lines[i], starts)});
        else if (header = lines[i], starts = LabelStarts(header); starts.size() < 3 || starts.size() > kMostColumns)
            return std::nullopt;
    if (std::none_of(table.rows.begin(), table.rows.end(), HasAddress))
        return std::nullopt;
    table.names = CutAt(header, starts);
    // SSID and BSSID are the same in every language; the others may be translated.
    const bool isTranslated = std::find(table.names.begin(), table.names.end(), "SECURITY") == table.names.end();
    if (isTranslated && starts.size() == OwnColumns().size())
        table.names = OwnColumns();
    return table;
}

std::optional<ValueTable> ListIn(std::string_view text)
{
    std::optional<ValueTable> table = TableIn(text);
    return table ? table : ValuesIn(text);
}

class NmcliReader
{
public:
    NmcliReader(NetworksCapture& capture, const ValueTable& table) : m_capture(capture), m_table(table) {}

    void Read()
    {
        CheckColumns();
        for (const ValueRow& row : m_table.rows)
            m_capture.OrWarn("the access point is left out", [&] { ReadRow(row); });
    }

private:
    bool Has(std::string_view name) const
    {
        return std::find(m_table.names.begin(), m_table.names.end(), name) != m_table.names.end();
    }

    void CheckColumns()
    {
        const std::size_t line = m_table.rows.front().line;
        const std::string remedy = "capture with \"" + std::string(kNmcliCommand) + "\"";
        if (m_table.names.empty())
            throw LineError(line, "the columns of this list are not known: " + remedy);
        for (const char* name : {"BSSID", "SSID", "SIGNAL", "SECURITY"})
            if (!Has(name))
                throw LineError(line, "this list has no column " + std::string(name) + ": " + remedy);
        if (!Has("CHAN") && !Has("FREQ"))
            throw LineError(line, "this list has neither channels nor frequencies: " + remedy);
        m_capture.Warn(line, std::string("nmcli does not print PHY types, so they are guessed from bands and rates") +
                                 (Has("RSN-FLAGS") ? "" : ", nor ciphers: AES is assumed, and TKIP for WPA1 alone"));
        if (!Has("FREQ"))
            m_capture.Warn(
                line, "channels are assumed to be those of 2.4 and 5 GHz: only frequencies identify those of 6 GHz");
    }

    /// Empty where there is no such column.
    std::string Cell(const ValueRow& row, std::string_view name) const
    {
        const Cells& names = m_table.names;
        const auto found = std::find(names.begin(), names.end(), name);
        return found == names.end() ? "" : row.cells[static_cast<std::size_t>(found - names.begin())];
    }

    void ReadRow(const ValueRow& row)
    {
        if (row.cells.size() != m_table.names.size())
            throw LineError(row.line, "this row has " + std::to_string(row.cells.size()) + " values in place of " +
                                          std::to_string(m_table.names.size()));
        simulation::AccessPoint accessPoint;
        const auto address = forms::AddressFromText(Cell(row, "BSSID"));
        const int signal = WholeNumber(Cell(row, "SIGNAL"));
        if (!address)
            throw LineError(row.line, "\"" + Cell(row, "BSSID") + "\" is not an address of six bytes");
        if (signal < 0 || signal > 100)
            throw LineError(row.line, "\"" + Cell(row, "SIGNAL") + "\" is not a percentage from 0 to 100");
        accessPoint.bssid = *address;
        accessPoint.rssi = -100 + signal * 60 / 100; // 100 % is -40 dBm, and 0 % is -100 dBm
        accessPoint.frequencyKhz = Frequency(row);
        accessPoint.phyType = PhyTypeOf(row, accessPoint.frequencyKhz);
        accessPoint.ssid = Ssid(row);
        accessPoint.hidden = accessPoint.ssid.empty();
        accessPoint.bssType = SameButForCase(Cell(row, "MODE").substr(0, 2), "ad") ? 2 : 1;
        SetSecurity(row, accessPoint);
        m_capture.accessPoints.push_back(accessPoint);
        m_capture.AddAdapterName(Cell(row, "DEVICE"));
        // Old versions call the first column "*".
        if (Cell(row, "IN-USE") == "*" || Cell(row, "*") == "*" || Cell(row, "ACTIVE") == "yes")
            m_capture.AddConnection(accessPoint);
    }

    std::uint32_t Frequency(const ValueRow& row) const
    {
        const std::string text = Cell(row, "FREQ");
        const std::uint32_t frequency = FrequencyFromMegahertz(text);
        if (!text.empty() && frequency == 0)
            throw LineError(row.line, "\"" + text + "\" is not a frequency of a channel");
        if (!text.empty())
            return frequency;
        if (const auto likely = CapturedFrequency("", WholeNumber(Cell(row, "CHAN"))))
            return *likely;
        throw LineError(row.line, "\"" + Cell(row, "CHAN") + "\" is not a channel of 2.4 or 5 GHz");
    }

    std::uint32_t PhyTypeOf(const ValueRow& row, std::uint32_t frequencyKhz) const
    {
        const int rate = FirstNumber(Cell(row, "RATE"));
        if (frequencyKhz > 5900000 && frequencyKhz < 7200000)
            return 10;
        if ((rate >= 0 && rate <= 54) || frequencyKhz >= 7200000)
            return OldPhyType(frequencyKhz, rate);
        return frequencyKhz >= 3000000 && rate > 300 ? 8 : 7;
    }

    /// The bytes in hexadecimal where they are printed: the name is UTF-8 only where the SSID is.
    simulation::Bytes Ssid(const ValueRow& row)
    {
        const std::string name = Cell(row, "SSID") == "--" ? "" : Cell(row, "SSID");
        const auto bytes = forms::BytesFromHex(Cell(row, "SSID-HEX")).value_or(simulation::Bytes());
        if (!bytes.empty())
            return host::Ssid(std::string(bytes.begin(), bytes.end()), row.line);
        WarnOfMisread(name, row.line, m_capture);
        return host::Ssid(name, row.line);
    }

    void SetSecurity(const ValueRow& row, simulation::AccessPoint& accessPoint)
    {
        struct Security
        {
            std::string_view word;
            const char* personal;
            const char* enterprise;
            const char* cipher; ///< as long as no flags say otherwise
        };
        constexpr Security kSecurities[] = {
            {"WPA3", "WPA3SAE", "WPA3ENT", "AES"}, {"WPA2", "WPA2PSK", "WPA2", "AES"}, {"OWE", "OWE", "OWE", "AES"},
            {"WPA1", "WPAPSK", "WPA", "TKIP"},     {"WPA", "WPAPSK", "WPA", "TKIP"},   {"WEP", "open", "open", "WEP"},
            {"OWE-TM", "open", "open", "none"},    {"--", "open", "open", "none"},     {"", "open", "open", "none"}};
        const std::string cell = Cell(row, "SECURITY");
        const auto* const best = std::find_if(std::begin(kSecurities), std::end(kSecurities),
                                              [&](const Security& each) { return HasWord(cell, each.word); });
        if (best == std::end(kSecurities))
            throw LineError(row.line, "\"" + cell + "\" is not a known security");
        const bool isEnterprise = HasWord(cell, "802.1X") || HasWord(cell, "802.1x");
        accessPoint.authentication = isEnterprise ? best->enterprise : best->personal;
        accessPoint.encryption = best->cipher;
        SetCipher(Cell(row, "RSN-FLAGS") + " " + Cell(row, "WPA-FLAGS"), accessPoint);
        if (HasWord(cell, "WPA3") && HasWord(cell, "WPA2"))
            m_capture.Warn(row.line, "the access point " + forms::AddressText(accessPoint.bssid) +
                                         " accepts both WPA2 and WPA3; the scenario has WPA3");
    }

    /// "pair_tkip pair_ccmp group_tkip psk"
    static void SetCipher(const std::string& flags, simulation::AccessPoint& accessPoint)
    {
        constexpr std::pair<std::string_view, const char*> kCiphers[] = {
            {"pair_ccmp", "AES"}, {"pair_tkip", "TKIP"}, {"pair_wep104", "WEP"}, {"pair_wep40", "WEP"}};
        for (const auto& [flag, cipher] : kCiphers)
            if (HasWord(flags, flag))
                return void(accessPoint.encryption = cipher);
    }

    NetworksCapture& m_capture;
    const ValueTable& m_table;
};

} // namespace

bool ReadNmcliList(std::string_view text, NetworksCapture& capture)
{
    const std::optional<ValueTable> table = ListIn(text);
    if (table)
        NmcliReader(capture, *table).Read();
    return table.has_value();
}

} // namespace calvix::host
