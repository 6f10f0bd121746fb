# Finds curses and its panels where the compiler, the toolchain file or CMAKE_PREFIX_PATH lead to,
# and says at once that they are missing. It looks for files and does not ask pkg-config, which
# would speak of the machine that builds. The results:
#
#   kulgui_curses        a target, for what is built here
#   kulguiCurses         the libraries' names, for those who link the static library later
#   kulguiCursesInclude  the header's directory
#   kulguiCursesPc       whether the libraries have pkg-config files of their own
option(KULGUI_WIDE "Use the curses with wide characters: ncursesw, not ncurses" ON)

if(KULGUI_WIDE)
    set(suffix w)
    set(otherwise "or choose one without wide characters by -DKULGUI_WIDE=OFF")
else()
    set(suffix "")
    set(otherwise "or choose the one with wide characters by -DKULGUI_WIDE=ON")
endif()

find_path(KULGUI_CURSES_INCLUDE panel.h PATH_SUFFIXES ncurses${suffix} ncurses)
find_library(KULGUI_NCURSES${suffix} ncurses${suffix})
find_library(KULGUI_PANEL${suffix} panel${suffix})
if(NOT KULGUI_CURSES_INCLUDE OR NOT KULGUI_NCURSES${suffix} OR NOT KULGUI_PANEL${suffix})
    message(FATAL_ERROR "kulgui needs ncurses with its panels: the headers curses.h and panel.h, and "
        "the libraries ncurses${suffix} and panel${suffix}. Install them (on Debian the package "
        "libncurses-dev), name their folder in CMAKE_PREFIX_PATH, ${otherwise}.")
endif()

# The terminal's description is read by a library of its own where there is one beside curses.
get_filename_component(directory ${KULGUI_NCURSES${suffix}} DIRECTORY)
find_library(KULGUI_TINFO${suffix} NAMES tinfo${suffix} tinfo PATHS ${directory} NO_DEFAULT_PATH)
set(kulguiCurses panel${suffix} ncurses${suffix})
if(KULGUI_TINFO${suffix})
    get_filename_component(tinfo ${KULGUI_TINFO${suffix}} NAME_WE)
    string(REGEX REPLACE "^lib" "" tinfo ${tinfo})
    list(APPEND kulguiCurses ${tinfo})
endif()
set(kulguiCursesInclude ${KULGUI_CURSES_INCLUDE})
if(EXISTS ${directory}/pkgconfig/panel${suffix}.pc AND EXISTS ${directory}/pkgconfig/ncurses${suffix}.pc)
    set(kulguiCursesPc TRUE)
else()
    set(kulguiCursesPc FALSE)
endif()

# By names, not by paths: what is linked with -static finds the archives of the same names.
add_library(kulgui_curses INTERFACE)
target_compile_definitions(kulgui_curses INTERFACE NCURSES_WIDECHAR=$<BOOL:${KULGUI_WIDE}>)
target_link_libraries(kulgui_curses INTERFACE ${kulguiCurses})
target_link_directories(kulgui_curses INTERFACE ${directory})
target_include_directories(kulgui_curses SYSTEM INTERFACE ${kulguiCursesInclude})

# Whether all this fits together: the header of another curses would be found out much later.
include(CheckCSourceCompiles)
include(CMakePushCheckState)
cmake_push_check_state(RESET)
set(CMAKE_REQUIRED_INCLUDES ${kulguiCursesInclude})
set(CMAKE_REQUIRED_LIBRARIES ${kulguiCurses})
set(CMAKE_REQUIRED_LINK_OPTIONS "-L${directory}")
if(KULGUI_WIDE)
    set(CMAKE_REQUIRED_DEFINITIONS -DNCURSES_WIDECHAR=1)
    set(call "cchar_t cell; return new_panel(stdscr) && wadd_wch(stdscr, &cell)")
else()
    set(call "return new_panel(stdscr) && waddch(stdscr, 0)")
endif()
check_c_source_compiles("
    #include <curses.h>
    #include <panel.h>
    #include <term.h>
    #if NCURSES_VERSION_MAJOR < 6
    #error too old
    #endif
    int main(void) { tigetstr(\"cup\"); ${call}; }" KULGUI_CURSES${suffix}_FITS)
cmake_pop_check_state()
if(NOT KULGUI_CURSES${suffix}_FITS)
    unset(KULGUI_CURSES${suffix}_FITS CACHE)
    message(FATAL_ERROR "kulgui needs ncurses 6 with its panels, and these do not make one: "
        "${kulguiCursesInclude}/panel.h, ${KULGUI_NCURSES${suffix}}, ${KULGUI_PANEL${suffix}}. "
        "What the compiler said stands in CMakeFiles/CMakeError.log of the build folder.")
endif()
