# calvix_windows_file(TARGET DESCRIPTION): makes a DLL or program one to ship on Windows: with a version resource, which
# its properties show, and without the symbol table, which is twice as large as its code. Nothing elsewhere.

if(WIN32)
    enable_language(RC)
endif()

function(calvix_windows_file target description)
    if(NOT WIN32)
        return()
    endif()
    get_target_property(kind ${target} TYPE)
    # The name without the postfix of a configuration: one resource serves all of them.
    set(output_name $<TARGET_PROPERTY:${target},OUTPUT_NAME>)
    set(file_name "$<IF:$<BOOL:${output_name}>,${output_name},${target}>$<TARGET_FILE_SUFFIX:${target}>")
    set(file_type VFT_APP)
    if(kind STREQUAL "SHARED_LIBRARY")
        set(file_type VFT_DLL)
    endif()
    string(REPLACE "." "," numbers "${PROJECT_VERSION}.0")
    set(stem "${CMAKE_CURRENT_BINARY_DIR}/${target}_version")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/version.rc.in" "${stem}.in" @ONLY)
    file(GENERATE OUTPUT "${stem}.rc" INPUT "${stem}.in" TARGET ${target})
    # On its own, because the resource compiler cannot take the options of the target's sources.
    add_library(${target}_version OBJECT "${stem}.rc")
    set_target_properties(${target}_version PROPERTIES COMPILE_OPTIONS "")
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_version>)
    if(MINGW)
        target_link_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-s>)
    endif()
endfunction()
