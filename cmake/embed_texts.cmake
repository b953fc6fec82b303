# calvix_embed_text(TARGET NAME FILE [HEADER header] [NAMESPACE namespace] [HASHED]): compiles a text file of the
# repository into the target, as `extern const char* const NAME;`, which the header declares; by default that is
# simulation/embedded_texts.h in namespace calvix::simulation. The file stays the only copy: whoever changes it rebuilds.
# Plain ASCII only, so that the text can be cut anywhere: compilers limit the length of a literal. HASHED adds NAMEHash,
# "sha256-...", by which a page's content security policy knows the text.

# The hexadecimal digits' bytes in base 64.
function(calvix_base64 result digits)
    set(alphabet "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
    set(text "")
    string(LENGTH "${digits}" length)
    set(position 0)
    while(position LESS length)
        string(SUBSTRING "${digits}" ${position} 6 three_bytes)
        string(LENGTH "${three_bytes}" given)
        string(SUBSTRING "${three_bytes}000000" 0 6 three_bytes)
        foreach(shift IN ITEMS 18 12 6 0)
            math(EXPR index "(0x${three_bytes} >> ${shift}) & 63")
            string(SUBSTRING "${alphabet}" ${index} 1 letter)
            string(APPEND text "${letter}")
        endforeach()
        math(EXPR position "${position} + 6")
    endwhile()
    math(EXPR unused "(6 - ${given}) / 2")
    if(unused GREATER 0)
        string(LENGTH "${text}" length)
        math(EXPR kept "${length} - ${unused}")
        string(SUBSTRING "${text}" 0 ${kept} text)
        string(REPEAT "=" ${unused} padding)
        string(APPEND text "${padding}")
    endif()
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

function(calvix_embed_text target name file)
    cmake_parse_arguments(PARSE_ARGV 3 embed "HASHED" "HEADER;NAMESPACE" "")
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
    set(hash "")
    if(embed_HASHED)
        string(SHA256 digits "${text}")
        calvix_base64(base64 "${digits}")
        set(hash "const char* const ${name}Hash = \"sha256-${base64}\";\n\n")
    endif()
    set(source "${CMAKE_CURRENT_BINARY_DIR}/embedded/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" @ONLY NEWLINE_STYLE UNIX CONTENT [=[
#include "@embed_HEADER@"

namespace @embed_NAMESPACE@
{

const char* const @name@ =
@literals@    ;

@hash@} // namespace @embed_NAMESPACE@
]=])
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    target_sources(${target} PRIVATE "${source}")
endfunction()
