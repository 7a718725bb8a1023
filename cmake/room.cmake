# Every folder of the library is one static library. Its links are what it is linked with; every target
# sees the whole tree, and tests/floors.sh alone sees to it that a folder includes those below it only.

add_library(numerello_options INTERFACE)
target_include_directories(numerello_options INTERFACE ${PROJECT_SOURCE_DIR})
# GCC 12 warns of overlapping copies inside its own std::string: -Wno-restrict.
target_compile_options(numerello_options INTERFACE -Wall -Wextra -Wpedantic
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    $<$<BOOL:${NUMERELLO_WERROR}>:-Werror>)
if(NUMERELLO_SANITIZE)
    target_compile_options(numerello_options INTERFACE -fsanitize=address,undefined
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(numerello_options INTERFACE -fsanitize=address,undefined)
endif()
if(NUMERELLO_FUZZ)
    target_compile_options(numerello_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# numerello_room(NAME SOURCES file... LINKS room...)
function(numerello_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(${name} PUBLIC numerello_options ${ROOM_LINKS})
endfunction()
