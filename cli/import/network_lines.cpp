#include "import/field_roles.h"

#include "import/capture_terms.h"
#include "import/field_labels.h"

#include <algorithm>
#include <array>

namespace calvix::host
{

namespace
{

class NetworkLines
{
public:
    explicit NetworkLines(std::vector<CaptureField>& fields) : m_fields(fields) {}

    bool Recognise()
    {
        const std::size_t begin = FirstHeader();
        for (std::size_t i = 0; i < begin; ++i)
            m_fields[i].passedOver = true;
        for (std::size_t i = begin; i < m_fields.size();)
        {
            CaptureField& field = m_fields[i];
            const std::size_t end = SectionEnd(i + 1);
            field.understood = true;
            if (BeginsNetwork(field))
                Network(i + 1, end);
            else if (BeginsAccessPoint(field))
                AccessPoint(i + 1, end);
            else
                Header(field);
            i = end;
        }
        return m_foreign;
    }

private:
    /// The adapter's name and the number of its networks stand above the first network. Above them is what the terminal
    /// showed: a prompt, a command line, a code page.
    std::size_t FirstHeader()
    {
        std::size_t first = 0;
        while (first < m_fields.size() && !BeginsNetwork(m_fields[first]) && !BeginsAccessPoint(m_fields[first]))
            ++first;
        if (first < 2 || !m_fields[first - 2].hasColon || FirstNumber(FieldText(m_fields[first - 1])) < 0)
            return 0;
        m_headerLabel = m_fields[first - 2].name;
        return first - 2;
    }

    bool IsHeader(const CaptureField& field) const
    {
        return field.hasColon && (SameWord(field.name, "Interface name") || field.name == m_headerLabel);
    }

    /// What begins a section; before the first one of all, every line is for itself.
    std::size_t SectionEnd(std::size_t from) const
    {
        const bool inHeader = !BeginsNetwork(m_fields[from - 1]) && !BeginsAccessPoint(m_fields[from - 1]);
        while (!inHeader && from < m_fields.size() && !BeginsNetwork(m_fields[from]) &&
               !BeginsAccessPoint(m_fields[from]) && !IsHeader(m_fields[from]))
            ++from;
        return from;
    }

    /// The adapter's name, which is the first line of all; then how many networks there are. Some languages tell that with
    /// a colon.
    void Header(CaptureField& field)
    {
        const bool isNumber = !field.value.empty() && IsNumberList(field.value);
        if (field.hasColon && !isNumber && !field.value.empty() && (m_headerLabel.empty() || IsHeader(field)))
        {
            m_headerLabel = field.name;
            m_foreign |= host::Recognise(field, "Interface name");
        }
        else if (field.hasColon && (isNumber || FirstNumber(field.name) >= 0))
        {
            field.name = FieldText(field);
            field.hasColon = false;
        }
        else if (field.hasColon)
        {
            field.understood = HasEnglishLabel(field);
        }
    }

    void Set(CaptureField& field, const char* key) { m_foreign |= host::Recognise(field, key); }

    void Network(std::size_t begin, std::size_t end)
    {
        constexpr std::array<const char*, 3> kKeys{"Network type", "Authentication", "Encryption"};
        const auto first = m_fields.begin() + static_cast<std::ptrdiff_t>(begin);
        const auto last = m_fields.begin() + static_cast<std::ptrdiff_t>(end);
        const bool complete = end - begin == kKeys.size() &&
                              std::all_of(first, last, [](const CaptureField& field) { return field.hasColon; });
        for (std::size_t i = begin; i < end; ++i)
        {
            if (complete)
                Set(m_fields[i], kKeys[i - begin]);
            m_fields[i].understood |= HasEnglishLabel(m_fields[i]);
        }
    }

    void AccessPoint(std::size_t begin, std::size_t end)
    {
        m_place = Place::start;
        m_hasSignal = false;
        for (std::size_t i = begin; i < end; ++i)
        {
            CaptureField& field = m_fields[i];
            field.understood = HasEnglishLabel(field);
            if (field.hasColon && (field.value.empty() || field.value.starts_with(':')))
                i = Nested(i, end) - 1;
            else if (field.hasColon)
                Line(field);
        }
    }

    /// How busy the access point is, and which others stand at the same place, in lines of their own below a title.
    std::size_t Nested(std::size_t title, std::size_t end)
    {
        std::size_t i = title + 1;
        while (i < end && m_fields[i].indent > m_fields[title].indent)
        {
            m_fields[i].passedOver = true;
            m_fields[i++].understood = true;
        }
        m_fields[title].understood |= i > title + 1 || m_fields[title].value.starts_with(':');
        return i;
    }

    void Line(CaptureField& field)
    {
        if (IsPercentage(field.value) && !m_hasSignal)
        {
            m_hasSignal = true;
            Set(field, "Signal");
        }
        else if (IsRadioType(field.value))
        {
            m_place = Place::radioType;
            Set(field, "Radio type");
        }
        else if (m_place == Place::radioType && IsBand(field.value))
        {
            m_place = Place::band;
            Set(field, "Band");
        }
        else if ((m_place == Place::radioType || m_place == Place::band) && WholeNumber(field.value) >= 0)
        {
            m_place = Place::details;
            Set(field, "Channel");
        }
        else if (m_place == Place::details && IsNumberList(field.value))
        {
            field.understood = true; // rates
        }
    }

    /// What the last line of an access point was.
    enum class Place
    {
        start,
        radioType,
        band,
        details ///< from the channel on
    };

    std::vector<CaptureField>& m_fields;
    std::string m_headerLabel; ///< what this language calls the adapter
    Place m_place = Place::start;
    bool m_hasSignal = false;
    bool m_foreign = false;
};

} // namespace

bool RecogniseNetworkLines(std::vector<CaptureField>& fields)
{
    JoinBrokenLists(fields);
    return NetworkLines(fields).Recognise();
}

} // namespace calvix::host
