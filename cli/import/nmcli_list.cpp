#include "import/nmcli_list.h"

#include "forms/address_text.h"
#include "forms/hex_text.h"
#include "import/capture_text.h"
#include "import/channel_frequency.h"
#include "import/column_roles.h"
#include "import/heard_access_point.h"
#include "import/misread_text.h"
#include "import/value_table.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr std::string_view kRemedy =
    "capture with \"nmcli -t -f IN-USE,BSSID,SSID,MODE,CHAN,FREQ,RATE,SIGNAL,SECURITY dev wifi list\"";

std::optional<ValueTable> TableOf(std::string_view text)
{
    if (std::optional<ValueTable> table = AlignedTable(text))
        return table;
    return ColonTable(text);
}

bool HasToken(const std::string& text, std::string_view token)
{
    return (" " + text + " ").find(" " + std::string(token) + " ") != std::string::npos;
}

class NmcliReader
{
public:
    NmcliReader(NetworksCapture& capture, const ValueTable& table, const std::vector<std::string>& names)
        : m_capture(capture), m_table(table), m_columns(ListColumnsOf(table, names))
    {
    }

    void Read()
    {
        CheckColumns();
        for (const ValueRow& row : m_table.rows)
            if (row.cells.size() != m_columns.size())
                Report(row.line, "this row has " + std::to_string(row.cells.size()) + " values in place of " +
                                     std::to_string(m_columns.size()) + " and is left out");
            else
                ReadRow(row);
    }

private:
    void Report(std::size_t line, const std::string& what)
    {
        m_capture.warnings.push_back(m_capture.source + ":" + std::to_string(line) + ": " + what);
    }

    bool Has(ListColumn column) const
    {
        return std::find(m_columns.begin(), m_columns.end(), column) != m_columns.end();
    }

    void CheckColumns()
    {
        const std::size_t line = m_table.rows.front().line;
        if (m_columns.empty())
            throw LineError(line, "the columns of this list are not known: name them with --columns, or " +
                                      std::string(kRemedy));
        const std::pair<bool, const char*> needed[] = {
            {Has(ListColumn::bssid), "addresses"},
            {Has(ListColumn::ssid) || Has(ListColumn::ssidHex), "names"},
            {Has(ListColumn::signal), "signal strengths"},
            {Has(ListColumn::channel) || Has(ListColumn::frequency), "channels"},
            {Has(ListColumn::security), "security"}};
        for (const auto& [has, what] : needed)
            if (!has)
                throw LineError(line,
                                "no column is known to hold the " + std::string(what) + ": " + std::string(kRemedy));
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            if (m_columns[i] == ListColumn::unknown)
                Report(line, "column " + std::to_string(i + 1) +
                                 (i < m_table.labels.size() ? ", \"" + m_table.labels[i] + "\"," : "") +
                                 " is not understood and left out");
        const bool hasFlags = Has(ListColumn::rsnFlags);
        Report(line, std::string("nmcli does not tell PHY types, which are guessed from bands and rates") +
                         (hasFlags ? "" : ", nor ciphers, which are taken to be AES, and TKIP for WPA1 alone"));
        if (!Has(ListColumn::frequency))
            Report(line, "channels are taken for those of 2.4 and 5 GHz: only frequencies tell those of 6 GHz");
    }

    /// Empty where there is no such column.
    std::string Cell(const ValueRow& row, ListColumn column) const
    {
        const auto found = std::find(m_columns.begin(), m_columns.end(), column);
        if (found == m_columns.end())
            return {};
        return row.cells[static_cast<std::size_t>(found - m_columns.begin())];
    }

    void ReadRow(const ValueRow& row)
    {
        try
        {
            const simulation::AccessPoint accessPoint = Interpret(row);
            AddHeard(m_capture, accessPoint);
            if (Cell(row, ListColumn::inUse) == "*" || Cell(row, ListColumn::active) == "yes")
                AddConnection(m_capture, accessPoint);
            AddAdapter(Cell(row, ListColumn::device));
        }
        catch (const LineError& error)
        {
            Report(error.line(), std::string(error.what()) + "; the access point is left out");
        }
    }

    void AddAdapter(const std::string& name)
    {
        std::vector<std::string>& names = m_capture.adapterNames;
        if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }

    simulation::AccessPoint Interpret(const ValueRow& row)
    {
        simulation::AccessPoint accessPoint;
        const auto address = forms::AddressFromText(Cell(row, ListColumn::bssid));
        const int signal = WholeNumber(Cell(row, ListColumn::signal));
        if (!address)
            throw LineError(row.line, "\"" + Cell(row, ListColumn::bssid) + "\" is no address of six bytes");
        if (signal < 0 || signal > 100)
            throw LineError(row.line, "\"" + Cell(row, ListColumn::signal) + "\" is no percentage from 0 to 100");
        accessPoint.bssid = *address;
        accessPoint.rssi = StrengthFromPercentage(signal);
        accessPoint.frequencyKhz = Frequency(row);
        accessPoint.phyType = PhyTypeOf(row, accessPoint.frequencyKhz);
        accessPoint.ssid = Ssid(row);
        accessPoint.hidden = accessPoint.ssid.empty();
        const std::string mode = Cell(row, ListColumn::mode);
        accessPoint.bssType = SameWord(mode.substr(0, 2), "ad") ? 2 : 1;
        SetSecurity(row, accessPoint);
        return accessPoint;
    }

    std::uint32_t Frequency(const ValueRow& row) const
    {
        const std::string cell = Cell(row, ListColumn::frequency);
        if (!cell.empty())
        {
            const std::uint32_t frequency = FrequencyFromMegahertz(cell.substr(0, cell.find(' ')));
            if (frequency == 0)
                throw LineError(row.line, "\"" + cell + "\" is no frequency of a channel");
            return frequency;
        }
        const int channel = std::max(WholeNumber(Cell(row, ListColumn::channel)), 0);
        const auto number = static_cast<std::uint32_t>(channel);
        const std::optional<std::uint32_t> frequency = CapturedFrequency(BandOfChannel(number), number);
        if (!frequency)
            throw LineError(row.line, "\"" + Cell(row, ListColumn::channel) + "\" is no channel of 2.4 or 5 GHz");
        return *frequency;
    }

    std::uint32_t PhyTypeOf(const ValueRow& row, std::uint32_t frequencyKhz) const
    {
        const int rate = FirstNumber(Cell(row, ListColumn::rate));
        if (frequencyKhz > 5900000 && frequencyKhz < 7200000)
            return 10;
        if ((rate >= 0 && rate <= 54) || frequencyKhz >= 7200000)
            return OldPhyType(frequencyKhz, rate);
        return frequencyKhz >= 3000000 && rate > 300 ? 8 : 7;
    }

    /// The bytes in hexadecimal where they are told: the name is UTF-8 only where the SSID is.
    simulation::Bytes Ssid(const ValueRow& row)
    {
        const std::string hex = Cell(row, ListColumn::ssidHex);
        std::string name = Cell(row, ListColumn::ssid);
        if (std::optional<simulation::Bytes> bytes = forms::BytesFromHex(hex); bytes && !bytes->empty())
            return bytes->size() <= 32 ? *bytes : throw LineError(row.line, "this SSID is longer than 32 bytes");
        name = name == "--" ? "" : name;
        if (name.size() > 32)
            throw LineError(row.line, "this SSID is longer than 32 bytes");
        ReportMisread(name, row.line, [this](std::size_t line, const std::string& what) { Report(line, what); });
        return simulation::Bytes(name.begin(), name.end());
    }

    void SetSecurity(const ValueRow& row, simulation::AccessPoint& accessPoint)
    {
        const std::string cell = Cell(row, ListColumn::security);
        const bool enterprise = HasToken(cell, "802.1X") || HasToken(cell, "802.1x");
        const bool wpa3 = HasToken(cell, "WPA3");
        const bool wpa2 = HasToken(cell, "WPA2");
        accessPoint.encryption = "AES";
        if (wpa3)
            accessPoint.authentication = enterprise ? "WPA3ENT" : "WPA3SAE";
        else if (wpa2)
            accessPoint.authentication = enterprise ? "WPA2" : "WPA2PSK";
        else if (HasToken(cell, "OWE"))
            accessPoint.authentication = "OWE";
        else
            SetOldSecurity(row.line, cell, enterprise, accessPoint);
        SetCipher(Cell(row, ListColumn::rsnFlags) + " " + Cell(row, ListColumn::wpaFlags), accessPoint);
        if (wpa3 && wpa2)
            Report(row.line, "the access point " + forms::AddressText(accessPoint.bssid) +
                                 " takes both WPA2 and WPA3; the scenario has WPA3");
    }

    /// "pair_tkip pair_ccmp group_tkip psk"
    static void SetCipher(const std::string& flags, simulation::AccessPoint& accessPoint)
    {
        constexpr std::pair<std::string_view, const char*> kCiphers[] = {
            {"pair_ccmp", "AES"}, {"pair_tkip", "TKIP"}, {"pair_wep104", "WEP"}, {"pair_wep40", "WEP"}};
        for (const auto& [flag, cipher] : kCiphers)
            if (HasToken(flags, flag))
                return void(accessPoint.encryption = cipher);
    }

    static void
    SetOldSecurity(std::size_t line, const std::string& cell, bool enterprise, simulation::AccessPoint& accessPoint)
    {
        if (HasToken(cell, "WPA1") || HasToken(cell, "WPA"))
        {
            accessPoint.authentication = enterprise ? "WPA" : "WPAPSK";
            accessPoint.encryption = "TKIP";
            return;
        }
        const bool open = cell.empty() || cell == "--" || cell == "OWE-TM";
        if (!open && cell != "WEP")
            throw LineError(line, "\"" + cell + "\" is no known security");
        accessPoint.authentication = "open";
        accessPoint.encryption = open ? "none" : "WEP";
    }

    NetworksCapture& m_capture;
    const ValueTable& m_table;
    std::vector<ListColumn> m_columns;
};

} // namespace

bool LooksLikeNmcliList(std::string_view text)
{
    return TableOf(text).has_value();
}

NetworksCapture
ParseNmcliList(std::string_view text, const std::string& source, const std::vector<std::string>& columns)
{
    return ReadingFrom(source,
                       [&]
                       {
                           const std::optional<ValueTable> table = TableOf(text);
                           if (!table)
                               throw LineError(1, "this is no output of \"nmcli dev wifi list\"");
                           NetworksCapture capture;
                           capture.source = source;
                           NmcliReader(capture, *table, columns).Read();
                           return capture;
                       });
}

} // namespace calvix::host
