# calvix_embed_text(TARGET NAME FILE [HEADER header] [NAMESPACE namespace]): compiles a text file of the repository into
# the target, as `extern const char* const NAME;`, which the header declares; by default that is
# simulation/embedded_texts.h in namespace calvix::simulation. The file stays the only copy: whoever changes it rebuilds.
# Plain ASCII only, so that the text can be cut anywhere: compilers limit the length of a literal.

function(calvix_embed_text target name file)
    cmake_parse_arguments(PARSE_ARGV 3 embed "" "HEADER;NAMESPACE" "")
    if(NOT embed_HEADER)
        set(embed_HEADER "simulation/embedded_texts.h")
        set(embed_NAMESPACE "calvix::simulation")
    endif()
    file(READ "${file}" text)
    if(text MATCHES "[^\t\n -~]")
        message(FATAL_ERROR "${file}: only ASCII can be embedded; escapes of its language write the rest")
    endif()
    set(literals "")
    string(LENGTH "${text}" length)
    set(position 0)
    while(position LESS length)
        string(SUBSTRING "${text}" ${position} 8000 piece)
        string(APPEND literals "    R\"embedded(${piece})embedded\"\n")
        math(EXPR position "${position} + 8000")
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
