#include "commands/commands.h"
#include "explain/result_codes.h"
#include "host/host.h"
#include "output/json_output.h"
#include "output/table.h"
#include "shell/nearest_word.h"

#include <charconv>

namespace calvix::host
{

JsonRecord Describe(const CodeRow& row)
{
    const CauseText& text = Describe(row.cause);
    return JsonRecord().Add("code", row.code).Add("meaning", text.meaning).Add("advice", text.advice);
}

JsonRecord Describe(const MethodResults& results)
{
    return JsonRecord("A method of the library and its codes.", "methodResults")
        .Add("method", results.method != nullptr ? results.method : "")
        .Add("success", results.result != nullptr ? results.result : "")
        .Add("codes", std::vector(results.codes.begin(), results.codes.end()));
}

namespace
{

JsonRecord MethodsRecord()
{
    const auto methods = AllMethodResults();
    return Under("methods", std::vector(methods.begin(), methods.end()));
}

JsonRecord CodeRecord(const std::string& method, long long code, const Explanation& explanation)
{
    return JsonRecord("With a code")
        .Add("method", method)
        .Add("code", code)
        .Add("failure", explanation.failure)
        .Add("meaning", explanation.meaning)
        .Add("advice", explanation.advice, kTextOrNull);
}

struct ExplainOptions
{
    std::string method;
    std::string code;
};

const char* KindText(ResultKind kind)
{
    /// By ResultKind.
    constexpr const char* texts[] = {
        "0 or a code", "a number or a code", "a value", "1 or 0", "text", "0 or the platform's error number",
        "nothing"};
    return texts[static_cast<std::size_t>(kind)];
}

/// A decimal number, or a hexadecimal one after 0x.
long long NumberOf(const std::string& text)
{
    const bool hexadecimal = text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0;
    const char* const begin = text.data() + (hexadecimal ? 2 : 0);
    const char* const end = text.data() + text.size();
    long long number = 0;
    const auto [stop, error] = std::from_chars(begin, end, number, hexadecimal ? 16 : 10);
    if (error != std::errc() || stop != end || begin == end)
        throw BadInput("\"" + text + "\" is not a result code", "give a number such as -4, 1062 or 0x80342002");
    return number;
}

void ListMethods(Host& host)
{
    if (host.json())
        return PrintJson(host.out(), MethodsRecord());
    Table table({{"Method"}, {"Returns"}, {"Codes", Align::right}});
    for (const MethodResults& results : AllMethodResults())
        table.AddRow({results.method, KindText(results.kind), std::to_string(results.codes.size())});
    table.Print(host.out(), host.terminal());
}

void ExplainMethod(Host& host, const MethodResults& results)
{
    if (host.json())
        return PrintJson(host.out(), results);
    host.out() << results.method << " returns " << KindText(results.kind) << ": " << results.result << ".\n";
    if (results.codes.empty())
        return;
    Table table({{"Code", Align::right}, {"Meaning"}, {"What to do"}});
    for (const CodeRow& row : results.codes)
    {
        const CauseText& text = Describe(row.cause);
        table.AddRow({std::to_string(row.code), text.meaning, text.advice});
    }
    table.Print(host.out(), host.terminal());
}

void ExplainCode(Host& host, const MethodResults& results, long long code)
{
    const Explanation explanation = Explain(results, code);
    if (!explanation.known)
        throw BadInput(std::string(results.method) + " never returns " + std::to_string(code),
                       std::string("list its codes with: calvix explain ") + results.method);
    if (host.json())
        return PrintJson(host.out(), CodeRecord(results.method, code, explanation));
    host.out() << results.method << ' ' << code << ": " << explanation.meaning << ".\n";
    if (!explanation.advice.empty())
        host.out() << "What to do: " << explanation.advice << ".\n";
}

Failure UnknownMethod(const std::string& method)
{
    std::vector<std::string> names;
    for (const MethodResults& results : AllMethodResults())
        names.emplace_back(results.method);
    return BadInput("the library has no method \"" + method + "\"",
                    DidYouMean(method, names) + "list the methods: calvix explain");
}

void Explain(Host& host, const ExplainOptions& options)
{
    if (options.method.empty())
        return ListMethods(host);
    const MethodResults* const results = FindMethod(options.method);
    if (results == nullptr)
        throw UnknownMethod(options.method);
    if (options.code.empty())
        return ExplainMethod(host, *results);
    ExplainCode(host, *results, NumberOf(options.code));
}

} // namespace

void AddExplainCommand(CommandSet& commands)
{
    const auto options = std::make_shared<ExplainOptions>();
    commands.Add("explain", "Say what a method's result code means and what to do about it", options, Explain)
        .Text("[METHOD]", options->method, "A method of the library; without it all are listed")
        .Takes(ValueKind::method)
        .Text("[CODE]", options->code, "Its result; without it all its codes are listed")
        .Prints("explain",
                [] {
                    return std::vector{MethodsRecord(), Describe(MethodResults{}), CodeRecord("", 0, {})};
                })
        .Examples("What a number in a log means:\n"
                  "  calvix explain ConnectBestAP -9");
}

} // namespace calvix::host
