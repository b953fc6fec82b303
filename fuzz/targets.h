#pragma once

#include <cstddef>
#include <cstdint>

namespace calvix::fuzz
{

/// What an input is run through. Each function may be called any number of times in one process and leaves nothing
/// behind; it throws BrokenPromise when something that must always hold does not.
void RunProfileXml(const std::uint8_t* data, std::size_t size);
void RunText(const std::uint8_t* data, std::size_t size);
void RunImport(const std::uint8_t* data, std::size_t size);
void RunScenario(const std::uint8_t* data, std::size_t size);
void RunSession(const std::uint8_t* data, std::size_t size);

struct Target
{
    const char* name; ///< of its folders of seeds and findings
    void (*run)(const std::uint8_t* data, std::size_t size);
};

inline constexpr Target kTargets[] = {{"profile_xml", RunProfileXml},
                                      {"text", RunText},
                                      {"import", RunImport},
                                      {"scenario", RunScenario},
                                      {"session", RunSession}};

} // namespace calvix::fuzz
