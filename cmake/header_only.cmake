# calvix_header_only: the header-only libraries of the simulation, the host and the tests, as the distribution installs
# them. They are linked one by one into a folder of the build: the same copy then serves the cross compiler, which must
# never see the rest of /usr/include.

set(CALVIX_HEADER_ONLY_PREFIX "/usr;/usr/local" CACHE STRING "Where header-only libraries are installed")
mark_as_advanced(CALVIX_HEADER_ONLY_PREFIX)

add_library(calvix_header_only INTERFACE)
target_include_directories(calvix_header_only SYSTEM INTERFACE "${CMAKE_BINARY_DIR}/header-only/include")

function(calvix_link_headers library header)
    set(link "${CMAKE_BINARY_DIR}/header-only/include/${library}")
    set(found OFF)
    foreach(prefix IN LISTS CALVIX_HEADER_ONLY_PREFIX)
        if(NOT found AND EXISTS "${prefix}/include/${library}/${header}")
            file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/header-only/include")
            file(CREATE_LINK "${prefix}/include/${library}" "${link}" SYMBOLIC COPY_ON_ERROR)
            set(found ON)
        endif()
    endforeach()
    if(NOT found)
        message(WARNING "${library}/${header} not found: run script/bootstrap")
    endif()
endfunction()

calvix_link_headers(nlohmann json.hpp)
calvix_link_headers(CLI CLI.hpp)
calvix_link_headers(rapidxml rapidxml.hpp)
