#pragma once

// Every method of CWirelessManage, and how it is called:
//
//     Arguments useful;
//     for (const Method& method : EveryMethod())
//     {
//         Call call(method, useful);
//         call.Make(*CWirelessManage::Get());
//         std::cout << method.declaration << ": " << call.Result().code.value_or(0) << '\n';
//     }
//
// Other arguments than useful ones are a class that derives from Arguments.

#include <calvix/wireless_manage.h>

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::test::methods
{

/// The process that CloseProcess ends, and the program that is started, and where it lies.
inline constexpr unsigned long kProcess = 4242;
inline constexpr char kProgram[] = "worker.exe";
inline constexpr char kFolder[] = "C:\\Tools\\";

/// What a parameter is for.
enum class Role
{
    adapter,
    ssid,
    name, ///< of a profile or a network
    text, ///< another text, from its row
    document,
    bytes,        ///< as many as the next parameter says, or the row
    connection,   ///< that was, to be read
    notification, ///< the same in a notification
    callback,
    context, ///< of the callback
    manager, ///< the object itself
    number,
    length,   ///< of the bytes before it
    capacity, ///< of the room before it
    record,   ///< to be filled
    list,     ///< to be filled
    room,     ///< to be filled: characters, as many as the next parameter says, or the row
    digits    ///< room for as many, or for all hexadecimal digits where the last parameter says so
};

/// How containers of one kind are made, with one empty entry and room for no more, and shown.
struct ListKind
{
    std::shared_ptr<void> (*make)();
    std::string (*entries)(const void* list);
};

struct Parameter
{
    std::string type; ///< as tests/binary/exports.txt has it
    Role role = Role::number;
    std::size_t size = 0; ///< of what it points or refers to; of a text: of a character
    const ListKind* list = nullptr;
    std::string text{};   ///< a useful one, if the row has it
    long long number = 0; ///< a useful one, or the size of the room

    bool IsPointer() const { return type.back() == '*' || role == Role::callback; }
    /// Whether the method writes to it.
    bool IsOutput() const { return role >= Role::record; }
};

/// A made argument, for one call.
struct Argument
{
    long long number = 0;
    void* pointer = nullptr;
    std::size_t size = 0; ///< of what the pointer points to
    std::shared_ptr<void> owned{};
};

/// What a method gave back.
struct Result
{
    std::optional<long long> code; ///< none where the result is no number
    const char* text = nullptr;    ///< where it is a text
};

struct Method
{
    std::string declaration; ///< as tests/binary/exports.txt has it
    std::vector<Parameter> parameters;
    std::function<Result(CWirelessManage& manager, const std::vector<Argument>& arguments)> call;

    std::string Name() const { return declaration.substr(0, declaration.find('(')); }
    /// Whether this is its name, or the beginning of its declaration as far as into the parameters.
    bool Is(std::string_view name) const
    {
        return declaration.starts_with(name) && (name.find('(') != name.npos || declaration[name.size()] == '(');
    }
};

/// Each once. A method that is missing fails the test that compares them with the exports.
const std::vector<Method>& EveryMethod();
/// The first that this is the name, or the beginning of the declaration, of.
const Method& FindMethod(std::string_view name);
/// The declarations in tests/binary/exports.txt.
std::vector<std::string> ExportedMethods();

/// The name of a test of one method, where a test program has one for each.
std::string TestName(const Method& method, std::size_t number);
/// gtest prints the parameter of a test that failed.
void PrintTo(const Method& method, std::ostream* stream);

/// Makes the arguments of calls. These are useful ones, with which the method finds something to do on the computers of
/// support/test_scenarios.h; derived classes make others.
class Arguments
{
public:
    Arguments() = default;
    virtual ~Arguments() = default;
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    /// One for each parameter. Numbers are made first: a room is as large as its capacity says.
    std::vector<Argument> For(const Method& method);

protected:
    /// Whether null is passed in the place of this pointer.
    virtual bool IsNull(const Parameter&) { return false; }
    virtual const GUID* Adapter();
    /// UTF-8, for names and texts.
    virtual std::string Text(const Parameter& parameter);
    virtual std::string Document();
    virtual DOT11_SSID Ssid();
    virtual WLAN_CONNECTION_ATTRIBUTES Connection();
    virtual long long Number(const Parameter& parameter) { return parameter.number; }
    virtual WLAN_NOTIFICATION_CALLBACK Callback();
    virtual void* Context() { return nullptr; }

private:
    Argument Make(const Parameter& parameter, std::optional<long long> count);
};

/// Useful arguments, but for one pointer of a method in the place of which null is passed.
class ArgumentsWithNull final : public Arguments
{
public:
    explicit ArgumentsWithNull(const Parameter& pointer) : m_pointer(pointer) {}

protected:
    bool IsNull(const Parameter& parameter) override { return &parameter == &m_pointer; }

private:
    const Parameter& m_pointer;
};

/// A profile's document for an open network, as a program stores it.
std::string ProfileDocument(const std::string& name, bool isAutomatic);
/// A connection with a network that has a profile of the same name.
WLAN_CONNECTION_ATTRIBUTES ConnectionWith(const std::string& name);

/// How a call ended.
struct Outcome
{
    std::optional<long long> code; ///< none where the result is no number
    std::string text{};
    std::vector<std::string> outputs{}; ///< what the method was given to fill, in the order of its parameters

    bool operator==(const Outcome&) const = default;
};

/// An output that the method did not write.
inline constexpr char kUntouched[] = "-";

bool IsUntouched(const Argument& record);
/// Bytes as an outcome shows them.
std::string BytesText(const void* bytes, std::size_t size);

/// One call of a method. Nothing but the method itself takes memory while it is made.
class Call
{
public:
    Call(const Method& method, Arguments& arguments) : m_method(method), m_arguments(arguments.For(method)) {}

    void Make(CWirelessManage& manager) { m_result = m_method.call(manager, m_arguments); }
    const methods::Result& Result() const { return m_result; }
    methods::Outcome Outcome() const;

private:
    std::string TextOfResult() const;

    const Method& m_method;
    std::vector<Argument> m_arguments;
    methods::Result m_result;
};

} // namespace calvix::test::methods
