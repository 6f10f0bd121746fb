# The static library shares one space of names with the program: a function of the inside (Fill, Poll)
# would be defined twice where the program has one of that name. So the library's own calls go to other
# names, and the public one of each lies in an object of its own, that only calls the inner one: the
# linker takes it only where the program has none.
#
#     program -> Fill -> kulinner_Fill <- the library
#
# Objects are compiled as for the shared library; the names are exchanged in the archive.
set(outer ${CMAKE_CURRENT_BINARY_DIR}/outer)
set(outerSources "")
set(outerNames "")
file(READ kulgui.h text)
string(REGEX MATCHALL "KULGUI_API [^;(]+\\([^;]*\\)" calls "${text}")
foreach(call ${calls})
    string(REGEX MATCH "^KULGUI_API (.*[ *])([A-Za-z]+)\\((.*)\\)$" found "${call}")
    set(result "${CMAKE_MATCH_1}")
    set(name "${CMAKE_MATCH_2}")
    set(parameters "${CMAKE_MATCH_3}")
    if(NOT found OR name MATCHES "^kul")
        continue()
    endif()
    # Of each parameter its name is handed on.
    string(REGEX REPLACE "[^,]*[ *]([A-Za-z_]+) *(,|$)" "\\1\\2" arguments "${parameters}")
    string(REGEX REPLACE "^void$" "" arguments "${arguments}")
    string(REGEX REPLACE "^void $" "" return "${result}")
    if(return)
        set(return "return ")
    endif()
    file(CONFIGURE OUTPUT ${outer}/${name}.c @ONLY CONTENT
"#include <kulgui.h>
@result@kulouter_@name@(@parameters@);
@result@kulouter_@name@(@parameters@)
{
    @return@@name@(@arguments@);
}
")
    list(APPEND outerSources ${outer}/${name}.c)
    string(APPEND outerNames "${name} kulinner_${name}\nkulouter_${name} ${name}\n")
endforeach()
file(CONFIGURE OUTPUT ${outer}/names CONTENT "${outerNames}" @ONLY)

add_library(kulgui_outer OBJECT ${outerSources})
target_include_directories(kulgui_outer PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
set_target_properties(kulgui_outer PROPERTIES POSITION_INDEPENDENT_CODE ON)
target_link_libraries(kulgui_outer PRIVATE kulgui_curses)

# Only objects of machine code have names that can be exchanged, also where all is optimised at the link.
target_compile_options(kulgui_outer PRIVATE -fno-lto)
if(NOT BUILD_SHARED_LIBS)
    target_compile_options(kulgui_objects PRIVATE -fno-lto)
elseif(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(kulgui_objects PRIVATE -ffat-lto-objects)
elseif("${CMAKE_CXX_FLAGS}" MATCHES "-flto")
    message(FATAL_ERROR "With this compiler, -flto and a shared library there is no libkulgui.a beside it")
endif()

# Adds these to a static library, takes away what only an optimising linker reads, and exchanges the
# names.
function(exchange_names library)
    target_sources(${library} PRIVATE $<TARGET_OBJECTS:kulgui_outer>)
    add_custom_command(TARGET ${library} POST_BUILD COMMAND ${CMAKE_OBJCOPY}
        --remove-section=.gnu.lto_* --remove-section=.gnu.debuglto_* --redefine-syms=${outer}/names
        $<TARGET_FILE:${library}> VERBATIM)
endfunction()
