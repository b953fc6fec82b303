#include "core/simple_format.h"

#include <charconv>
#include <cstring>
#include <string_view>

namespace calvix
{

namespace
{

/// Takes what fits and counts the rest.
class BoundedText
{
public:
    BoundedText(char* buffer, std::size_t capacity) : m_buffer(buffer), m_room(capacity - 1) {}

    void Append(std::string_view text)
    {
        if (m_length < m_room)
            text.copy(m_buffer + m_length, m_room - m_length);
        m_length += text.size();
    }

    std::size_t Finish()
    {
        m_buffer[m_length < m_room ? m_length : m_room] = '\0';
        return m_length;
    }

private:
    char* m_buffer;
    std::size_t m_room;
    std::size_t m_length = 0;
};

/// A conversion of numbers: what stands between the '%' and the end of it.
struct NumberForm
{
    std::size_t width = 0; ///< filled with zeros
    bool isLong = false;
    char kind = 0;
};

/// Reads the form and moves behind it.
NumberForm ReadForm(const char*& format)
{
    NumberForm form;
    if (format[0] == '0' && format[1] >= '1' && format[1] <= '9')
    {
        form.width = static_cast<std::size_t>(format[1] - '0');
        format += 2;
    }
    form.isLong = *format == 'l';
    if (form.isLong)
        ++format;
    form.kind = *format++;
    return form;
}

template <typename Number>
std::string_view Digits(Number number, char kind, char (&digits)[24])
{
    const int base = kind == 'x' || kind == 'X' ? 16 : 10;
    char* const end = std::to_chars(digits, digits + sizeof(digits), number, base).ptr;
    if (kind == 'X')
    {
        for (char* digit = digits; digit != end; ++digit)
        {
            if (*digit >= 'a')
                *digit = static_cast<char>(*digit - 'a' + 'A');
        }
    }
    return {digits, static_cast<std::size_t>(end - digits)};
}

/// Takes the number from the values. A number with a sign and a width is left to the C runtime.
bool AppendNumber(BoundedText& text, const NumberForm& form, std::va_list& values)
{
    char room[24];
    std::string_view digits;
    if (form.kind == 'd' || form.kind == 'i')
    {
        if (form.width != 0)
            return false;
        digits = form.isLong ? Digits(va_arg(values, long), 'd', room) : Digits(va_arg(values, int), 'd', room);
    }
    else if (form.kind == 'u' || form.kind == 'x' || form.kind == 'X')
        digits = form.isLong ? Digits(va_arg(values, unsigned long), form.kind, room)
                             : Digits(va_arg(values, unsigned), form.kind, room);
    else
        return false;
    if (digits.size() < form.width)
        text.Append(std::string_view("000000000").substr(0, form.width - digits.size()));
    text.Append(digits);
    return true;
}

bool AppendText(BoundedText& text, const char* value)
{
    if (value == nullptr)
        return false;
    text.Append(value);
    return true;
}

bool AppendCut(BoundedText& text, int precision, const char* value)
{
    if (value == nullptr || precision < 0)
        return false;
    const std::size_t most = static_cast<std::size_t>(precision);
    const void* const end = std::memchr(value, '\0', most);
    text.Append({value, end != nullptr ? static_cast<std::size_t>(static_cast<const char*>(end) - value) : most});
    return true;
}

/// One conversion; `format` stands behind the '%' and moves behind the conversion.
bool AppendConversion(BoundedText& text, const char*& format, std::va_list& values)
{
    if (*format == 's')
    {
        ++format;
        return AppendText(text, va_arg(values, const char*));
    }
    if (std::strncmp(format, ".*s", 3) == 0)
    {
        format += 3;
        const int precision = va_arg(values, int);
        return AppendCut(text, precision, va_arg(values, const char*));
    }
    return AppendNumber(text, ReadForm(format), values);
}

} // namespace

bool FormatSimply(char* buffer, std::size_t capacity, const char* format, std::va_list values, std::size_t& length)
{
    BoundedText text(buffer, capacity);
    std::va_list rest;
    va_copy(rest, values);
    bool known = true;
    while (known)
    {
        const char* const conversion = std::strchr(format, '%');
        if (conversion == nullptr)
        {
            text.Append(format);
            break;
        }
        text.Append({format, static_cast<std::size_t>(conversion - format)});
        format = conversion + 1;
        known = AppendConversion(text, format, rest);
    }
    va_end(rest);
    length = text.Finish();
    return known;
}

} // namespace calvix
