# One interface target carries the flags that every target of the project is built with.
add_library(brindle_flags INTERFACE)
target_compile_options(brindle_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Werror
    $<$<CXX_COMPILER_ID:Clang>:-Wthread-safety>)
target_compile_definitions(brindle_flags INTERFACE BRINDLE_VERSION="${PROJECT_VERSION}")
target_include_directories(brindle_flags INTERFACE ${CMAKE_SOURCE_DIR})
if(BRINDLE_SANITIZE)
    target_compile_options(brindle_flags INTERFACE -fsanitize=${BRINDLE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(brindle_flags INTERFACE -fsanitize=${BRINDLE_SANITIZE})
endif()

# brindle_room(NAME FOLDER LINK lower rooms and public libraries... PRIVATE libraries no header shows...)
# Every source in FOLDER belongs to the room, but for a program's main.cpp; folders below it are other rooms.
function(brindle_room name folder)
    cmake_parse_arguments(room "" "" "LINK;PRIVATE" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp ${CMAKE_SOURCE_DIR}/${folder}/*.hpp)
    list(FILTER sources EXCLUDE REGEX "/main[.]cpp$")
    add_library(brindle_${name} STATIC ${sources})
    set_target_properties(brindle_${name} PROPERTIES LINKER_LANGUAGE CXX)
    target_link_libraries(brindle_${name} PUBLIC ${room_LINK} PRIVATE ${room_PRIVATE} brindle_flags)
endfunction()
