# Debian packages by cpack, one for each component; "./dev package" makes and checks them.
set(KULGUI_MAINTAINER "The kulgui authors <root@localhost.localdomain>" CACHE STRING
    "Who made the packages: NAME <ADDRESS>")
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kulgui)
set(CPACK_PACKAGE_CONTACT "${KULGUI_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/kulplatform/kulgui)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/depends.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/complete.cmake)

set(about "Kulgui draws dialogs on a character terminal: menus, buttons, check box lists,
text boxes, a file viewer, bars and labels. A key costs one update of the
terminal, of the cells that changed, which is quick on a serial line as well.
")

# describe(COMPONENT NAME SECTION SUMMARY WHAT): what each package is called and says of itself.
macro(describe component name section summary what)
    string(TOUPPER ${component} prefix)
    set(prefix CPACK_DEBIAN_${prefix})
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(${prefix}_PACKAGE_NAME ${name})
    set(${prefix}_PACKAGE_SECTION ${section})
    set(${prefix}_DESCRIPTION "${summary}\n${about}\n${what}")
endmacro()

describe(runtime libkulgui0 libs "dialogs on a character terminal - shared library"
    "This package contains the library that programs run with.")
# cpack would have the loader told by scripts; a trigger is what Debian wants today. So it is not
# asked for what a library needs and gives: depends.cmake finds the one, here is the other.
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/shlibs "libkulgui 0 libkulgui0 (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
    "${CMAKE_CURRENT_BINARY_DIR}/triggers;${CMAKE_CURRENT_BINARY_DIR}/shlibs")

set(sameLibrary "libkulgui0 (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
describe(development libkulgui-dev libdevel "dialogs on a character terminal - development files"
    "This package contains what programs are built with: the header, which is the
manual as well, the static library, and the files for pkg-config and CMake.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${sameLibrary}, libncurses-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS libkulgui-doc)

describe(documentation libkulgui-doc doc "dialogs on a character terminal - documentation"
    "This package contains a manual page for each call, guides and examples.")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)

if(TARGET kuldialog)
    describe(program kuldialog utils "dialogs on a character terminal for shell scripts"
        "This package contains a program that shell scripts show dialogs with.")
    set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${sameLibrary}")
endif()

include(CPack)
