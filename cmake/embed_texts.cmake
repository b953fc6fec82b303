# calvix_embed_text(TARGET NAME FILE [UTF8] [HEADER header] [NAMESPACE namespace]): compiles a text file of the repository
# into the target, as `extern const char* const NAME;`, which the header declares; by default that is
# simulation/embedded_texts.h in namespace calvix::simulation. The file stays the only copy: whoever changes it rebuilds.
# Plain ASCII unless UTF8 is given. The text is cut after lines: compilers limit the length of a literal.

function(calvix_embed_text target name file)
    cmake_parse_arguments(PARSE_ARGV 3 embed "UTF8" "HEADER;NAMESPACE" "")
    if(NOT embed_HEADER)
        set(embed_HEADER "simulation/embedded_texts.h")
        set(embed_NAMESPACE "calvix::simulation")
    endif()
    file(READ "${file}" text)
    if(NOT embed_UTF8 AND text MATCHES "[^\t\n -~]")
        message(FATAL_ERROR "${file}: only ASCII can be embedded; escapes of its language write the rest")
    elseif(NOT text MATCHES "\n$")
        message(FATAL_ERROR "${file}: the last line has no end")
    endif()
    set(literals "")
    string(LENGTH "${text}" length)
    set(position 0)
    while(position LESS length)
        string(SUBSTRING "${text}" ${position} 8000 piece)
        string(FIND "${piece}" "\n" end REVERSE)
        math(EXPR end "${end} + 1")
        string(SUBSTRING "${piece}" 0 ${end} piece)
        string(APPEND literals "    R\"embedded(${piece})embedded\"\n")
        math(EXPR position "${position} + ${end}")
    endwhile()
    set(source "${CMAKE_CURRENT_BINARY_DIR}/embedded/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" @ONLY NEWLINE_STYLE UNIX CONTENT [=[
#include "@embed_HEADER@"

namespace @embed_NAMESPACE@
{

const char* const @name@ =
@literals@    ;

} // namespace @embed_NAMESPACE@
]=])
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    target_sources(${target} PRIVATE "${source}")
endfunction()
