#include "methods/method.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <ostream>
#include <stdexcept>

namespace calvix::test::methods
{

const Method& FindMethod(std::string_view name)
{
    for (const Method& method : EveryMethod())
        if (method.Is(name))
            return method;
    throw std::logic_error("no such method: " + std::string(name));
}

std::vector<std::string> ExportedMethods()
{
    std::ifstream list(CALVIX_SOURCE_DIR "/tests/binary/exports.txt");
    std::vector<std::string> methods;
    for (std::string line; std::getline(list, line);)
        methods.push_back(line);
    return methods;
}

std::string TestName(const Method& method, std::size_t number)
{
    std::string name = method.Name();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char letter) { return std::isalnum(letter) == 0; }, 'X');
    return name + "_" + std::to_string(number);
}

void PrintTo(const Method& method, std::ostream* stream)
{
    *stream << method.declaration;
}

std::string BytesText(const void* bytes, std::size_t size)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (std::size_t index = 0; index < size; ++index)
    {
        const unsigned char byte = static_cast<const unsigned char*>(bytes)[index];
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0xF];
    }
    return text;
}

namespace
{

std::string OutputText(const Parameter& parameter, const Argument& argument)
{
    if (argument.pointer == nullptr)
        return "null";
    if (parameter.role == Role::list)
        return parameter.list->entries(argument.pointer);
    return IsUntouched(argument) ? kUntouched : BytesText(argument.pointer, argument.size);
}

} // namespace

/// Texts that the method has written need no terminator after their buffer.
std::string Call::TextOfResult() const
{
    if (m_result.text == nullptr)
        return {};
    for (const Argument& argument : m_arguments)
        if (argument.pointer == m_result.text)
            return {m_result.text, std::find(m_result.text, m_result.text + argument.size, '\0')};
    return m_result.text;
}

Outcome Call::Outcome() const
{
    methods::Outcome outcome{m_result.code, TextOfResult()};
    for (std::size_t place = 0; place < m_arguments.size(); ++place)
        if (m_method.parameters[place].IsOutput())
            outcome.outputs.push_back(OutputText(m_method.parameters[place], m_arguments[place]));
    return outcome;
}

} // namespace calvix::test::methods
