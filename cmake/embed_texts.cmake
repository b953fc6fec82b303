# calvix_embed_text(TARGET NAME FILE): compiles a text file of the repository into the target, as
# `extern const char* const NAME;` in namespace calvix::simulation. The file stays the only copy: whoever changes it
# rebuilds. Plain ASCII only, so that the text can be cut anywhere: compilers limit the length of a literal.

function(calvix_embed_text target name file)
    file(READ "${file}" text)
    if(text MATCHES "[^\t\n -~]")
        message(FATAL_ERROR "${file}: only ASCII can be embedded; JSON has \\u escapes for the rest")
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
#include "simulation/embedded_texts.h"

namespace calvix::simulation
{

const char* const @name@ =
@literals@    ;

} // namespace calvix::simulation
]=])
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    target_sources(${target} PRIVATE "${source}")
endfunction()
