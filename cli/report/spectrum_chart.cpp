#include "report/spectrum_chart.h"

#include "output/dot_canvas.h"
#include "output/table.h"
#include "output/text_forms.h"
#include "report/html_text.h"
#include "report/spectrum.h"

#include <algorithm>
#include <cmath>

namespace calvix::host
{

namespace
{

constexpr int kChartColumns = 72;
constexpr int kChartRows = 10;
constexpr int kMarginColumns = 6; ///< for the dBm

/// The letter of an access point: what is beyond the alphabet shares a sign.
char LetterOf(const AirAccessPoint& point)
{
    const unsigned place = point.number - 1;
    if (place < 26)
        return static_cast<char>('A' + place);
    return place < 52 ? static_cast<char>('a' + (place - 26)) : '+';
}

int DotX(const SpectrumBand& band, double mhz)
{
    const double part = (mhz - band.firstMhz) / (band.lastMhz - band.firstMhz);
    return static_cast<int>(std::lround(part * (kChartColumns * 2 - 1)));
}

int DotY(double dbm)
{
    const double shown = std::clamp(dbm, static_cast<double>(kWeakestShown), static_cast<double>(kStrongestShown));
    const double part = (static_cast<double>(kStrongestShown) - shown) / (kStrongestShown - kWeakestShown);
    return static_cast<int>(std::lround(part * (kChartRows * 4 - 1)));
}

void DrawArch(DotCanvas& canvas, const SpectrumBand& band, const AirAccessPoint& point)
{
    const double centre = static_cast<double>(point.beacon.centreKhz) / 1000;
    const int left = DotX(band, centre - point.beacon.widthMhz / 2.0);
    const int right = DotX(band, centre + point.beacon.widthMhz / 2.0);
    const double half = (std::max)((right - left) / 2.0, 1.0);
    int before = canvas.dotRows() - 1;
    for (int x = left; x <= right; ++x)
    {
        const double across = (x - left - half) / half;
        const double height = 1 - std::pow(std::fabs(across), 5.0);
        const int y =
            DotY(static_cast<double>(kWeakestShown) + height * static_cast<double>(point.facts.rssi - kWeakestShown));
        // The sides are steep: no gap between one column and the next.
        for (int between = (std::min)(y, before); between <= (std::max)(y, before); ++between)
            canvas.Dot(x, between == before ? y : between);
        before = y;
    }
    for (int y = before; y < canvas.dotRows(); ++y)
        canvas.Dot(right, y);
}

void DrawLetter(DotCanvas& canvas, const SpectrumBand& band, const AirAccessPoint& point)
{
    const int column =
        std::clamp(DotX(band, static_cast<double>(point.beacon.centreKhz) / 1000) / 2, 0, kChartColumns - 1);
    const int row = DotY(static_cast<double>(point.facts.rssi)) / 4;
    // Those with the same channel and signal are drawn side by side.
    for (const int beside : {0, 2, -2, 4, -4, 1, -1, 3, -3})
    {
        if (canvas.HasLetter(column + beside, row))
            continue;
        return canvas.Letter(column + beside, row, LetterOf(point));
    }
}

std::string ChannelNumbers(const SpectrumBand& band)
{
    std::string line(kChartColumns, ' ');
    std::size_t free = 0;
    for (const unsigned channel : band.channels)
    {
        const std::string text = std::to_string(channel);
        const int middle = DotX(band, CentreMhz(band, channel)) / 2 - static_cast<int>(text.size() / 2);
        const auto begin = static_cast<std::size_t>((std::max)(middle, 0));
        if (begin < free || begin + text.size() > line.size())
            continue;
        line.replace(begin, text.size(), text);
        free = begin + text.size() + 1;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

std::string Margin(int row)
{
    const long dbm = kStrongestShown + (kWeakestShown - kStrongestShown) * row / kChartRows;
    const std::string text = row % 2 == 0 ? std::to_string(dbm) : std::string();
    return std::string(kMarginColumns - 1 - text.size(), ' ') + text + " ";
}

void PrintBand(Output& output, const SpectrumBand& band, const std::vector<const AirAccessPoint*>& points)
{
    const bool unicode = output.terminal().isTerminal;
    DotCanvas canvas(kChartColumns, kChartRows);
    for (const AirAccessPoint* point : points)
        DrawArch(canvas, band, *point);
    for (const AirAccessPoint* point : points)
        DrawLetter(canvas, band, *point);
    std::ostream& out = output.out();
    out << Toned(band.name, Tone::strong, output.terminal()) << ", dBm by channel\n";
    for (int row = 0; row < kChartRows; ++row)
        out << Margin(row) << (unicode ? "│" : "|") << canvas.Line(row, unicode) << '\n';
    out << std::string(kMarginColumns - 5, ' ') << kWeakestShown << ' ' << (unicode ? "└" : "+");
    for (int column = 0; column < kChartColumns; ++column)
        out << (unicode ? "─" : "-");
    out << '\n' << std::string(kMarginColumns + 1, ' ') << ChannelNumbers(band) << "\n\n";
}

void PrintLetters(Output& output, const std::vector<AirAccessPoint>& accessPoints)
{
    Table table({{""},
                 {"SSID"},
                 {"dBm", Align::right},
                 {"Ch", Align::right},
                 {"MHz", Align::right},
                 {"Security"},
                 {"BSSID"},
                 {""}});
    for (const AirAccessPoint& point : accessPoints)
    {
        const bool hidden = point.facts.ssid.hex.empty();
        table.AddRow({Cell(std::string(1, LetterOf(point)), Tone::strong),
                      Cell(SsidName(point.facts.ssid), hidden ? Tone::faint : Tone::plain),
                      std::to_string(point.facts.rssi), std::to_string(point.facts.channel),
                      std::to_string(point.beacon.widthMhz), point.beacon.security, point.facts.bssid,
                      Cell(point.inUse ? "in use" : "", Tone::good)});
    }
    table.Print(output.out(), output.terminal());
}

} // namespace

void PrintSpectrum(Output& output, const std::vector<AirAccessPoint>& accessPoints)
{
    std::string silent;
    for (const SpectrumBand& band : SpectrumBands())
    {
        const std::vector<const AirAccessPoint*> points = InBand(accessPoints, band);
        if (!points.empty())
            PrintBand(output, band, points);
        else
            silent += (silent.empty() ? "Nothing is heard in " : ", ") + std::string(band.name);
    }
    PrintLetters(output, accessPoints);
    if (!silent.empty())
        output.out() << '\n' << silent << ".\n";
}

} // namespace calvix::host
