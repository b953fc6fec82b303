# calvix_put_beside(PROGRAM FILE...): copies the files, which may be $<TARGET_FILE:...> of other targets, into the folder
# of the program whenever the program is built. Windows looks for DLLs there first.

function(calvix_put_beside program)
    set(folder "$<TARGET_FILE_DIR:${program}>")
    add_custom_target(${program}_companions
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
        COMMAND "${CMAKE_COMMAND}" -E copy_if_different ${ARGN} "${folder}"
        VERBATIM)
    add_dependencies(${program} ${program}_companions)
endfunction()
