#include <calvix/wireless_manage.h>

#include <algorithm>
#include <cstring>

namespace
{

constexpr char kDigits[] = "0123456789ABCDEF";

/// Value of a hexadecimal digit. Deliberate: what is no digit is not rejected but gives whatever this arithmetic
/// gives, modulo 256.
unsigned char DigitValue(char digit)
{
    const int character = static_cast<signed char>(digit); // NOLINT(bugprone-signed-char-misuse,cert-str34-c)
    if (character >= 'a' && character <= 'z')
        return static_cast<unsigned char>(character - 87);
    if (character >= 'A')
        return static_cast<unsigned char>(character - 55);
    return static_cast<unsigned char>(character - 48);
}

/// The byte whose digits end before `end`; the first character of a text of odd length has no high digit.
unsigned char ByteBefore(const char* text, int end)
{
    const int high = end > 1 ? DigitValue(text[end - 2]) : 0;
    return static_cast<unsigned char>(16 * high + DigitValue(text[end - 1]));
}

/// Fills the capacity with zero digits and terminates it in its last place.
void FillWithZeroDigits(char* destination, int capacity)
{
    if (capacity <= 0)
        return;
    std::memset(destination, '0', static_cast<std::size_t>(capacity));
    destination[capacity - 1] = '\0';
}

/// Writes the bytes as digits from the end of the destination backwards, over the terminator and without a new one,
/// until the bytes or the places are used up. An odd capacity's last pair has room for its low digit only.
template <typename ByteAt>
void WriteDigitsFromEnd(char* destination, int capacity, int count, ByteAt byteAt)
{
    if (count <= 0 || capacity <= 0)
        return;
    const int pairs = (std::min)(count, capacity / 2);
    char* place = destination + capacity;
    for (int index = count - 1; index >= count - pairs; --index)
    {
        const unsigned char byte = byteAt(index);
        *--place = kDigits[byte & 0x0F];
        *--place = kDigits[byte >> 4];
    }
    if (pairs < count && capacity % 2 == 1)
        destination[0] = kDigits[byteAt(count - pairs - 1) & 0x0F];
}

} // namespace

unsigned char* CWirelessManage::StringToHex(
    const char* text, int textLength, unsigned char* destination, int destinationLength, bool reversed)
{
    if (destination == nullptr || destinationLength <= 0)
        return destination;
    std::memset(destination, 0, static_cast<std::size_t>(destinationLength));
    if (text == nullptr)
        return destination;
    int written = 0;
    for (int end = textLength; end > 0 && written < destinationLength; end -= 2, ++written)
        destination[reversed ? written : destinationLength - 1 - written] = ByteBefore(text, end);
    return destination;
}

char* CWirelessManage::HexToString(
    const unsigned char* bytes, int count, char* destination, int capacity, bool fromStart)
{
    if (destination == nullptr)
        return destination;
    FillWithZeroDigits(destination, capacity);
    if (bytes == nullptr)
        return destination;
    if (!fromStart)
    {
        // Deliberate: the text fills the whole capacity, without a terminator; callers keep room beyond it.
        WriteDigitsFromEnd(destination, capacity, count, [bytes](int index) { return bytes[index]; });
        return destination;
    }
    // Deliberate: all digits are written whatever the capacity says.
    char* digit = destination;
    for (int index = 0; index < count; ++index)
    {
        *digit++ = kDigits[bytes[index] >> 4];
        *digit++ = kDigits[bytes[index] & 0x0F];
    }
    return destination;
}

unsigned char*
CWirelessManage::StringToHexString(const char* text, int textLength, unsigned char* destination, int capacity)
{
    if (destination == nullptr)
        return destination;
    char* const digits = reinterpret_cast<char*>(destination);
    FillWithZeroDigits(digits, capacity);
    if (text == nullptr)
        return destination;
    const auto sevenBits = [text](int index) { return static_cast<unsigned char>(text[index] & 0x7F); };
    WriteDigitsFromEnd(digits, capacity, textLength, sevenBits);
    return destination;
}
